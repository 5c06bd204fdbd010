#!/usr/bin/env python3
"""Counts the instructions of a service or a callback between federate and VM.

A case is run twice, with different numbers of calls; the difference, divided, is one call. Compares
with the figures of the same toolchain in instructions.txt and fails when one has grown by more than
a tenth. Without figures for the toolchain there is nothing to compare, and the test is skipped.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

FIGURES = Path(__file__).resolve().parent / "instructions.txt"
CASES = [
    "update-1x8", "update-10x64", "update-100x8", "timed-update-1x8", "getAttributeHandle",
    "evokeCallback", "reflect-1", "reflect-10", "reflect-100", "reflect-10-changing", "timeAdvanceGrant",
    "federationSaved",
]
FEW, MANY = 100, 1100
GROWTH = 1.1
SKIPPED = 77


def instructions(arguments, case, calls):
    run = subprocess.run(
        [arguments.valgrind, "--tool=callgrind", "--callgrind-out-file=/dev/null",
         arguments.program, case, str(calls)],
        capture_output=True, text=True, check=False)
    if "debuginfo reader" in run.stderr:
        print("this valgrind can't read what this compiler tells debuggers")
        sys.exit(SKIPPED)
    run.check_returncode()
    return int(re.search(r"Collected : (\d+)", run.stderr).group(1))


def measure(arguments):
    return {
        case: (instructions(arguments, case, MANY) - instructions(arguments, case, FEW))
        // (MANY - FEW)
        for case in CASES}


def read_figures():
    """Figures by toolchain and case."""
    figures = {}
    for line in FIGURES.read_text().splitlines():
        if line and not line.startswith("#"):
            toolchain, case, figure = line.split()
            figures.setdefault(toolchain, {})[case] = int(figure)
    return figures


def write_figures(figures):
    lines = ["# Instructions of one call between federate and VM; kept by count_instructions.py"]
    lines += [f"{toolchain} {case} {figure}"
              for toolchain, by_case in sorted(figures.items())
              for case, figure in by_case.items()]
    FIGURES.write_text("\n".join(lines) + "\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--toolchain", required=True, help="compiler, version and build type")
    parser.add_argument("--valgrind", default="valgrind")
    parser.add_argument("--keep", action="store_true", help="keep the counts as the figures")
    parser.add_argument("program", help="the program marshalling")
    arguments = parser.parse_args()

    figures = read_figures() if FIGURES.exists() else {}
    counts = measure(arguments)
    if arguments.keep:
        figures[arguments.toolchain] = counts
        write_figures(figures)
    kept = figures.get(arguments.toolchain)
    grown = 0
    for case, count in counts.items():
        known = kept.get(case) if kept else None
        has_grown = known is not None and count > known * GROWTH
        grown += has_grown
        print(f"{case:24} {count:8} instructions, kept {known}" + (" GROWN" if has_grown else ""))
    if not kept:
        print(f"no figures are kept for {arguments.toolchain}: nothing to compare")
        sys.exit(SKIPPED)
    missing = set(CASES) - set(kept)
    if missing:
        print("no figure is kept for " + ", ".join(sorted(missing)))
    sys.exit(1 if grown or missing else 0)


if __name__ == "__main__":
    main()
