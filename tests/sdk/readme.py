"""Does what the read-me tells a newcomer to do, from the installation on, word for word."""

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
    federate = re.search(r"^```cpp\n(.*?)^```$", section, re.DOTALL | re.MULTILINE)[1]
    with sdk.Scratch() as home:
        for line in re.findall(r"^cmake --install build/mine --prefix (.*)$", build, re.MULTILINE):
            sdk.install(to, *line.replace("~", str(home)).split())
        (home / "tarn/jre").symlink_to(to.jdk)
        (home / "trial.cpp").write_text(federate)
        steps = ((check, "All is well: a federate starts here."), (trial, "FederateHandle<1>"))
        for step, said in steps:
            output = sdk.run("bash", "-ec", step, cwd=home, env={"HOME": home})
            differences.check(step, said in output, output)
    differences.finish()


if __name__ == "__main__":
    main()
