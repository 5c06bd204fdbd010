#!/usr/bin/env python3
"""Runs clang-tidy with the repository's list over the units given, two at a time.

   check_tidy.py <build folder with compile_commands.json>
"""

import json
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
ROOMS = ("api", "bridge", "encoding", "fedtime", "gen", "jvm", "record", "runtime",
         "time")


def tidy(build, unit):
    result = subprocess.run(["clang-tidy", "-p", build, "--quiet", unit], check=False,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return result.stdout if result.returncode else ""


def main():
    build = sys.argv[1]
    commands = json.loads((Path(build) / "compile_commands.json").read_text())
    units = sorted({command["file"] for command in commands
                    if command["file"].startswith(tuple(f"{ROOT}/{room}/" for room in ROOMS))})
    with ThreadPoolExecutor(2) as pool:
        complaints = [text for text in pool.map(lambda unit: tidy(build, unit), units) if text]
    print("\n".join(complaints))
    print(f"{len(units)} units")
    sys.exit(1 if complaints or len(units) < 30 else 0)


if __name__ == "__main__":
    main()
