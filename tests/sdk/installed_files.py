"""Compares what is installed, component by component, with installed-files.txt. With --write behind
the settings it writes the list."""

import os
import sys
from pathlib import Path

import sdk
from snippets import follow_links

LIST = Path(__file__).parent / "installed-files.txt"


def files_below(to, prefix):
    """Paths as the list has them: links with where they lead."""
    names = []
    for folder, folders, files in os.walk(prefix):
        links = [name for name in folders if (Path(folder) / name).is_symlink()]
        for name in files + links:
            path = Path(folder) / name
            text = str(path.relative_to(prefix))
            if path.is_symlink():
                text += " -> " + os.readlink(path)
            names.append(text)
    config = f"Targets-{build_type(to)}.cmake"
    return {
        name.replace(to.toolchain, "<toolchain>").replace(config, "Targets-<type>.cmake")
        for name in names
    }


def build_type(to):
    for line in (to.build / "CMakeCache.txt").read_text().splitlines():
        if line.startswith("CMAKE_BUILD_TYPE:"):
            return line.split("=")[1].lower() or "noconfig"


def expected_files():
    """Component to paths."""
    components, names = {}, None
    for line in LIST.read_text().splitlines():
        if line.startswith("["):
            names = components.setdefault(line.strip("[]"), set())
        elif line and not line.startswith("#"):
            names.add(line)
    return components


def installed_files(to, components, scratch):
    """Component to paths."""
    installed = {}
    for component in components:
        sdk.install(to, scratch / component, "--component", component)
        installed[component] = files_below(to, scratch / component)
    return installed


def write_list(installed):
    text = LIST.read_text().split("\n[")[0]
    for component, names in installed.items():
        text += "\n".join([f"\n[{component}]", *sorted(names), ""])
    LIST.write_text(text)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    expected = expected_files()
    with sdk.Scratch() as scratch:
        installed = installed_files(to, expected, scratch)
        if "--write" in sys.argv:
            write_list(installed)
            expected = expected_files()
        for component, names in expected.items():
            differences.same_lines(component, names, installed[component])
        sdk.install(to, scratch / "all")
        usual = set().union(*(names for component, names in expected.items()
                              if component != "standin"))
        differences.same_lines("without a component", usual, files_below(to, scratch / "all"))
        for document in (scratch / "all").rglob("*.md"):
            follow_links(document, differences)
        jre_link(to, scratch, differences)
    differences.finish()


def jre_link(to, scratch, differences):
    """The link to a Java runtime is there when it is asked for."""
    build = scratch / "linked"
    sdk.run(to.cmake, "-S", to.source, "-B", build, "-G", "Ninja",
            f"-DCMAKE_CXX_COMPILER={to.compiler}", "-DTARN_TESTS=OFF", "-DTARN_EXAMPLES=OFF",
            "-DCMAKE_BUILD_TYPE=Release", "-DTARN_INSTALL_JRE_LINK=ON", "-DTARN_JRE_LINK=/somewhere/java")
    sdk.run(to.cmake, "--install", build, "--component", "jre", "--prefix", scratch / "jre")
    differences.check("a release is hardened",
                      "_FORTIFY_SOURCE" in (build / "build.ninja").read_text())
    differences.same_lines("jre", {"jre -> /somewhere/java"}, files_below(to, scratch / "jre"))


if __name__ == "__main__":
    main()
