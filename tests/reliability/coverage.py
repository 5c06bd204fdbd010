#!/usr/bin/env python3
"""Line and branch coverage of the library from gcov's counts, and the lines that no test reaches.

   coverage.py BUILD_FOLDER

Fails when a line is not reached that uncovered.txt does not name.
"""

import gzip
import json
import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
ROOMS = ("api", "bridge", "encoding", "fedtime", "gen/cpp", "jvm", "runtime", "time")
REASONS = Path(__file__).with_name("uncovered.txt")


def room_of(path):
    return next((room for room in sorted(ROOMS, key=len, reverse=True)
                 if path.startswith(room)), None)


def counts(build):
    """(file, line) to times, and (file, line, number) of a branch to times, over all objects."""
    lines, branches = defaultdict(int), defaultdict(int)
    data = [str(path) for path in Path(build).resolve().rglob("*.gcda")]
    with tempfile.TemporaryDirectory() as folder:
        for i in range(0, len(data), 40):
            subprocess.run(["gcov", "--json-format", "--branch-probabilities", "--hash-filenames",
                            *data[i:i + 40]],
                           cwd=folder, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, check=True)
        for result in Path(folder).glob("*.gcov.json.gz"):
            with gzip.open(result, "rt") as file:
                report = json.load(file)
            for source in report["files"]:
                path = Path(report["current_working_directory"], source["file"]).resolve()
                if ROOT not in path.parents or not room_of(name := str(path.relative_to(ROOT))):
                    continue
                text = path.read_text().splitlines()
                # Counted on a function's head is what happens when its exception list is violated,
                # on its closing brace the way out of an exception.
                heads = defaultdict(int)
                for function in source["functions"]:
                    heads[function["start_line"]] += function["execution_count"]
                for line in source["lines"]:
                    number = line["line_number"]
                    if text[number - 1].strip() == "}":
                        continue
                    lines[name, number] += heads[number] if number in heads else line["count"]
                    # Ways out through an exception are every call's.
                    taken = [b["count"] for b in line["branches"] if not b["throw"]]
                    for i, count in enumerate(taken):
                        branches[name, number, i] += count
    return lines, branches


def reasons():
    """Each entry is a file and the text of a line, with the reason above."""
    known = set()
    for entry in REASONS.read_text().splitlines():
        if entry and not entry.startswith("#"):
            name, _, text = entry.partition(": ")
            known.add((name, text.strip()))
    return known


def share(counted):
    reached = sum(1 for count in counted if count)
    return f"{reached:5} of {len(counted):5}, {100 * reached / max(1, len(counted)):5.1f} %"


def main():
    lines, branches = counts(sys.argv[1])
    for room in ROOMS + ("",):
        def inside(key, room=room):
            return not room or room_of(key[0]) == room
        print(f"{room or 'all':10} lines {share([c for k, c in lines.items() if inside(k)])}"
              f"   branches {share([c for k, c in branches.items() if inside(k)])}")
    known, unnamed = reasons(), 0
    for (name, number), count in sorted(lines.items()):
        if count == 0:
            text = (ROOT / name).read_text().splitlines()[number - 1].strip()
            if (name, text) not in known:
                unnamed += 1
                print(f"not reached: {name}: {text} ({number})")
    print(f"{unnamed} lines that are neither reached nor named")
    sys.exit(1 if unnamed or len(lines) < 1000 else 0)


if __name__ == "__main__":
    main()
