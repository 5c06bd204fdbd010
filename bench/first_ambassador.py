#!/usr/bin/env python3
"""Prints what the first ambassador of a process takes, in its parts.

   first_ambassador.py PROGRAM [TIMES]

PROGRAM is first-ambassador. The parts are told by the lines of its trace, as they arrive; each is
the median of so many processes, 20 if not told otherwise. VM options may be given by
TARN1516_OPTION1 and on.
"""

import os
import statistics
import subprocess
import sys
import time

# What ends a part, and the part.
PARTS = [
    ("Starting tarn1516e library", "the process"),
    ("Attempting to create new JVM", "installation and VM library"),
    ("Locating core classes", "VM"),
    ("Locating adapter classes", "core class"),
    ("made", "adapter class, methods, natives, the Java object"),
]


def run(program):
    """Seconds of each part."""
    environment = {**os.environ, "TARN1516E_TRACE_LOAD": "1"}
    begin, parts, ends = time.perf_counter(), [], iter(PARTS)
    end = next(ends)
    with subprocess.Popen([program], env=environment, stderr=subprocess.PIPE, text=True) as process:
        for line in process.stderr:
            if end is not None and end[0] in line:
                now = time.perf_counter()
                parts.append(now - begin)
                begin, end = now, next(ends, None)
    if end is not None:
        sys.exit(f"{program} did not come to '{end[0]}'")
    return parts


def main():
    program, times = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 20
    runs = [run(program) for _ in range(times)]
    for (_, name), parts in zip(PARTS, zip(*runs)):
        print(f"{name:50}{1e3 * statistics.median(parts):9.2f} ms")
    print(f"{'all':50}{1e3 * statistics.median(map(sum, runs)):9.2f} ms")


if __name__ == "__main__":
    main()
