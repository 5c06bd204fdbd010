#!/usr/bin/env python3
"""Writes everything that follows from the rows: the folders whose names hold "generated".

   generate.py           writes the files and removes those that no row asks for any more
   generate.py --check   only compares; tells each file that differs and exits with 1
"""

import sys
from pathlib import Path

import adapter_writer
import cpp_writer
import java_writer
import record_writer
import rows

ROOT = Path(__file__).resolve().parent.parent.parent
FOLDERS = ("bridge/generated", "gen/cpp_generated", "record/generated",
           "standin/generated")


def wanted():
    services, tails = rows.read_services()
    callbacks = rows.read_callbacks()
    exceptions = rows.read_exceptions()
    texts = cpp_writer.files(services, tails, callbacks)
    operations = rows.read_operations()
    texts.update(adapter_writer.files(operations))
    texts.update(record_writer.files(operations, callbacks))
    texts.update(java_writer.files(services, callbacks, exceptions))
    return texts


def differing(texts):
    """The paths of files that are missing, different or wanted no more."""
    there = {
        str(path.relative_to(ROOT))
        for folder in FOLDERS
        for path in (ROOT / folder).rglob("*") if path.is_file()
    }
    changed = {path for path in texts if path not in there
               or (ROOT / path).read_bytes() != texts[path].encode()}
    return sorted(changed | (there - texts.keys()))


def main():
    texts = wanted()
    paths = differing(texts)
    if "--check" in sys.argv[1:]:
        for path in paths:
            print(f"{path}: not as gen/generator/generate.py writes it")
        sys.exit(1 if paths else 0)
    for path in paths:
        target = ROOT / path
        if path in texts:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(texts[path].encode())
        else:
            target.unlink()
    print(f"{len(texts)} files, {len(paths)} changed")


if __name__ == "__main__":
    main()
