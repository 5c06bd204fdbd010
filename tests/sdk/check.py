"""tarn1516e-check in many homes: what it says where a federate starts, and how it tells apart why
one does not start."""

import json
import os
import re
import shutil
import subprocess
import time
import zipfile
from pathlib import Path

import sdk

CORE = "skerry/tarn1516e/RtiFactoryImpl.class"
ADAPTER = "skerry/tarn1516e/RTIambassadorC2007.class"
NATIVES = "skerry/tarn1516e/FederateAmbassadorC2007.class"
STEPS = ("library", "home", "options", "VM", "class path", "jar", "classes", "native methods",
         "ambassador", "first connect")


class Place:
    """A home and a current directory for one case."""

    def __init__(self, to, master, folder):
        self.to = to
        self.home = folder / "home"
        self.work = folder / "work"
        self.work.mkdir(parents=True)
        shutil.copytree(master, self.home, symlinks=True)
        self.jar = self.home / "lib/tarn1516e.jar"
        self.vm = self.home / "jre/lib/server/libjvm.so"

    def names(self):
        return {"home": self.home, "version": self.to.version, "work": self.work, "jar": self.jar, "vm": self.vm,
                "server": (self.to.jdk / "lib/server").resolve()}

    # What can be done to it.

    def without(self, *names):
        for name in names:
            os.remove(self.home / name)

    def not_a_home(self):
        self.jar.rename(self.work / "classes.jar")
        self.without("jre", "versioninfo.txt", "include/RTI/RTI1516.h")

    def with_vm(self, content):
        """A file in place of the home's VM library, the other path's as well."""
        self.without("jre")
        for path in (self.vm, self.work / "libjvm.so"):
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)

    def move_to(self, name):
        self.home = self.home.rename(self.home.parent / name)
        self.jar = self.home / "lib/tarn1516e.jar"

    def jre_to_nowhere(self):
        self.without("jre")
        (self.home / "jre").symlink_to("/no/runtime")

    def option_file(self, text):
        (self.work / "tarn.vmoptions").write_text(text)

    def of_another_machine(self):
        library = self.home / "lib" / self.to.toolchain / "libfedtime1516e.so"
        content = bytearray(library.read_bytes())
        content[18] = 183 if content[18] != 183 else 62
        self.with_vm(bytes(content))

    def rewrite_jar(self, change):
        """Each class goes through `change`; what comes out as None is left out."""
        with zipfile.ZipFile(self.to.jar) as old, zipfile.ZipFile(self.jar, "w") as new:
            for name in old.namelist():
                content = change(name, old.read(name))
                if content is not None:
                    new.writestr(name, content)

    def jar_of_a_later_version(self):
        # Bytes 6 and 7 of a class: its format's version, 44 more than Java's.
        self.rewrite_jar(lambda name, content:
                         content[:6] + bytes((1, 44)) + content[8:] if name == CORE else content)

    def jar_without(self, *classes):
        self.rewrite_jar(lambda name, content: None if name in classes else content)

    def jar_with(self, class_file, source):
        """Puts a class of other source in place of the jar's."""
        path = self.work / "source" / Path(class_file).with_suffix(".java").name
        path.parent.mkdir()
        path.write_text(source)
        sdk.run(self.to.jdk / "bin/javac", "-cp", self.to.jar, "-d", self.work / "source", path)
        content = (self.work / "source" / class_file).read_bytes()
        self.rewrite_jar(lambda name, old: content if name == class_file else old)

    def jar_that_does_not_connect(self):
        source = (self.to.source / "standin/generated" / ADAPTER).with_suffix(".java").read_text()
        changed, count = re.subn(
            r"( connect_FA_CM_S\(byte\[\] body\) throws RTIexception \{)",
            r'\1 if (true) throw new IllegalStateException("no RTI at " + new String('
            "body, 12, body[11] * 2, java.nio.charset.StandardCharsets.UTF_16BE));", source)
        assert count == 1, "the stand-in's connect looks otherwise than expected"
        self.jar_with(ADAPTER, changed)


def case(name, prepare=None, env=None, arguments=(), step=None, finding="", advice="", also=(),
         warnings=()):
    return dict(locals())


SPARE_ADAPTER = "package skerry.tarn1516e; public class RTIambassadorC2007 {}"
SPARE_NATIVES = "package skerry.tarn1516e; public class FederateAmbassadorC2007 {}"

