"""Federates of several language versions link with the one library and run. Exceptions are caught
by type in the program and in a plugin, all built with hidden visibility."""

import shutil
from pathlib import Path

import sdk

SOURCES = Path(__file__).parent / "federates"
VERSIONS = {"c++98": "199711", "c++14": "201402", "c++20": "2020"}


def compilers(to):
    """The one that built the library, and the other one if it is there."""
    found = {Path(shutil.which(name)).resolve(): name
             for name in (str(to.compiler), "g++", "clang++") if shutil.which(name)}
    return found.values()


def build(compiler, version, home, to, out):
    flags = [f"-std={version}", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fvisibility=hidden",
             "-fvisibility-inlines-hidden", f"-I{home}/include"]
    libs = [f"-L{home}/lib/{to.toolchain}", "-lrti1516e", "-lfedtime1516e",
            f"-Wl,-rpath,{home}/lib/{to.toolchain}"]
    plugin, program = out / "libplugin.so", out / "federate"
    sdk.run(compiler, *flags, "-fPIC", "-shared", SOURCES / "Plugin.cpp", "-o", plugin, *libs)
    sdk.run(compiler, *flags, SOURCES / "Federate.cpp", "-o", program, plugin, *libs,
            f"-Wl,-rpath,{out}")
    return program


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    with sdk.Scratch() as scratch:
        home = sdk.install_and_move(to, scratch)
        for compiler in compilers(to):
            for version, number in VERSIONS.items():
                out = scratch / f"{Path(compiler).name}-{version}"
                out.mkdir()
                (out / "empty.xml").write_text("<objectModel/>")
                program = build(compiler, version, home, to, out)
                output = sdk.run(program, cwd=out, expect=None)
                differences.check(f"{compiler} {version}",
                                  f"language version {number}" in output and ", 0 faults" in output,
                                  output)
    differences.finish()


if __name__ == "__main__":
    main()
