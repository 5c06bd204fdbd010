"""The public headers in every language version from C++98 on: each alone, and all together under a
federate that is linked with the one library and run."""

import shutil
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import sdk

VERSIONS = {"c++98": "199711", "c++11": "201103", "c++14": "201402", "c++17": "201703",
            "c++20": "2020", "c++2b": "202"}
FLAGS = ("-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror")
HERE = Path(__file__).parent


def compile_alone(to, compiler, version, header):
    """The header twice: the second include must be of no effect."""
    return sdk.run(compiler, f"-std={version}", *FLAGS, "-fsyntax-only", "-x", "c++",
                   f"-I{to.source}/api", f"-include{header}", f"-include{header}", "/dev/null",
                   expect=None)


def run_federate(to, home, scratch, compiler, version):
    """What it prints. Its plugin is always of the oldest version."""
    out = scratch / f"{compiler}-{version}"
    out.mkdir()
    libraries = home / "lib" / to.toolchain
    ways = [*FLAGS, "-Wno-deprecated", "-Wno-deprecated-declarations", "-fvisibility=hidden",
            "-fvisibility-inlines-hidden", f"-I{home}/include", f"-I{scratch}"]
    links = [f"-L{libraries}", "-lrti1516e", "-lfedtime1516e", f"-Wl,-rpath,{libraries}:{out}"]
    sdk.run(compiler, "-std=c++98", *ways, "-DPLUGIN", "-fPIC", "-shared", HERE / "Federate.cpp",
            "-o", out / "plugin.so", *links)
    sdk.run(compiler, f"-std={version}", *ways, HERE / "Federate.cpp", "-o", out / "federate",
            out / "plugin.so", *links)
    return sdk.run(out / "federate", to.source / "examples/fom/Harbour.xml", expect=None)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    headers = sorted(path.relative_to(to.source / "api").as_posix() for room in ("RTI", "tarn1516e")
                     for path in (to.source / "api" / room).rglob("*.h"))
    compilers = [name for name in ("g++", "clang++") if shutil.which(name)]
    with sdk.Scratch() as scratch, ThreadPoolExecutor(3) as pool:
        home = sdk.install_and_move(to, scratch)
        (scratch / "AllHeaders.h").write_text("".join(f"#include <{name}>\n" for name in headers))
        alone = [(header, version) for version in VERSIONS for header in headers]
        for one, output in zip(alone, pool.map(
                lambda one: compile_alone(to, compilers[0], one[1], one[0]), alone)):
            differences.check(" as ".join(one), not output, output)
        ways = [(compiler, version) for compiler in compilers for version in VERSIONS]
        for way, output in zip(ways, pool.map(
                lambda way: run_federate(to, home, scratch, *way), ways)):
            said = f"language version {VERSIONS[way[1]]}" in output and ", 0 faults" in output
            differences.check(" ".join(way), said, output)
    differences.finish()


if __name__ == "__main__":
    main()
