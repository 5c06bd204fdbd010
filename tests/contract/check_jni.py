#!/usr/bin/env python3
"""Runs a program whose Java VM checks every JNI call, and fails with it or when the VM warns.

   check_jni.py [--some] PROGRAM ARGUMENT...

--some: fails as well when none of the warnings came that are known here, for then the VM did not
check.
"""

import re
import subprocess
import sys

# Of what a test does wrong so that the VM is seen to check: the text, and the call that warned.
KNOWN = {("JNI call made without checking exceptions when required to from CallStaticObjectMethodV",
          "GetStringLength")}


def warnings(lines):
    """Each warning's text and place with its lines; other lines are passed through."""
    block = []
    for line in lines + [""]:
        if re.search("WARNING|FATAL ERROR", line):
            if block:
                yield block
            block = [line]
        elif block and re.match(r"\tat |Native frames|V  \[|C  \[|j  |v  |J ", line):
            block.append(line)
        else:
            if block:
                yield block
            block = []
            if line:
                print(line)
    if block:
        yield block


def main():
    arguments = sys.argv[1:]
    some = arguments[0] == "--some"
    run = subprocess.run(
        arguments[1:] if some else arguments, stdout=subprocess.PIPE, encoding="utf-8",
        errors="replace")
    known, unknown = 0, 0
    for block in warnings(run.stdout.splitlines()):
        text = block[0].replace("WARNING in native method: ", "")
        place = re.search(r"checked_jni_(\w+)", "\n".join(block[1:]))
        if place and (text, place[1]) in KNOWN:
            known += 1
        else:
            unknown += 1
            print("\n".join(block))
    print(f"{known} known warnings of the VM, {unknown} others; exit code {run.returncode}")
    sys.exit(1 if run.returncode or unknown or some and not known else 0)


if __name__ == "__main__":
    main()
