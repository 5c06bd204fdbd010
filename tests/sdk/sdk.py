"""What the tests of the SDK share: settings, an installation that was moved, and how to run things
and to tell what differs."""

import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77


class Settings:
    def __init__(self, path):
        for name, value in json.loads(Path(path).read_text()).items():
            setattr(self, name, Path(value) if "/" in value else value)


def settings():
    return Settings(sys.argv[1])


def skip(reason):
    print(reason)
    sys.exit(SKIPPED)


def run(*command, cwd=None, env=None, expect=0):
    """Runs a command in an empty environment but for what a shell always has. The output of both
    streams."""
    environment = {"PATH": os.environ["PATH"], "HOME": "/", "LC_ALL": "C.UTF-8"}
    environment.update({name: str(value) for name, value in (env or {}).items()})
    done = subprocess.run(
        [str(part) for part in command], cwd=cwd, env=environment, text=True,
        errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if expect is not None and done.returncode != expect:
        print(done.stdout)
        print(f"FAILED with {done.returncode}, not {expect}: {' '.join(map(str, command))}")
        sys.exit(1)
    return done.stdout


class Scratch:
    """A folder that goes away with its block."""

    def __enter__(self):
        self.path = Path(tempfile.mkdtemp(prefix="tarn-sdk-")).resolve()
        return self.path

    def __exit__(self, *exception):
        shutil.rmtree(self.path, ignore_errors=True)


def install(to, prefix, *arguments):
    run(to.cmake, "--install", to.build, "--prefix", prefix, *arguments)


def install_and_move(to, folder):
    """A home below the folder, installed at one place and moved to another, with the stand-in's jar
    and a VM as a user puts them there."""
    install(to, folder / "first place")
    home = folder / "second place"
    (folder / "first place").rename(home)
    put_jar_and_vm(to, home)
    return home


def put_jar_and_vm(to, home):
    shutil.copy(to.jar, home / "lib/tarn1516e.jar")
    (home / "jre").symlink_to(to.jdk)


class Differences:
    """Collects what is not as it should be; the end tells and gives the exit status."""

    def __init__(self):
        self.found = []
        self.compared = 0

    def check(self, what, holds, detail=""):
        self.compared += 1
        if not holds:
            self.found.append(f"{what}{': ' if detail else ''}{detail}")

    def same_lines(self, what, expected, actual):
        self.compared += 1
        self.found += [f"{what}: missing {line}" for line in sorted(set(expected) - set(actual))]
        self.found += [f"{what}: unexpected {line}" for line in sorted(set(actual) - set(expected))]

    def finish(self):
        print("\n".join(self.found) or f"{self.compared} comparisons, no difference")
        sys.exit(1 if self.found or not self.compared else 0)
