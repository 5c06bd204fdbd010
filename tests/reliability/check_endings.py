#!/usr/bin/env python3
"""How a federate's process ends: code, text and time, for each way to end it and each signal.

   check_endings.py LEAVER HOST VM_LIBRARY JAR
"""

import os
import re
import resource
import signal
import subprocess
import sys
import tempfile

LEAVER, HOST, VM_LIBRARY, JAR = sys.argv[1:5]
SECONDS = 30
QUIET = {"TARN1516_OPTION1": "-Dtarn.standin.quiet", "TARN1516_OPTION2": "-XX:ErrorFile=/dev/null",
         "TARN1516_OPTION3": "-XX:TieredStopAtLevel=1", "TARN1516_OPTION4": "-XX:+UseSerialGC"}
KEEP_OUT = {"TARN1516_OPTION5": "-Xrs"}
HANDLER = 9  # what the federate's handler exits with

# Arguments, exit code (below 0 a signal), what the standard error stream must hold, how often.
ENDINGS = [
    (["return"], 3, r"\A\Z", 3),
    (["exit"], 4, r"\A\Z", 3),
    (["traffic"], 5, r"\A\Z", 10),
    (["callback"], 6, r"\A\Z", 3),
    (["java-thread"], 7, r"\A\Z", 3),
    (["uncaught"], -signal.SIGABRT,
     r"\Aterminate called after throwing an instance of 'rti1516e::NameNotFound'\n", 1),
    (["uncaught-thread"], -signal.SIGABRT,
     r"\Aterminate called after throwing an instance of 'std::runtime_error'\n"
     r"  what\(\):  on a thread\n", 1),
    (["fork"], 0, r"\A\Z", 1),
]

# What a signal inside a callback comes to: without a handler, with one set before the VM was there,
# and the same with -Xrs. A handler set later is always the federate's.
CODE = 128
SIGNALS = [
    (signal.SIGHUP, CODE + signal.SIGHUP, CODE + signal.SIGHUP, HANDLER),
    (signal.SIGINT, CODE + signal.SIGINT, CODE + signal.SIGINT, HANDLER),
    (signal.SIGTERM, CODE + signal.SIGTERM, CODE + signal.SIGTERM, HANDLER),
    (signal.SIGSEGV, -signal.SIGABRT, HANDLER, HANDLER),
    (signal.SIGUSR1, -signal.SIGUSR1, HANDLER, HANDLER),
    (signal.SIGALRM, -signal.SIGALRM, HANDLER, HANDLER),
]


def fault(command, expected, errors, environment=(), output=None):
    with tempfile.TemporaryDirectory() as folder:
        # A host's VM has no use for this file; a VM of the library's would not start with it.
        if command[0] == HOST:
            with open(os.path.join(folder, "tarn.vmoptions"), "w", encoding="utf-8") as file:
                file.write("-Xmx1k\n")
        settings = {k: v for k, v in os.environ.items() if k != "CLASSPATH"}
        settings.update(environment)
        try:
            run = subprocess.run(command, cwd=folder, env=settings, stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, timeout=SECONDS, encoding="utf-8",
                                 errors="replace")
        except subprocess.TimeoutExpired:
            return "hangs"
    if run.returncode != expected:
        return f"ends with {run.returncode} instead of {expected}: {run.stderr[:300]}"
    if not re.search(errors, run.stderr):
        return f"wrong text: {run.stderr[:300]}"
    if output is not None and run.stdout != output:
        return f"wrong output: {run.stdout[:300]}"
    return ""


def cases():
    for arguments, expected, errors, times in ENDINGS:
        for _ in range(times):
            yield [LEAVER] + arguments, expected, errors, QUIET
    for number, bare, handled, kept_out in SIGNALS:
        told = f"the federate's handler got {number:02}\n"
        for way, expected, extra in (("signal", bare, {}), ("handled", handled, {}),
                                     ("handled", kept_out, KEEP_OUT),
                                     ("handled-later", HANDLER, {})):
            yield ([LEAVER, way, str(int(number))], expected,
                   told if expected == HANDLER else "", {**QUIET, **extra})
    not_found = (r"(?s)ClassNotFoundException.*Tarn failed to load core classes in existing JVM\.\n"
                 r"CLASSPATH: \(unknown\)")
    yield [HOST, "visible", VM_LIBRARY, JAR], 0, r"\A\Z", {}, ""
    yield [HOST, "invisible", VM_LIBRARY, JAR], 0, not_found, {}, ""
    yield [HOST, "loader", VM_LIBRARY, JAR], 0, r"\A\Z", {}, "created below the host's class\n"
    yield [HOST, "end", VM_LIBRARY, JAR], 0, r"\A\Z", {}, ""


def waits_for_ever():
    """DestroyJavaVM waits for a thread that ended without leaving the VM."""
    with subprocess.Popen([HOST, "end-attached", VM_LIBRARY, JAR], stdout=subprocess.PIPE) as host:
        try:
            host.stdout.readline()
            host.wait(timeout=2)
            return False
        except subprocess.TimeoutExpired:
            return True
        finally:
            host.kill()


def main():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    count, faults = 0, 0
    for case in cases():
        count += 1
        text = fault(*case)
        if text:
            faults += 1
            print(" ".join(os.path.basename(word) for word in case[0]), text)
    if not waits_for_ever():
        faults += 1
        print("host end-attached does not wait")
    print(f"{count + 1} endings, {faults} faults")
    sys.exit(1 if faults or count < 40 else 0)


if __name__ == "__main__":
    main()
