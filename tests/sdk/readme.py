"""Does what the documents tell to do, word for word: the read-me from the installation on, and the
time library of one's own. A block of commands that is neither is marked "by-hand"."""

import re

import sdk


def commands(section):
    return re.findall(r"^```sh\n(.*?)^```$", section, re.DOTALL | re.MULTILINE)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    text = (to.source / "README.md").read_text()
    section = text.split("## The first ten minutes")[1].split("\n## ")[0]
    build, check, trial = commands(section)
    record, = commands(text.split("## When it does not do what it should")[1].split("\n## ")[0])
    own_time, = commands((to.source / "docs/logical-time.md").read_text())
    for document in (to.source / "README.md", *(to.source / "docs").glob("*.md")):
        untried = set(commands(document.read_text())) - {build, check, trial, record, own_time}
        differences.same_lines(f"{document.name}, not run", set(), untried)
    federate = re.search(r"^```cpp\n(.*?)^```$", section, re.DOTALL | re.MULTILINE)[1]
    with sdk.Scratch() as home:
        for line in re.findall(r"^cmake --install build/mine --prefix (.*)$", build, re.MULTILINE):
            sdk.install(to, *line.replace("~", str(home)).split())
        (home / "tarn/jre").symlink_to(to.jdk)
        (home / "trial.cpp").write_text(federate)
        steps = ((check, "All is well: a federate starts here."), (trial, "FederateHandle<1>"),
                 (record, "6 services called"))
        for step, said in steps:
            output = sdk.run("bash", "-ec", step, cwd=home, env={"HOME": home})
            differences.check(step, said in output, output)
        sdk.run(home / "trial", cwd=home / "tarn", expect=1)  # where there is no Harbour.xml
        tides = home / "tarn/share/tarn1516e/examples/tides"
        output = sdk.run("bash", "-ec", own_time + "./federate", cwd=tides,
                         env={"PKG_CONFIG_PATH": home / "tarn/lib/pkgconfig"})
        differences.check("own time", "TideTime: tide 2 + 90 min" in output, output)
    differences.finish()


if __name__ == "__main__":
    main()
