"""Compares the binary interface of both libraries with binary-interface.txt: sizes of classes, the
order of their virtual functions, the exported names. Sees that the library stays in the process and
does little when it is loaded. --write writes the list. Sizes are those of namespace rti1516e; the
other one's threads and mutexes are as large as the platform's.

Arguments: the settings, and for a cross build the folder of its libraries, compiler, nm and readelf.
Classes that are alike but for their names share an entry, by which a change is seen; a digest of all
mangled names, the virtual ones in their order, sees the rest."""

import _ctypes
import ctypes
import hashlib
import re
import sys
import textwrap
from collections import Counter
from pathlib import Path

import sdk

LIST = Path(__file__).parent / "binary-interface.txt"
ADAPTER = "_ZTVN9tarn1516e20RTIambassadorAdapterE"  # the order of RTIambassador, which is abstract
OF_OTHERS = ("_ZNSt", "_ZNKSt", "_ZTISt", "_ZTSSt", "_ZTVSt", "_ZSt")


class Tools:
    def __init__(self, to):
        self.libraries = to.build / "home/lib" / to.toolchain
        self.compiler, self.nm, self.readelf = to.compiler, "nm", "readelf"
        given = [word for word in sys.argv[2:] if word != "--write"]
        if given:
            self.libraries, self.compiler, self.nm, self.readelf = Path(given[0]), *given[1:]


def exported(tools, library):
    lines = sdk.run(tools.nm, "-D", "--defined-only", "--format=posix", library).splitlines()
    return sorted(line.split()[0] for line in lines)


def virtual_functions(tools, library):
    """Name of a table of virtual functions to the functions' names, in order."""
    tables, at, names = {}, {}, {}
    for line in sdk.run(tools.nm, "-S", "--defined-only", "--format=posix", library).splitlines():
        name, _, *numbers = line.split()
        value, size = (int(number, 16) for number in (numbers + ["0"])[:2])
        names[value] = min(name, names.get(value, name))
        if name.startswith("_ZTVN"):
            tables[name] = range(value + 16, value + size, 8)  # after the two words in front
    for line in sdk.run(tools.readelf, "-rW", library).splitlines():
        found = re.match(r"([0-9a-f]+)\s+[0-9a-f]+\s+\w+\s+(?:[0-9a-f]+ (\w\S*) \+ 0|([0-9a-f]+))$",
                         line)
        if found:
            at[int(found[1], 16)] = found[2] or names.get(int(found[3], 16))
    return {table: [at.get(place, "?") for place in places] for table, places in tables.items()}


def sizes(tools, to, scratch):
    """Name of a class to its size in bytes, of all that the public headers declare."""
    headers = sorted(path.relative_to(to.source / "api") for room in ("RTI", "tarn1516e")
                     for path in (to.source / "api" / room).rglob("*.h"))
    path = scratch / "headers.cpp"
    path.write_text("".join(f"#include <{header}>\n" for header in headers)
                    + "rti1516e::NullFederateAmbassador null;\n")
    sdk.run(tools.compiler, "-std=c++14", "-Wno-deprecated", f"-I{to.source}/api", "-shared", "-fPIC",
            f"-fdump-lang-class={scratch}/dump", path, "-o", scratch / "null.so")
    return dict(re.findall(r"^Class rti1516e::(\S+)\n   size=(\d+)",
                           (scratch / "dump").read_text(), re.MULTILINE))


def demangled(names):
    """Pairs of a class, or of an empty text, and a member; a type's records count as members."""
    for line in sdk.run("c++filt", *names).splitlines():
        name = line.split("(")[0].replace("[abi:cxx11]", "").replace("rti1516e::", "")
        record = re.match(r"(vtable|typeinfo name|typeinfo) for (.*)", name)
        member = re.match(r"((?:tarn1516e::)?\w+)::(~?\w+$|operator.*)", name)
        if record:
            yield record[2], record[1].replace(" ", "-")
        elif member and member[1] != "tarn1516e":
            yield member[1], member[2]
        else:
            yield "", name


