"""Compares the dynamic symbols of both libraries with the lists beside this file."""

import sys
from pathlib import Path

import sdk

LIBRARIES = ("rti1516e", "fedtime1516e")


def exported(library):
    """The names, mangled, as the lists have them."""
    lines = sdk.run("nm", "-D", "--defined-only", "--format=posix", library).splitlines()
    return {line.split()[0] for line in lines}


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    for name in LIBRARIES:
        names = exported(to.build / "home/lib" / to.toolchain / f"lib{name}.so")
        path = Path(__file__).parent / f"exports-{name}.txt"
        if "--write" in sys.argv:
            path.write_text("".join(line + "\n" for line in sorted(names)))
        differences.same_lines(name, path.read_text().splitlines(), names)
        foreign = {line for line in names if line.startswith(("_ZNSt", "_ZNKSt", "_ZTISt", "_ZSt"))
                   or "Java_skerry" in line}
        differences.same_lines(f"{name}, of others", set(), foreign)
    differences.finish()


if __name__ == "__main__":
    main()
