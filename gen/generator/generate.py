#!/usr/bin/env python3
"""Writes everything that follows from the rows: the folders whose names hold "generated".

   generate.py           writes the files and removes those that no row asks for any more
   generate.py --check   only compares; tells each file that differs, and each exception list of
                         the public header that is not its row's, and exits with 1
"""

import re
import sys
from pathlib import Path

import adapter_writer
import cpp_writer
import java_writer
import record_writer
import rows

ROOT = Path(__file__).resolve().parent.parent.parent
INTERFACE = ROOT / "api/RTI/RTIambassador.h"
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


def differing_lists():
    """What public header and rows do not both have: operations' names with their exception lists.

    A list of the header that is longer than that of the forward would compile."""
    declared = re.findall(r"\n   virtual [^(;]*?(\w+)\([^;]*?RTI_THROW\(\s*\(([^()]*)\)\)",
                          INTERFACE.read_text())
    in_header = sorted((name, " ".join(text.split())) for name, text in declared)
    in_rows = sorted((operation.name, adapter_writer.exception_list(operation))
                     for operation in rows.read_operations())
    return [entry for entry in in_header + in_rows
            if in_header.count(entry) != in_rows.count(entry)]


def main():
    if sys.argv[1:] not in ([], ["--check"]):
        sys.exit(__doc__)
    texts = wanted()
    paths = differing(texts)
    if sys.argv[1:]:
        for path in paths:
            print(f"{path}: not as gen/generator/generate.py writes it")
        lists = differing_lists()
        for name, exceptions in lists:
            print(f"{name}: only the header or only the rows list: {exceptions}")
        sys.exit(1 if paths or lists else 0)
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