SLEEPING = ("package skerry.tarn1516e; public class RTIambassadorC2007 { static volatile boolean on = "
            "true; static { while (on) java.util.concurrent.locks.LockSupport.park(); } }")

# A case without a step is one where a federate starts. `finding` and `advice` are the beginnings of
# what is to be said; `also` stands somewhere in the output, be it lines or JSON; `warnings` are all
# that there are, each a step and how it begins.
CASES = (
    case("an installation", also=("(the library lies in it)", "(Java ", ", below the home)",
                                  "{jar} (the stand-in for trials, not an RTI)\n",
                                  "options         none given",
                                  "class path      :", " (what is empty is the current directory)",
                                  '"library": "{version}", "vm": "', '", "jar": "{version}"')),
    case("everything from outside", Place.not_a_home,
         {"LD_LIBRARY_PATH": "{server}", "CLASSPATH": "{work}/classes.jar"},
         also=("home            none; ", "jar             {work}/classes.jar ")),
    case("options of both kinds",
         lambda p: p.option_file("# none\n-Xmx100m\n"),
         {"TARN1516_OPTION3": "-Da=b"},
         also=("options         -Da=b (TARN1516_OPTION3), -Xmx100m (tarn.vmoptions)",)),
    case("a class path to nowhere, with a name in no encoding", None,
         {"CLASSPATH": '/no/*:/no/\udcff"\\.jar'},
         warnings=(("class path", 'CLASSPATH leads nowhere: /no/*, /no/\ufffd"\\.jar'),)),
    case("a class that hides the jar's", lambda p: zipfile.ZipFile(p.jar).extract(CORE, p.work),
         also=("jar             {work}\n",),
         warnings=(("jar", "{work} has skerry.tarn1516e.RtiFactoryImpl, and hides the one of {jar}"),)),
    case("options that go astray", lambda p: p.option_file(" -Da=b\n-Dx=y\r\n"),
         {"TARN1516_OPTION1": "-XX:+UseG1GCC", "TARN1516_OPTION20": "-Da=b",
          "JAVA_TOOL_OPTIONS": "-Db=c", "_JAVA_OPTIONS": "-Dd=e"},
         warnings=(("options", "TARN1516_OPTION20 is not read"),
                   ("options", "' -Da=b' in tarn.vmoptions begins with a blank"),
                   ("options", "'-Dx=y\\r' in tarn.vmoptions ends in a carriage return"),
                   ("options", "JAVA_TOOL_OPTIONS is set, and the VM follows it too: -Db=c"),
                   ("options", "_JAVA_OPTIONS is set, and the VM follows it too: -Dd=e"),
                   ("VM", "the VM does not know the option '-XX:+UseG1GCC' in TARN1516_OPTION1"),
                   ("VM", "the VM does not know the option ' -Da=b' in tarn.vmoptions"))),
    case("another library on the path",
         lambda p: shutil.copytree(p.home / "lib" / p.to.toolchain, p.work, dirs_exist_ok=True),
         {"LD_LIBRARY_PATH": "{work}", "TARN1516E_HOME": "{home}"},
         warnings=(("library", "{work}/librti1516e.so.5 comes before {home}/lib/"),)),
    case("a link to no runtime, and a VM on the path", Place.jre_to_nowhere,
         {"LD_LIBRARY_PATH": "{server}"},
         warnings=(("VM", "{home}/jre is a link to /no/runtime, which is not there"),)),
    case("a VM on the library path", lambda p: p.without("jre"), {"LD_LIBRARY_PATH": "{server}"},
         also=(", on the library path)",)),
    case("all that was written", arguments=("--verbose",),
         also=("   > Locating core classes", "   | tarn1516e stand-in")),

    # No VM on any path.
    case("no VM", lambda p: p.without("jre"), step="VM",
         finding="no libjvm.so on the library path, and no {vm}",
         advice="link a Java runtime there (ln -sfn <runtime> {home}/jre)"),
    case("no VM and no home", Place.not_a_home, step="VM",
         finding="no libjvm.so on the library path, and no home to look in",
         advice="put the folder of libjvm.so on LD_LIBRARY_PATH, or set TARN1516E_HOME",
         also=("has a jre.\n   | Failed to find JVM on LD_LIBRARY_PATH",)),
    case("a link to no runtime", Place.jre_to_nowhere, step="VM",
         finding="no libjvm.so on the library path, and no {vm}; {home}/jre is a link to /no/runtime",
         advice="link a Java runtime there"),
    # A VM of another architecture.
    case("a VM for another processor", Place.of_another_machine, step="VM",
         finding="{vm} is for ", advice="use a Java runtime for "),
    case("one on the library path", lambda p: (p.of_another_machine(), os.remove(p.vm)),
         {"LD_LIBRARY_PATH": "{work}"}, step="VM", finding="{work}/libjvm.so is for "),
    case("a VM that is a text", lambda p: p.with_vm(b"no VM"), step="VM",
         finding="{vm} is no library of this platform", advice="put a whole Java runtime"),
    # A VM too old for the jar.
    case("a jar of a later version", Place.jar_of_a_later_version, step="classes",
         finding="the VM is too old for the jar's skerry.tarn1516e.RtiFactoryImpl",
         advice="use a Java runtime of version 256 or later."),
    # No jar.
    case("no jar", lambda p: p.without("lib/tarn1516e.jar"), step="jar",
         finding="no tarn1516e.jar at {jar} and none on CLASSPATH", advice="copy the RTI's"),
    case("a class path from an option", None, {"TARN1516_OPTION1": "-Djava.class.path={jar}",
          "_JAVA_OPTIONS": "-Da=b -Djava.class.path=/no"}, step="jar",
         finding="no tarn1516e.jar on the class path of '-Djava.class.path=/no' in _JAVA_OPTIONS",
         advice="take that option away",
         also=("class path      /no\n", '"CLASSPATH: (unknown)"\n   ],\n   "output"'),
         warnings=(("options", "_JAVA_OPTIONS is set"),
                   ("class path", "'-Djava.class.path=/no' in _JAVA_OPTIONS replaces the class"))),
    case("a jar that can't be read", lambda p: p.jar.chmod(0), step="jar",
         finding="{jar} can't be read", advice="let this user read it"),
    case("a home with a colon", lambda p: p.move_to("a:b"), step="jar",
         finding="Java does not find {jar}: the home's path holds a colon",
         advice="move the installation", warnings=(("home", "{home} holds a colon"),)),
    case("a home that Java can't read", lambda p: p.move_to("\xe9"), {"LC_ALL": "C"}, step="jar",
         finding="Java does not find {jar}: the home's path holds letters",
         advice="set LC_ALL to a locale", warnings=(("home", "{home} holds letters"),)),
    # A wrong jar.
    case("a jar that is a text", lambda p: p.jar.write_text("no jar"), step="jar",
         finding="{jar} is no jar", advice="put the RTI's own tarn1516e.jar in its place."),
    case("a jar of something else", lambda p: p.jar_without(CORE, ADAPTER, NATIVES), step="jar",
         finding="{jar} has no skerry.tarn1516e.RtiFactoryImpl", advice="put the RTI's own"),
    case("a jar of another version", lambda p: p.jar_with(ADAPTER, SPARE_ADAPTER), step="classes",
         finding="Cannot locate ", advice="use the tarn1516e.jar that belongs to this version"),
    case("natives of another version", lambda p: p.jar_with(NATIVES, SPARE_NATIVES),
         step="native methods", finding="Failed to register native functions.",
         advice="use the tarn1516e.jar that belongs to this version"),
    # A class missing.
    case("no adapter class", lambda p: p.jar_without(ADAPTER), step="classes",
         finding="skerry.tarn1516e.RTIambassadorC2007 is missing",
         advice="replace tarn1516e.jar by a complete one"),
    case("no adapter class on an option's class path", lambda p: p.jar_without(ADAPTER),
         {"TARN1516_OPTION1": "-Djava.class.path={jar}"}, step="classes",
         finding="skerry.tarn1516e.RTIambassadorC2007 is missing on the class path of '-Djava.",
         advice="take that option away",
         warnings=(("class path", "'-Djava.class.path={jar}' in TARN1516_OPTION1 replaces"),)),
    case("no class of natives", lambda p: p.jar_without(NATIVES), step="native methods",
         finding="skerry.tarn1516e.FederateAmbassadorC2007 is missing",
         advice="replace tarn1516e.jar by a complete one"),
    # A bad VM option.
    case("a bad option in a variable", None, {"TARN1516_OPTION2": "-Xmx1kk"}, step="VM",
         finding="it does not start: ",
         advice="mend or remove the VM option '-Xmx1kk' in TARN1516_OPTION2", also=("   | ",)),
    case("a bad option in the file",
         lambda p: p.option_file("-Xms9z\n"), step="VM",
         finding="it does not start: ",
         advice="mend or remove the VM option '-Xms9z' in tarn.vmoptions"),
    # An unreadable option file.
    case("an option file that is a folder", lambda p: (p.work / "tarn.vmoptions").mkdir(),
         step="options", finding="{work}/tarn.vmoptions is there and can't be read",
         advice="make it a file that this user may read"),
    case("an option file that leads nowhere",
         lambda p: (p.work / "tarn.vmoptions").symlink_to("nowhere"), step="options",
         finding="{work}/tarn.vmoptions is there and can't be read"),
    # A home without its marker.
    case("a home without its marker", lambda p: p.without("versioninfo.txt"), step="home",
         finding="{home} has jre, but no versioninfo.txt",
         advice="put the marker back: touch {home}/versioninfo.txt."),
    case("TARN1516E_HOME without the marker",
         lambda p: p.without("versioninfo.txt"), {"TARN1516E_HOME": "{work}"}, step="home",
         finding="TARN1516E_HOME is '{work}', where there is no versioninfo.txt",
         advice="set TARN1516E_HOME to the directory of an installation"),
    # A VM that the process had already.
    case("a VM before, without the jar", arguments=("--host-vm", "{work}"), step="classes",
         finding="the VM that was in the process before has no skerry.tarn1516e.RtiFactoryImpl",
         advice="put tarn1516e.jar on the class path with which the program starts its VM"),
    case("a VM before, with the jar", arguments=("--host-vm", "{jar}"),
         also=(", in the process before)", "class path      the one that the VM was started with")),
    # A Java constructor that throws.
    case("a constructor that throws", None,
         {"TARN1516_OPTION1": "-Dtarn.standin.constructor=throw:no license"}, step="ambassador",
         finding="the Java constructor threw: no license",
         advice="look into the RTI's own settings and start-up", also=("   | ",)),
    case("a connection that fails", Place.jar_that_does_not_connect,
         arguments=("--settings", "\xe9\u0142\u6e2f"), step="first connect",
         finding="RTIinternalError: java.lang.IllegalStateException: no RTI at \xe9\u0142\u6e2f",
         advice="see that the RTI runs"),
    # A VM that hangs.
    case("a start without an end", lambda p: p.jar_with(ADAPTER, SLEEPING),
         arguments=("--timeout", "1"), step="classes", finding="no answer within 1 s",
         advice="see by the threads' stacks below", also=("RTIambassadorC2007.<clinit>",)),
)

