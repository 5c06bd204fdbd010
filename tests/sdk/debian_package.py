"""Builds the Debian package, installs it into a root of its own, and removes it again."""

import gzip
import os
import shutil

import sdk


def main():
    to = sdk.settings()
    if not shutil.which("dpkg") or not shutil.which("dpkg-shlibdeps"):
        sdk.skip("no dpkg, or no dpkg-shlibdeps: Debian packages are not built here")
    if not shutil.which("file"):
        sdk.skip("no file: CPack asks it which files are libraries")
    if os.geteuid() != 0:
        sdk.skip("only root can install a package, even into a folder")
    differences = sdk.Differences()
    with sdk.Scratch() as scratch:
        cpack = to.cmake.parent / "cpack"
        sdk.run(cpack, "--config", to.build / "CPackConfig.cmake", "-B", scratch, cwd=scratch)
        packages = list(scratch.glob("*.deb"))
        differences.check("one package", len(packages) == 1, str(packages))
        fields = sdk.run("dpkg-deb", "--field", packages[0])
        differences.check("name", "Package: tarn1516e\n" in fields, fields)
        differences.check("version", f"Version: {to.version}\n" in fields, fields)
        differences.check("depends on the C++ library", "libstdc++6" in fields, fields)

        root = scratch / "root"
        database = root / "var/lib/dpkg"
        (database / "updates").mkdir(parents=True)
        (database / "info").mkdir()
        for name in ("status", "available"):
            (database / name).touch()
        dpkg = ("dpkg", "--force-depends", f"--root={root}", "--log=/dev/null")

        sdk.run(*dpkg, "--install", packages[0])
        home = root / "opt/tarn1516e"
        differences.check("jre", os.readlink(home / "jre") == "/usr/lib/jvm/default-java")
        reading = root / "usr/share/doc/tarn1516e"
        differences.check("copyright", "License:" in (reading / "copyright").read_text())
        with gzip.open(reading / "changelog.gz", "rt") as changes:
            differences.check("changes", f"tarn1516e ({to.version})" in changes.read())
        if not (home / "jre/lib").exists():
            os.remove(home / "jre")
            (home / "jre").symlink_to(to.jdk)
        shutil.copy(to.jar, home / "lib/tarn1516e.jar")
        output = sdk.run(home / "bin/tarn1516e-check", cwd=scratch)
        differences.check("a federate starts", "All is well" in output, output)
        os.remove(home / "lib/tarn1516e.jar")

        sdk.run(*dpkg, "--remove", "tarn1516e")
        differences.check("nothing stays behind", not home.exists(),
                          "" if not home.exists() else str(list(home.rglob("*"))))
    differences.finish()


if __name__ == "__main__":
    main()
