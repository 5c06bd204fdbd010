#!/usr/bin/env python3
"""Seeds faults into a copy of the tree, one at a time, and shows which test catches each.

   run.py [--folder FOLDER] [--only TEXT]

The copy and its build lie below FOLDER, at first a new temporary one; given again, only what has
changed is built. --only takes the faults whose name contains TEXT. Fails when a fault is not
caught.
"""

import argparse
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from faults import FAULTS

ROOT = Path(__file__).resolve().parent.parent.parent


def quietly(command, **options):
    return subprocess.run(
        command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
        **options)


def copy_tree(tree):
    """Brings the copy up to date; what has not changed keeps its time."""
    names = quietly(["git", "-C", ROOT, "ls-files", "-co", "--exclude-standard"]).stdout.split("\n")
    for name in filter(None, names):
        source, target = ROOT / name, tree / name
        if source.is_file() and not (target.exists()
                                     and target.read_bytes() == source.read_bytes()):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)


def build(tree, build_folder):
    if not (build_folder / "build.ninja").exists():
        configured = quietly([
            "cmake", "-S", tree, "-B", build_folder, "-G", "Ninja",
            "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"])
        if configured.returncode:
            sys.exit(configured.stdout)
    return quietly(["ninja", "-C", build_folder, "unit-tests", "contract-tests"])


def failing_test(build_folder):
    """The first test that fails, or None."""
    contract = quietly(["ctest", "--test-dir", build_folder, "-R", "^contract-", "--stop-on-failure"])
    if contract.returncode:
        return re.search(r"(contract-\S+) [. ]*\*\*\*", contract.stdout)[1]
    units = quietly([build_folder / "tests/unit-tests", "--gtest_brief=1"], timeout=120)
    return "unit-tests" if units.returncode else None


def seed(tree, fault):
    """Writes the fault; gives the files with their sound texts."""
    name, paths, edits = fault
    sound = {}
    for path in paths.split():
        file = tree / path
        sound[file] = text = file.read_text()
        for old, new in edits:
            if text.count(old) != 1:
                sys.exit(f"'{name}' does not fit {path} any more: {text.count(old)} times {old!r}")
            text = text.replace(old, new)
        file.write_text(text)
    return sound


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--folder", type=Path)
    parser.add_argument("--only", default="")
    arguments = parser.parse_args()
    folder = arguments.folder or Path(tempfile.mkdtemp(prefix="seeded-"))
    tree, build_folder = folder / "tree", folder / "build"
    faults = [fault for fault in FAULTS if arguments.only in fault[0]]

    print(f"Copying and building the sound tree in {folder}", flush=True)
    copy_tree(tree)
    built = build(tree, build_folder)
    if built.returncode:
        sys.exit(built.stdout)
    caught_sound = failing_test(build_folder)
    if caught_sound:
        sys.exit(f"The sound tree fails {caught_sound}")

    missed = 0
    for number, fault in enumerate(faults, 1):
        start = time.monotonic()
        sound = seed(tree, fault)
        try:
            built = build(tree, build_folder)
            if built.returncode:
                sys.exit(f"'{fault[0]}' does not compile:\n{built.stdout}")
            caught = failing_test(build_folder)
        finally:
            for file, text in sound.items():
                file.write_text(text)
        missed += caught is None
        print(f"{number:3} {fault[0]:50} {caught or 'NOT CAUGHT':45} "
              f"{time.monotonic() - start:4.0f} s", flush=True)
    print(f"{len(faults) - missed} of {len(faults)} faults caught")
    sys.exit(1 if missed else 0)


if __name__ == "__main__":
    main()
