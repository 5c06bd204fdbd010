"""Makes the reference of the public headers. A warning or a public name without documentation
fails, and so does a class of the lists that is not in it with its own words."""

import re
import shutil
import subprocess
from xml.etree import ElementTree

import sdk

# A few classes, and how their documentation begins.
CLASSES = {
    "AlreadyConnected": "The ambassador is connected already.",
    "UnsupportedCallbackModel": "The RTI does not offer the callback model.",
    "RegionHandle": "A region.",
    "HLAunicodeChar": "A UTF-16 unit.",
    "RTIambassador": "",
    "HLAvariantRecord": "A discriminant, and a variant",
}


def documented_classes(folder):
    """Name to the text that it begins with."""
    found = {}
    for path in folder.glob("classrti1516e_1_1*.xml"):
        compound = ElementTree.parse(path).find("compounddef")
        name = compound.findtext("compoundname").split("::")[-1]
        found[name] = "".join(compound.find("briefdescription").itertext()).strip()
    return found


def exception_names(to):
    text = (to.source / "api/RTI/Exception.h").read_text()
    return set(re.findall(r"\bX\((\w+)\) ", text))


def main():
    to = sdk.settings()
    if not shutil.which("doxygen"):
        sdk.skip("no doxygen: the reference is not made here")
    differences = sdk.Differences()
    with sdk.Scratch() as scratch:
        settings = (to.source / "docs/Doxyfile").read_text() + f"\nOUTPUT_DIRECTORY={scratch}\n"
        done = subprocess.run(["doxygen", "-"], input=settings, cwd=to.source, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        differences.check("doxygen", done.returncode == 0 and not done.stdout, done.stdout)
        found = documented_classes(scratch / "xml")
    differences.check("exceptions", len(exception_names(to)) == 122)
    differences.same_lines("exceptions", exception_names(to),
                           {name for name in found if name in exception_names(to) and found[name]})
    for name, text in CLASSES.items():
        differences.check(name, found.get(name, "(not there)").startswith(text), found.get(name))
    differences.finish()


if __name__ == "__main__":
    main()