def order(functions):
    """The members' names in order, of a class that has them all."""
    if any("__cxa_pure_virtual" in name for name in functions):
        return f"functions {len(functions)}, abstract"
    return " ".join(re.sub(r"~\w+", "~X", member) for _, member in demangled(functions))


def told(members):
    text = " ".join(name if count == 1 else f"{name}*{count}"
                    for name, count in sorted(Counter(members).items()))
    return text.replace("typeinfo typeinfo-name vtable", "(records)")


def entries(tools, to, scratch):
    """The lines of the list."""
    size = sizes(tools, to, scratch)
    libraries = [tools.libraries / f"lib{name}.so" for name in ("rti1516e", "fedtime1516e")]
    names = sorted(name for library in libraries for name in exported(tools, library))
    tables = virtual_functions(tools, libraries[0])
    tables["_ZTVN8rti1516e13RTIambassadorE"] = tables[ADAPTER]
    tables["_ZTVN8rti1516e18FederateAmbassadorE"] = virtual_functions(
        tools, scratch / "null.so")["_ZTVN8rti1516e22NullFederateAmbassadorE"]
    tables = {table: order for table, order in tables.items() if table in names}
    classes = {}
    for name, (owner, member) in zip(names, demangled(names)):
        classes.setdefault(owner, []).append((name, member))
    orders = {owner: tables[name] for owner, members in classes.items()
              for name, member in members if member == "vtable"}
    alike = {}
    for owner, members in sorted(classes.items()):
        text = (size.get(owner, "no"),
                told(member.replace(owner, "X") if owner else member for _, member in members),
                order(orders.get(owner, [])))
        alike.setdefault(text, []).append(owner)
    for (width, exports, virtual), owners in sorted(alike.items(), key=lambda item: item[1]):
        mangled = [name for owner in owners
                   for name in [name for name, _ in classes[owner]] + orders.get(owner, [])]
        digest = hashlib.sha256(" ".join(mangled).encode()).hexdigest()[:12]
        yield from textwrap.wrap(" ".join(owners) or "(functions)", 100)
        yield f"   {width} bytes, {digest}"
        for title, words in (("exports", exports), ("virtual", virtual)):
            if words:
                yield from textwrap.wrap(f"{title} {words}", 97, initial_indent="   ",
                                         subsequent_indent="      ", break_on_hyphens=False)


def meant_to_be_exported(to):
    """What the library's objects define and do not hide, but for what several objects may define:
    inline functions, templates and type records."""
    for path in (to.build / "CMakeFiles/rti1516e-objects.dir").rglob("*.o"):
        for line in sdk.run("readelf", "--symbols", "--wide", path).splitlines():
            fields = line.split()
            if len(fields) == 8 and fields[4:6] == ["GLOBAL", "DEFAULT"] and fields[6] != "UND":
                yield fields[7]


def stays_when_closed(library):
    """As for a plugin that loads it and is closed: the VM goes on calling it."""
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
    tools = Tools(to)
    differences = sdk.Differences()
    with sdk.Scratch() as scratch:
        lines = list(entries(tools, to, scratch))
    if "--write" in sys.argv:
        LIST.write_text("".join(line + "\n" for line in lines))
    differences.same_lines("binary-interface.txt", LIST.read_text().splitlines(), lines)
    library = tools.libraries / "librti1516e.so"
    names = exported(tools, library)
    if tools.nm == "nm":
        differences.check("the library goes when it is closed", stays_when_closed(library))
        differences.same_lines("initialisers", {"4"}, {str(initialisers(library))})
        differences.same_lines("hidden after all", set(), set(meant_to_be_exported(to)) - set(names))
    differences.same_lines("of others", set(),
                           {name for name in names if name.startswith(OF_OTHERS)
                            or "Java_skerry" in name})
    differences.finish()


if __name__ == "__main__":
    main()