USAGE = (
    (("--help",), 0, "Usage: tarn1516e-check [options]"),
    (("-h",), 0, "Usage: tarn1516e-check [options]"),
    (("--version",), 0, "tarn1516e-check {version}\n"),
    (("--nonsense",), 2, "Try tarn1516e-check --help."),
    (("nonsense",), 2, "what is 'nonsense'?"),
    (("--timeout", "0"), 2, "The timeout is a number of seconds"),
    (("--settings",), 2, "Try tarn1516e-check --help."),
)


def expected_lines(one, names):
    """Beginnings of the lines from the first on, without the warnings."""
    lines = []
    for step in STEPS:
        if step == one["step"]:
            lines.append(f"{step:15} FAILED: {one['finding'].format(**names)}")
            lines.append(f"What to do: {one['advice'].format(**names)}")
            return lines
        lines.append(f"{step:15} ")
    return lines + [f"A federate starts here; warnings: {len(one['warnings'])}."
                    if one["warnings"] else "All is well: a federate starts here."]


def without_warnings(lines):
    """The other lines, and the warnings, each without what to do about it."""
    others, warnings, lines = [], [], iter(lines)
    for line in lines:
        if line[16:].startswith("WARNING: "):
            warnings.append(line)
            assert next(lines).startswith("What to do: "), line
        else:
            others.append(line)
    return others, warnings


