#!/usr/bin/env python3
"""Shows Doxygen the public headers as a reader understands them. Argument: a header.

Classes that stand as one macro and one list are written out, each with its own comment from the
list. A comment that stands before several declarations, without an empty line between them, counts
for all of these."""

import re
import sys
from pathlib import Path

COMMENT = re.compile(r"\s*(///|/\*\*)")
NOT_A_MEMBER = re.compile(r"\s*(class|struct|enum|namespace|template|#|RTI_[A-Z_]+\()")
END_OF_RUN = re.compile(r"\s*($|///|/\*|//|\};|public:|private:|protected:|#)")


def join_macros(lines):
    """Definitions of macros over several lines as one item, a list of lines; other lines as they
    are."""
    items, macro = [], None
    for line in lines:
        if macro is None and line.startswith("#define ") and line.endswith("\\"):
            macro = []
            items.append(macro)
        if macro is None:
            items.append(line)
        else:
            macro.append(line.rstrip("\\").rstrip())
            if not line.endswith("\\"):
                macro = None
    return items


def spelled_out(body, parameters, arguments):
    """The lines of a macro with its arguments in place, indented as outside of one."""
    parts = re.split(r"(/\*.*?\*/)", "\n".join(body), flags=re.DOTALL)
    for parameter, argument in zip(parameters, arguments):
        parts[::2] = [re.sub(rf"\b{parameter}(##|\b)", argument, part) for part in parts[::2]]
    return [re.sub("^ {3}", "", line) for line in "".join(parts).split("\n")]


def expand(lines):
    """The text with the classes written out."""
    classes, lists, out = {}, {}, []
    for item in join_macros(lines):
        if isinstance(item, list):
            name, parameters = re.match(r"#define (\w+)(?:\(([\w, ]*)\))?", item[0]).groups()
            if any("class RTI_EXPORT" in line for line in item):
                classes[name] = (item[1:], parameters.split(", "))
                while out and COMMENT.match(out[-1]):  # it tells of the macro
                    out.pop()
            elif "FOR_EACH" in name:
                lists[name] = re.findall(r"\w\((\w+)\)\s*/\*\*< (.*?) \*/", "\n".join(item[1:]))
                while out and COMMENT.match(out[-1]):
                    out.pop()
            else:
                out += [line + " \\" for line in item[:-1]] + item[-1:]
            continue
        use = re.match(r"(\w+)\((.*)\)$", item)
        if use and use[1] in lists and use[2] in classes:
            body, parameters = classes[use[2]]
            for name, text in lists[use[1]]:
                out += ["", f"/// {text[0].upper()}{text[1:]}."]
                out += spelled_out(body, parameters, [name])
        elif use and use[1] in classes:
            body, parameters = classes[use[1]]
            out += spelled_out(body, parameters, use[2].split(", "))
        else:
            out.append(item)
    return out


def without_forward_declarations(lines):
    """A comment belongs to the class that is defined, not to one that is named before."""
    return [line for line in lines if not re.match(r"class \w+;$", line)]


def group(lines):
    """Brackets runs of declarations that share the comment in front of them."""
    out, at = [], 0
    while at < len(lines):
        start = at
        while at < len(lines) and COMMENT.match(lines[at]):
            while lines[at].strip().startswith("/**") and "*/" not in lines[at]:
                out.append(lines[at])
                at += 1
            out.append(lines[at])
            at += 1
        if at > start and at < len(lines) and not NOT_A_MEMBER.match(lines[at]):
            end = at + 1
            while end < len(lines) and not END_OF_RUN.match(lines[end]):
                end += 1
            if sum(line.endswith((";", "{}")) for line in lines[at:end]) > 1:
                out.insert(len(out) - (at - start), "/// @{")
                out += lines[at:end] + ["/// @}"]
                at = end
        elif at == start:
            out.append(lines[at])
            at += 1
    return out


def main():
    lines = Path(sys.argv[1]).read_text().splitlines()
    print("\n".join(group(without_forward_declarations(expand(lines)))))


if __name__ == "__main__":
    main()
