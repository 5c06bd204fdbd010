"""Builds the installed examples out of tree against the installation, moved after the install, by
CMake and by pkg-config with a plain Makefile, and runs them."""

import shutil

import sdk

# The program, and what its output has to hold.
PROGRAMS = (
    ("demo", "16 messages sent, 16 compared on arrival, 0 differences"),
    ("pilotage", "The ship is in harbour."),
    ("tides", "TideTime: tide 2 + 90 min\nHLAfloat64Time: 06:30\n"),
)

# Calls the time library and nothing else.
TIMES_ONLY = """
#include <RTI/LogicalTimeFactory.h>
int main()
{
   return rti1516e::LogicalTimeFactoryFactory::makeLogicalTimeFactory(L"").get() == 0;
}
"""

# As some toolchains have it without a word: what a program does not call is not linked.
DROPPING = "-Wl,--as-needed"


def build_by_cmake(to, home, sources, out):
    sdk.run(to.cmake, "-S", sources, "-B", out, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={home}",
            f"-DCMAKE_CXX_COMPILER={to.compiler}", f"-DCMAKE_EXE_LINKER_FLAGS={DROPPING}")
    sdk.run(to.cmake, "--build", out)


def build_by_make(to, home, sources, out):
    # A make of which another one is the parent would take over that one's settings.
    sdk.run("make", "-C", sources, f"OUT={out}", f"CXX={to.compiler}",
            f"PKG_CONFIG_PATH={home}/lib/pkgconfig", f"LDFLAGS={DROPPING}")
    (out / "times.cpp").write_text(TIMES_ONLY)
    sdk.run("sh", "-ec", f"{to.compiler} times.cpp {DROPPING}"
            " $(pkg-config --cflags --libs tarn1516e) -o times",
            cwd=out, env={"PKG_CONFIG_PATH": home / "lib/pkgconfig"})


def ask_for_components(to, home, folder, differences):
    """find_package with what is there, and with what is not."""
    project = folder / "asking"
    project.mkdir()
    for wanted, answer in (
            ("5.5 COMPONENTS rti1516e fedtime1516e check", "found"),
            ("5.5 COMPONENTS standin", "jar is not installed"),
            ("5.5 COMPONENTS nonsense", "no component 'nonsense'"),
            ("6.0", "it is not found"),
            ("4.0", "it is not found")):
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.22)\nproject(asking LANGUAGES CXX)\n"
            f"find_package(tarn1516e {wanted})\n"
            "if(tarn1516e_FOUND)\n   message(STATUS \"it is found at ${tarn1516e_HOME}\")\n"
            "else()\n   message(STATUS \"it is not found\")\nendif()\n")
        shutil.rmtree(project / "build", ignore_errors=True)
        output = sdk.run(to.cmake, "-S", project, "-B", project / "build",
                         f"-DCMAKE_PREFIX_PATH={home}", f"-DCMAKE_CXX_COMPILER={to.compiler}")
        said = " ".join(output.split())
        holds = (f"it is found at {home}" if answer == "found" else answer) in said
        differences.check(f"find_package(tarn1516e {wanted})", holds, output)

    # Below another project it brings its libraries, and no tests.
    (project / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.22)\nproject(above LANGUAGES CXX)\n"
        f"add_subdirectory({to.source} below)\n"
        "message(STATUS \"tests ${TARN_TESTS}\")\n")
    output = sdk.run(to.cmake, "-S", project, "-B", folder / "above",
                     f"-DCMAKE_CXX_COMPILER={to.compiler}")
    differences.check("add_subdirectory", "tests OFF" in output, output)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    with sdk.Scratch() as scratch:
        home = sdk.install_and_move(to, scratch)
        sources = home / "share/tarn1516e/examples"
        ways = [("cmake", build_by_cmake)]
        # make and its rules know no blanks in names.
        plain = scratch / "plain"
        plain.symlink_to(home)
        if shutil.which("pkg-config") and shutil.which("make"):
            ways.append(("make", build_by_make))
        for way, build in ways:
            out = scratch / way
            out.mkdir()
            if way == "make":
                build(to, plain, plain / "share/tarn1516e/examples", out)
            else:
                build(to, home, sources, out)
            for program, text in PROGRAMS:
                output = sdk.run(out / program, cwd=out)
                differences.check(f"{program} by {way}", text in output, output)
        ask_for_components(to, home, scratch, differences)
    differences.finish()


if __name__ == "__main__":
    main()