def lines_of_json(text):
    """The findings as they would be told in lines."""
    kinds = {"found": "", "warning": "WARNING: ", "failed": "FAILED: "}
    for finding in json.loads(text)["findings"]:
        yield f"{finding['step']:15} {kinds[finding['result']]}{finding['finding']}"
        if finding["remedy"]:
            yield f"What to do: {finding['remedy']}"


def try_case(one, place, differences):
    if one["prepare"]:
        one["prepare"](place)
    names = place.names()
    env = {name: value.format(**names) for name, value in (one["env"] or {}).items()}
    # The super-user reads what no one may, unless these are taken away.
    plain = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if not os.geteuid() else ()
    command = (*plain, place.home / "bin/tarn1516e-check", *one["arguments"])
    output, as_json = (
        sdk.run(*(str(part).format(**names) for part in (*command, *more)), cwd=place.work, env=env,
                expect=1 if one["step"] else 0) for more in ((), ("--json",)))
    lines, warnings = without_warnings(output.splitlines())
    expected = expected_lines(one, names) + [
        f"{step:15} WARNING: {text.format(**names)}" for step, text in one["warnings"]]
    found = lines[:len(expected) - len(one["warnings"])] + warnings
    for number in range(max(len(expected), len(found))):
        line, beginning = ((texts[number:] or ["(no more)"])[0] for texts in (found, expected))
        differences.check(f"{one['name']}, line {number + 1}", line.startswith(beginning),
                          f"\n   expected: {beginning}\n   found:    {line}")
    for text in one["also"]:
        differences.check(one["name"], text.format(**names) in output + as_json,
                          f"no '{text.format(**names)}' in\n{output}")
    told = [line for line in output.splitlines()
            if line[:16].strip() in STEPS or line.startswith("What to do: ")]
    differences.check(f"{one['name']}, as JSON", told == list(lines_of_json(as_json)), as_json)
    differences.check(one["name"], not processes_in(place), "a process is left")


