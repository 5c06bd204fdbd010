#!/usr/bin/env python3
"""Counts the instructions of a service or a callback between federate and VM.

A case is run twice, with different numbers of calls; the difference, divided, is one call. Compares
with the figures of the same toolchain in instructions.txt and fails when one has grown by more than
a tenth. Without figures for the toolchain there is nothing to compare, and the test is skipped.

   count_instructions.py TOOLCHAIN VALGRIND MARSHALLING [--keep]
"""

import re
import subprocess
import sys
from pathlib import Path

FIGURES = Path(__file__).with_name("instructions.txt")
CASES = ["update-1x8", "update-10x64", "update-100x8", "timed-update-1x8", "getAttributeHandle",
         "evokeCallback", "reflect-1", "reflect-10", "reflect-100", "reflect-10-changing",
         "timeAdvanceGrant", "federationSaved"]
FEW, MANY = 100, 1100
GROWTH = 1.1
SKIPPED = 77


def instructions(valgrind, program, case, calls):
    run = subprocess.run([valgrind, "--tool=callgrind", "--callgrind-out-file=/dev/null", program,
                          case, str(calls)], capture_output=True, text=True, check=False)
    if "debuginfo reader" in run.stderr:
        print("this valgrind can't read what this compiler tells debuggers")
        sys.exit(SKIPPED)
    run.check_returncode()
    return int(re.search(r"Collected : (\d+)", run.stderr).group(1))


def main():
    toolchain, valgrind, program = sys.argv[1:4]
    lines = FIGURES.read_text().splitlines()
    kept = {case: int(figure) for name, case, figure
            in (line.split() for line in lines if not line.startswith("#")) if name == toolchain}
    counts, grown = {}, 0
    for case in CASES:
        few, many = (instructions(valgrind, program, case, calls) for calls in (FEW, MANY))
        counts[case] = (many - few) // (MANY - FEW)
        has_grown = bool(kept) and counts[case] > kept.get(case, 0) * GROWTH
        grown += has_grown
        print(f"{case:24} {counts[case]:8} instructions, kept {kept.get(case)}"
              + (" GROWN" if has_grown else ""))
    if sys.argv[4:] == ["--keep"]:
        others = [line for line in lines if not line.startswith(toolchain + " ")]
        mine = [f"{toolchain} {case} {count}" for case, count in counts.items()]
        FIGURES.write_text("\n".join(others[:1] + sorted(others[1:] + mine)) + "\n")
    elif not kept:
        print(f"no figures are kept for {toolchain}: nothing to compare")
        sys.exit(SKIPPED)
    else:
        sys.exit(1 if grown else 0)


if __name__ == "__main__":
    main()
