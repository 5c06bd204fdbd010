#!/usr/bin/env python3
"""Runs a program, which must succeed, and compares its standard output with a file.

   check_output.py <expected> <program> [argument...]
"""

import difflib
import subprocess
import sys
from pathlib import Path


def main():
    expected = Path(sys.argv[1]).read_text()
    run = subprocess.run(sys.argv[2:], check=False, stdout=subprocess.PIPE, text=True)
    difference = "".join(difflib.unified_diff(
        expected.splitlines(True), run.stdout.splitlines(True), "expected", "printed"))
    print(difference or run.stdout)
    print(f"exit status {run.returncode}")
    sys.exit(1 if difference or run.returncode else 0)


if __name__ == "__main__":
    main()
