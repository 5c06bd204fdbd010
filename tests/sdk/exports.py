"""Compares the dynamic symbols of both libraries with the lists beside this file, sees that what the
VM calls stays in the process, and counts what runs when the library is loaded."""

import _ctypes
import ctypes
import sys
from pathlib import Path

import sdk

LIBRARIES = ("rti1516e", "fedtime1516e")


def exported(library):
    """The names, mangled, as the lists have them."""
    lines = sdk.run("nm", "-D", "--defined-only", "--format=posix", library).splitlines()
    return {line.split()[0] for line in lines}


def meant_to_be_exported(to):
    """What the library's objects define and do not hide, but for what several objects may define:
    inline functions, templates and type records."""
    names = set()
    for path in (to.build / "CMakeFiles/rti1516e-objects.dir").rglob("*.o"):
        for line in sdk.run("readelf", "--symbols", "--wide", path).splitlines():
            fields = line.split()
            if len(fields) == 8 and fields[4:6] == ["GLOBAL", "DEFAULT"] and fields[6] != "UND":
                names.add(fields[7])
    return names


def stays_when_closed(library):
    """As for a plugin that loads it and is closed."""
    _ctypes.dlclose(ctypes.CDLL(library)._handle)
    return str(library.resolve()) in Path("/proc/self/maps").read_text()


def initialisers(library):
    """How many functions run at load, but for the compiler's own one. They make the names of the
    times in three units and the lock of the VM."""
    for line in sdk.run("readelf", "--sections", "--wide", library).splitlines():
        fields = line.partition("]")[2].split()
        if fields[:1] == [".init_array"]:
            return int(fields[4], 16) // 8 - 1
    return 0


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    for name in LIBRARIES:
        names = exported(to.build / "home/lib" / to.toolchain / f"lib{name}.so")
        path = Path(__file__).parent / f"exports-{name}.txt"
        if "--write" in sys.argv:
            path.write_text("".join(line + "\n" for line in sorted(names)))
        differences.same_lines(name, path.read_text().splitlines(), names)
        if name == "rti1516e":
            lost = meant_to_be_exported(to) - names
            differences.same_lines("hidden after all", set(), lost)
        foreign = {line for line in names if line.startswith(("_ZNSt", "_ZNKSt", "_ZTISt", "_ZSt"))
                   or "Java_skerry" in line}
        differences.same_lines(f"{name}, of others", set(), foreign)
    library = to.build / "home/lib" / to.toolchain / "librti1516e.so"
    differences.check("the library goes when it is closed", stays_when_closed(library))
    differences.same_lines("initialisers", {"4"}, {str(initialisers(library))})
    differences.finish()


if __name__ == "__main__":
    main()
