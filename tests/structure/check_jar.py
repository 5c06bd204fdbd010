#!/usr/bin/env python3
"""The staged jar offers the classes, methods and natives that the rows ask for, and no others.

   check_jar.py <javap> <jar>
"""

import subprocess
import sys
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "gen/generator"))
import rows  # noqa: E402

JNI_TYPES = {"void": "V", "boolean": "Z", "int": "I", "long": "J", "double": "D",
             "byte[]": "[B", "int[]": "[I", "long[]": "[J",
             "java.lang.String": "Ljava/lang/String;"}


def methods(javap, jar, name):
    """(modifiers, name, JNI signature) of the public methods and constructors of a class."""
    text = subprocess.run([javap, "-public", "-cp", jar, name], check=True, text=True,
                          stdout=subprocess.PIPE).stdout
    for line in text.splitlines()[2:]:
        if "(" not in line:
            continue
        head, rest = line.strip().split("(", 1)
        *modifiers, method = head.split()
        arguments = [JNI_TYPES[part] for part in rest.split(")")[0].split(", ") if part]
        result = modifiers.pop() if method != name else "void"
        yield " ".join(modifiers), method, f"({''.join(arguments)}){JNI_TYPES[result]}"


def compare(what, found, wanted):
    found, wanted = set(found), set(wanted)
    for item in sorted(wanted - found):
        print(f"{what}: lacks {item}")
    for item in sorted(found - wanted):
        print(f"{what}: has {item}, which no row asks for")
    print(f"{what}: {len(found)}")
    return found == wanted


def main():
    javap, jar = sys.argv[1:]
    services, _ = rows.read_services()
    package = "skerry.tarn1516e."
    ambassador = package + "RTIambassadorC2007"
    right = compare(
        "services and the constructor",
        ((name, signature) for _, name, signature in methods(javap, jar, ambassador)),
        [(service.java_name, service.signature) for service in services]
        + [(ambassador, "([B)V")])
    right &= compare(
        "natives",
        ((name, signature) for modifiers, name, signature
         in methods(javap, jar, package + "FederateAmbassadorC2007") if "native" in modifiers),
        ((callback.native_name, "([B)V") for callback in rows.read_callbacks()))
    folder = "hla/rti1516e/exceptions/"
    classes = zipfile.ZipFile(jar).namelist()
    right &= compare(
        "exceptions",
        (name[len(folder):-6] for name in classes
         if name.startswith(folder) and name.endswith(".class") and "RTIexception" not in name),
        rows.read_exceptions())
    sys.exit(0 if right and "skerry/tarn1516e/RtiFactoryImpl.class" in classes else 1)


if __name__ == "__main__":
    main()
