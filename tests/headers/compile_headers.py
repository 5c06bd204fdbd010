#!/usr/bin/env python3
"""Compiles every public header alone, and the federates beside this file, without a warning.

   compile_headers.py [--jobs N] COMPILER...

Every header is compiled by every compiler in every language version. A federate says in its first
lines how it is to be compiled, once for each line of the form

   // compile: LANGUAGE_VERSION ... FLAG ...
"""

import argparse
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

HERE = Path(__file__).resolve().parent
API = HERE.parent.parent / "api"
STANDARDS = ("98", "11", "14", "17", "20", "2b")
FLAGS = ("-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror")


def trials(compilers):
    """Yields (what is compiled, command, standard input)."""
    headers = sorted(path.relative_to(API).as_posix()
                     for room in ("RTI", "tarn1516e") for path in (API / room).rglob("*.h"))
    for compiler in compilers:
        command = [compiler, *FLAGS, f"-I{API}"]
        for standard in STANDARDS:
            for header in headers:
                # Twice: the second include must be of no effect.
                text = f"#include <{header}>\n" * 2
                yield header, [*command, f"-std=c++{standard}", "-x", "c++", "-"], text
        for federate in sorted((HERE / "federates").glob("*.cpp")):
            ways = re.findall(r"^// compile: (.*)$", federate.read_text(), re.MULTILINE)
            if not ways:
                sys.exit(f"{federate.name} does not say how to compile it")
            for way in ways:
                flags = [word for word in way.split() if word.startswith("-")]
                for standard in (word for word in way.split() if not word.startswith("-")):
                    yield federate.name, [
                        *command, *flags, f"-std=c++{standard}", str(federate)], ""


def compile_one(trial):
    """The compiler's report if it failed, otherwise an empty text."""
    what, command, text = trial
    run = subprocess.run(command, input=text, capture_output=True, text=True, check=False)
    if run.returncode == 0:
        return ""
    return f"{what}: {' '.join(command)}\n{run.stderr}{text}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("compilers", nargs="+", metavar="COMPILER")
    arguments = parser.parse_args()
    todo = list(trials(arguments.compilers))
    with ThreadPoolExecutor(arguments.jobs) as pool:
        faults = [fault for fault in pool.map(compile_one, todo) if fault]
    for fault in faults:
        print(fault)
    print(f"{len(todo)} compilations, {len(faults)} failed")
    return 1 if faults or not todo else 0


if __name__ == "__main__":
    sys.exit(main())
