#!/usr/bin/env python3
"""Runs a program whose Java VM checks every JNI call, and fails with it or when the VM warns. One
warning must come, of a call that is wrong on purpose: without it the VM did not check.

   check_jni.py PROGRAM ARGUMENT...
"""

import re
import subprocess
import sys

ON_PURPOSE = "without checking exceptions when required to from CallStaticObjectMethodV"

run = subprocess.run(sys.argv[1:], stdout=subprocess.PIPE, encoding="utf-8", errors="replace",
                     check=False)
print(run.stdout)
warnings = re.findall("^.*(?:WARNING|FATAL ERROR).*$", run.stdout, re.MULTILINE)
print(f"{len(warnings)} warnings of the VM; exit code {run.returncode}")
sys.exit(run.returncode or len(warnings) != 1 or ON_PURPOSE not in warnings[0])
