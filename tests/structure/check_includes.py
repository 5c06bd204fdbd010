#!/usr/bin/env python3
"""Holds the arrows between the rooms: an include may only point down."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent

# What each room may include besides itself and the public headers.
MAY_INCLUDE = {
    "api": (),
    "runtime": ("api/",),
    "encoding": ("api/",),
    "time": ("api/", "encoding/Encoder.h"),
    "jvm": ("api/", "runtime/"),
    "fedtime": ("api/",),
    "gen": ("api/", "jvm/", "runtime/"),
    "bridge": ("api/", "jvm/", "gen/", "runtime/"),
    "record": ("api/", "runtime/"),
    "tools": ("api/", "jvm/"),
}
JNI_ROOMS = ("jvm", "gen", "bridge", "tools")


def faults(path):
    name = str(path.relative_to(ROOT))
    room = name.split("/")[0]
    may = MAY_INCLUDE[room]
    public = name.startswith(("api/RTI/", "api/tarn1516e/"))
    for line in path.read_text().splitlines():
        match = re.match(r'#include ([<"])([^>"]+)[>"]', line)
        if not match:
            continue
        kind, target = match.groups()
        if target == "jni.h" and name.split("/")[0] not in JNI_ROOMS:
            yield f"{name}: includes jni.h"
        if kind == '"' and public:
            yield f"{name}: a public header includes the private {target}"
        if kind == '"' and not target.startswith((room, *may)):
            yield f"{name}: includes {target}, which does not lie below"


def main():
    found, files = [], 0
    for room in MAY_INCLUDE:
        for path in sorted((ROOT / room).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                files += 1
                found += faults(path)
    print("\n".join(found) or f"{files} files, every include points down")
    sys.exit(1 if found or files < 20 else 0)


if __name__ == "__main__":
    main()