def processes_in(place):
    """Those that are still there after a while: a process ends a little behind the one that it serves."""
    for _ in range(20):
        left = sdk.run("find", "/proc", "-maxdepth", "2", "-lname", place.work, expect=None)
        if "/cwd\n" not in left:
            return ""
        time.sleep(0.1)
    return left


def kill_while_it_waits(place, differences):
    """The step that hangs has begun its line; the VM ends with the check."""
    place.jar_with(ADAPTER, SLEEPING)
    with subprocess.Popen(place.home / "bin/tarn1516e-check", cwd=place.work,
                          stdout=subprocess.PIPE, text=True) as check:
        lines = [check.stdout.readline() for _ in STEPS[:STEPS.index("classes")]]
        begun = check.stdout.read(16)
        differences.check("a line that has begun", check.poll() is None
                          and begun == f"{'classes':15} ", [*lines, begun])
        check.kill()
        check.stdout.read()
    differences.check("a check that is killed", not processes_in(place), "a process is left")


# What the library shows begins with a capital and has a blank in it.
SHOWN = re.compile(r'"([A-Z][^"%\\]* [^"%\\]+)')
SHOWN_IN = ("jvm/*", "gen/cpp/*", "bridge/*", "runtime/*", "api/*.*", "time/*", "encoding/*")


def look_up(to, differences):
    """Every text of the library stands in the document of failures."""
    document = (to.source / "docs/failures.md").read_text().replace("\n", " ")
    texts = {text for places in SHOWN_IN for path in to.source.glob(places) if path.is_file()
             for text in SHOWN.findall(re.sub("//.*", "", path.read_text()))}
    for text in sorted(texts - {"Tarn Evolved"}):
        differences.check("docs/failures.md lacks", text.strip(" '") in document, text)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    look_up(to, differences)
    with sdk.Scratch() as scratch:
        home = sdk.install_and_move(to, scratch)
        page = (home / "share/man/man1/tarn1516e-check.1").read_text().replace("\\", "")
        for option in re.findall("--[a-z-]+", sdk.run(home / "bin/tarn1516e-check", "--help")):
            differences.check("the manual page lacks", option in page, option)
        shutil.rmtree(home / "share")
        for number, one in enumerate(CASES):
            place = Place(to, home, scratch / str(number))
            try_case(one, place, differences)
            shutil.rmtree(scratch / str(number))
        kill_while_it_waits(Place(to, home, scratch / "killed"), differences)
        for arguments, status, text in USAGE:
            output = sdk.run(home / "bin/tarn1516e-check", *arguments, expect=status)
            differences.check(" ".join(arguments), text.format(version=to.version) in output, output)
    differences.finish()


if __name__ == "__main__":
    main()
