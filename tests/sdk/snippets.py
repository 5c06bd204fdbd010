"""Compiles every piece of C++ in the documents, and follows their links. A piece with a main or with includes is compiled as
it stands; any other one as the body of a function with what a federate has at hand. A piece may
begin with a line "// C++17 and later", or another version, if it holds from there on only."""

import re

import sdk

VERSIONS = ("c++14", "c++20")

AROUND = """\
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <tarn1516e/mutex.h>
#include <tarn1516e/thread.h>
#include <iostream>
#include <memory>

using namespace rti1516e;

void piece(RTIambassador& rti, ObjectInstanceHandle ship, AttributeHandle position)
{
   (void) rti, (void) ship, (void) position;
#line 1 "%s"
%s
}
"""


def pieces(document):
    """Pairs of the line that a piece begins on, and its text."""
    text = document.read_text()
    for match in re.finditer(r"^```cpp\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
        yield text.count("\n", 0, match.start()) + 2, match[1]


def source(name, text):
    if re.search(r"^#include|^int main|^class .*\{", text, re.MULTILINE):
        return "" if "#include" in text else AROUND.split("void piece")[0], text
    return None, AROUND % (name, text)


def follow_links(document, differences):
    for link in re.findall(r"\]\(([^)#:]+)\)", document.read_text()):
        differences.check(f"{document.name} leads to {link}", (document.parent / link).exists())


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    documents = [to.source / "README.md", *sorted((to.source / "docs").glob("*.md"))]
    with sdk.Scratch() as scratch:
        for document in documents:
            follow_links(document, differences)
            for line, text in pieces(document):
                name = f"{document.name}:{line}"
                head, body = source(name, text)
                path = scratch / "piece.cpp"
                path.write_text(body if head is None else f'{head}#line 1 "{name}"\n{body}')
                first = re.match(r"// C\+\+(\d\d) and later", text)
                versions = [version for version in VERSIONS
                            if not first or version >= "c++" + first[1]]
                for version in versions:
                    output = sdk.run(to.compiler, f"-std={version}", "-fsyntax-only", "-Wall",
                                     "-Wextra", "-Werror", "-Wno-unused-variable",
                                     "-Wno-deprecated-declarations", f"-I{to.source}/api", path,
                                     expect=None)
                    differences.check(f"{name} as {version}", not output, output)
    differences.finish()


if __name__ == "__main__":
    main()
