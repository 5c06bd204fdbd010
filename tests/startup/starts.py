"""Starts of a federate, each in a process with an installation, an environment and a directory of
its own: what comes out on both streams, to the byte.

   starts.py SETTINGS [JDK]

Without a JDK the VM is none, see tests/support/BareVm.h; with one, the classes are the stand-in's. Where
the steps of a start may be, see starter.cpp. All texts may name

   {scratch}  the start's folder. The federate lies in {scratch}/home/lib/x, beside the libraries,
              and starts in {scratch}/cwd
   {home}     the installation, as the library finds it from its own place
   {library}  the library, as it was loaded
   {VM}       where the library of an installation's VM lies
   {search}   the variable with the folders in which the system looks for libraries
   {vm0} {vm1} {vm2}      the VM that is none, with so many entry points
   {jdk} {jar} {classes}  what is built beside the tests; the folders of classes
   {at511} {at512}            a folder whose path has so many characters
"""

import difflib
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import sdk

# ---- What starts have in common ------------------------------------------------------------------

VM = "home/{VM}"
MARKER = {"home/versioninfo.txt": ""}
OTHER = {"other/versioninfo.txt": ""}
FAKE = {**MARKER, VM: "-> {vm2}"}
OTHER_FAKE = {**OTHER, "other/{VM}": "-> {vm2}"}
ON_PATH = {"path/{libjvm}": "-> {vm2}"}
JRE = {**MARKER, "home/jre": "-> {jdk}"}
JAVA = {**JRE, "home/lib/tarn1516e.jar": "-> {jar}"}

NO_VM = ("Failed to find JVM on LD_LIBRARY_PATH and unable to locate Tarn installation\n"
         "LD_LIBRARY_PATH: ")
NO_HOME_VM = "Failed to find JVM in Tarn installation\n"
REFUSED = "Cannot create JVM. Error: Invalid JVM arguments (-6)\n"
DETACHED = "Cannot attach to existing JVM. Error: JVM Detached (-2)\n"
NULL = "Cannot create RTIambassador object. Constructor returned NULL\n"

CHECKED = "JNI_GetCreatedJavaVMs 1\n"
ATTACHED = "AttachCurrentThread 0\n"
CONSTRUCTED = "NewByteArray 4\narray 0 0 0 0\n"


def created(*options):
    """The VM that is none is asked for a VM with these options behind those that are always there."""
    texts = ("-Djava.class.path=", "-DTarn.libraryName=rti1516", "", "", "", *options)
    return ("JNI_CreateJavaVM version 10002, ignoring what it does not know: 1\n"
            + "".join(f"[{text}]\n" for text in texts))


NO_OPTIONS = created("-Xss1024k")


def thrown(text):
    return f"RTIinternalError: {text}|\n"


def trace(*lines):
    return "".join(f"TARN1516E_TRACE_LOAD: {line}\n" for line in lines)


def lacking(which, vm="new", class_path="(unknown)"):
    return f"Tarn failed to load {which} classes in {vm} JVM.\nCLASSPATH: {class_path}"


def start(name, lay=(), env=(), steps="create", out="", err=""):
    """`lay` has names below {scratch} with contents, or "-> " and what they are links to."""
    return {"name": name, "lay": dict(lay), "env": dict(env), "steps": steps.split(), "out": out,
            "err": err}


def failing(name, text, lay=(), env=(), calls="", traced=""):
    """The federate sees an exception of the text that is on the standard error stream."""
    return start(name, lay, env, "create", calls + thrown(text), traced + text)


# ---- Without a VM --------------------------------------------------------------------------------

LONG = "p" * 3000

NO_VMS = [
    failing("nothing at all", NO_VM + "(unknown)"),
    start("after wide output", steps="wide create", out=thrown(NO_VM + "(unknown)"),
          err="wide\n" + NO_VM + "(unknown)"),
    failing("a path without a VM", NO_VM + "/nowhere:{scratch}/cwd",
            env={"LD_LIBRARY_PATH": "/nowhere:{scratch}/cwd"}),
    failing("an empty path", NO_VM, env={"LD_LIBRARY_PATH": ""}),
    failing("a path beyond ASCII", NO_VM + "/\xc3\xa9", env={"LD_LIBRARY_PATH": "/\xc3\xa9"}),
    failing("a text that is cut", (NO_VM + LONG)[:2047], env={"LD_LIBRARY_PATH": LONG}),
    failing("a VM, but no marker", NO_VM + "(unknown)", {VM: "-> {vm2}"}),
    failing("no marker where the variable says", NO_VM + "(unknown)", {"other/readme.txt": ""},
            {"TARN1516E_HOME": "{scratch}/other"}),
    failing("an empty variable", NO_VM + "(unknown)", env={"TARN1516E_HOME": ""}),
    failing("an installation without a VM", NO_HOME_VM, {**MARKER, "home/lib/server/x": ""}),
    failing("the variable's, without a VM", NO_HOME_VM, OTHER,
            {"TARN1516E_HOME": "{scratch}/other"}),
    failing("a VM that is a text", "Failed to dlopen JVM at '{home}{VM}', dlerror: {home}{VM}: "
            "file too short\n", {**MARKER, VM: "not a library\n"}),
    failing("a VM without entry points", "Failed to find JNI_GetCreatedJavaVMs, dlerror: "
            "{home}{VM}: undefined symbol: JNI_GetCreatedJavaVMs\n", {**MARKER, VM: "-> {vm0}"}),
    failing("a VM with one", "Failed to find JNI_CreateJavaVM, dlerror: {home}{VM}: "
            "undefined symbol: JNI_CreateJavaVM\n", {**MARKER, VM: "-> {vm1}"}),
]

# ---- A VM that refuses ---------------------------------------------------------------------------

STATUSES = {-1: "Unknown error (-1)", -2: "JVM Detached (-2)", -3: "JNI Version Error (-3)",
            -4: "Not enough JVM memory allocated (-4)", -5: "VM already created (-5)",
            -6: "Invalid JVM arguments (-6)", -7: "Unknown JVM error -7"}
REFUSALS = [
    failing(f"{env} {status}", f"{text}. Error: {meaning}\n", FAKE,
            {env: str(status), "VM_COUNT": count}, CHECKED + calls)
    for status, meaning in STATUSES.items() for env, count, text, calls in (
        ("VM_CHECK", "0", "Cannot check for existing JVM", ""),
        ("VM_CHECK", "1", "Cannot check for existing JVM", ""),
        ("VM_CREATE", "0", "Cannot create JVM", NO_OPTIONS),
        ("VM_ATTACH", "1", "Cannot attach to existing JVM", ATTACHED))]

# ---- What a VM is asked for ----------------------------------------------------------------------


def options(name, *texts, env=(), lay=(), file=None):
    """The texts stand behind the five that are always there; "-Xss1024k" ends them."""
    lay = {**FAKE, **dict(lay), **({} if file is None else {"cwd/tarn.vmoptions": file})}
    return failing(name, REFUSED, lay, {**dict(env), "VM_CREATE": "-6"}, CHECKED + created(*texts))


def first(row, class_path, *switches):
    """With another class path, and other switches, than usual."""
    row["out"] = row["out"].replace("class.path=", "class.path=" + class_path)
    if switches:
        row["out"] = row["out"].replace("[]\n[]\n[]\n", "[%s]\n[%s]\n[%s]\n" % switches)
    return row


def numbered(count, text="-Dline={}"):
    return [text.format(i) for i in range(1, count + 1)]


JAR = {"home/lib/tarn1516e.jar": ""}
VARIABLES = {f"TARN1516_OPTION{i}": f"-Dvariable={i}" for i in range(20, 0, -1)}
OPTIONS = [
    options("nothing", "-Xss1024k"),
    options("variables by number, with gaps, as they stand", "one", "two", "", "# -Da b ", "ten",
            "last", "-Xss1024k", env={"TARN1516_OPTION" + number: text for number, text in (
                ("20", "never"), ("19", "last"), ("10", "ten"), ("9", "# -Da b "), ("3", ""),
                ("2", "two"), ("1", "one"), ("0", "never"), ("", "never"), ("01", "never"))}),
    options("variables, then the file as it stands", "variable", "-Da", " #-Xmx1g", "-Db#c", "  ",
            "\t-Dc ", "-Dd\r", "\r", " -Xss2m", "-xss1m", "-Xs", "-De", "-Xss1024k",
            env={"TARN1516_OPTION19": "variable"},
            file="#-Xmx1g\n-Da\n#\n #-Xmx1g\n-Db#c\n\n  \n\t-Dc \n\n\n-Dd\r\n\r\n -Xss2m\n-xss1m\n"
                 "-Xs\n-De"),
    options("a comment at the end of the file", "-Da", "-Xss1024k", file="-Da\n#-Xss2m"),
    options("an empty file", "-Xss1024k", file=""),
    options("files elsewhere", "-Xss1024k",
            lay={"home/tarn.vmoptions": "-Da\n", "home/lib/x/tarn.vmoptions": "-Db\n"}),
    options("a variable's stack size", "-Xss2m", env={"TARN1516_OPTION7": "-Xss2m"}),
    options("the file's", "-Da", "-Xss512k", "-Db", file="-Da\n-Xss512k\n-Db\n"),
    options("one that is none", "-Xssfoo\r", file="-Xssfoo\r\n"),
    *(options(f"{lines} lines", *numbered(min(lines, 45)), "-Xss1024k",
              file="\n".join(numbered(lines) + [""])) for lines in (44, 45, 46, 60)),
    options("a stack size beyond the last entry",
            *numbered(19, "-Dvariable={}"), *numbered(26), "-Xss1024k", env=VARIABLES,
            file="\n".join(numbered(26) + ["-Xss9m"])),
    first(options("switches and class path", "-Xss1024k", lay=JAR, env={
        "CLASSPATH": "a.jar:b", "TARN_ENABLEBUNDLING": "", "TARN_SINGLETHREAD": "false",
        "TARN_VERBOSEJNI": "1"}), "a.jar:b:{home}lib/tarn1516e.jar", "-DenableBundling=true",
          "-Dsinglethread=true", "-verbose:jni"),
    first(options("one switch", "-Xss1024k", env={"TARN_VERBOSEJNI": ""}), "", "", "",
          "-verbose:jni"),
    first(options("a jar and no class path", "-Xss1024k", lay=JAR), ":{home}lib/tarn1516e.jar"),
    first(options("a jar and an empty one", "-Xss1024k", lay=JAR, env={"CLASSPATH": ""}),
          ":{home}lib/tarn1516e.jar"),
    first(options("a class path and no jar", "-Xss1024k", env={"CLASSPATH": "a.jar:b"}), "a.jar:b"),
    first(failing("a jar below the directory, without a home", REFUSED,
                  {**ON_PATH, "cwd/lib/tarn1516e.jar": ""},
                  {"VM_CREATE": "-6", "{search}": "{scratch}/path"}, CHECKED + NO_OPTIONS),
          ":lib/tarn1516e.jar"),
]

# ---- Starting over, starting once, and what follows the VM ---------------------------------------


def behind(name, calls, text, err, env):
    return start(name, FAKE, {**env, "VM_COUNT": "1"}, "create",
                 CHECKED + 2 * ATTACHED + calls + thrown(text), err)


NO_CORE = lacking("core")
ADAPTER = lacking("adapter", "existing", "a.jar:b")
STARTS = [
    # With this class missing, start-up has ended and all that follows fails.
    start("a VM that agrees later", FAKE, {"VM_CREATE": "-6", "VM_LACKS": "Factory"},
          "create set TARN1516_OPTION1=-Da set VM_CREATE=0 create create",
          CHECKED + NO_OPTIONS + thrown(REFUSED) + CHECKED + created("-Da", "-Xss1024k")
          + 2 * (ATTACHED + thrown(NO_CORE)), REFUSED + 2 * NO_CORE),
    start("an installation that is named later", OTHER_FAKE, {"VM_LACKS": "Factory"},
          "create set TARN1516E_HOME={scratch}/other create",
          thrown(NO_VM + "(unknown)") + CHECKED + NO_OPTIONS + ATTACHED + thrown(NO_CORE),
          NO_VM + "(unknown)" + NO_CORE),
    # The loader has read the variable when the process began.
    start("a path that is set too late", ON_PATH, {}, "create set {search}={scratch}/path create",
          thrown(NO_VM + "(unknown)") + thrown(NO_VM + "{scratch}/path"),
          NO_VM + "(unknown)" + NO_VM + "{scratch}/path"),
    start("a directory with an option file", {**FAKE, "there/tarn.vmoptions": "-Da\n"},
          {"VM_CREATE": "-6", "VM_LACKS": "Factory"},
          "create go {scratch}/there set VM_CREATE=0 create",
          CHECKED + NO_OPTIONS + thrown(REFUSED) + CHECKED + created("-Da", "-Xss1024k") + ATTACHED
          + thrown(NO_CORE), REFUSED + NO_CORE),
    start("a VM that is joined later", FAKE,
          {"VM_COUNT": "1", "VM_ATTACH": "-2", "VM_LACKS": "Factory"},
          "create set VM_ATTACH=0 create",
          CHECKED + ATTACHED + thrown(DETACHED)
          + CHECKED + 2 * ATTACHED + thrown(lacking("core", "existing")),
          DETACHED + lacking("core", "existing")),
    start("two threads", FAKE, {"VM_LACKS": "Factory"}, "threads",
          CHECKED + NO_OPTIONS + 2 * ATTACHED + 2 * thrown(NO_CORE), 2 * NO_CORE),
    behind("no core class", "", lacking("core", "existing"), lacking("core", "existing"),
           {"VM_LACKS": "RtiFactoryImpl"}),
    behind("no adapter class", "", ADAPTER, ADAPTER,
           {"VM_LACKS": "RTIambassadorC2007", "CLASSPATH": "a.jar:b"}),
    behind("neither", "", lacking("core", "existing", ""), lacking("core", "existing", ""),
           {"VM_LACKS": "skerry", "CLASSPATH": ""}),
    behind("a class path beyond ASCII", "", lacking("core", "existing", "/\xc3\xa9"),
           lacking("core", "existing", "/\xc3\xa9"),
           {"VM_LACKS": "skerry", "CLASSPATH": "/\xc3\xa9"}),
    behind("no object", "RegisterNatives 60\n" + CONSTRUCTED, NULL, NULL, {}),
    behind("no class of the natives", CONSTRUCTED, NULL,
           "The file tarn1516e.jar can not be found in the CLASSPATH.\n" + NULL,
           {"VM_LACKS": "FederateAmbassadorC2007"}),
    behind("natives refused", "RegisterNatives 60\n" + CONSTRUCTED, NULL,
           "Failed to register native functions.\n" + NULL, {"VM_REGISTER": "-1"}),
    behind("an exception of no known class", "RegisterNatives 60\n" + CONSTRUCTED,
           "Cannot create RTIambassador object", "", {"VM_THROWS": ""}),
]

# ---- The trace -----------------------------------------------------------------------------------

ON = {"TARN1516E_TRACE_LOAD": ""}
PLACE = trace("Starting tarn1516e library", "Current directory '{scratch}/cwd'",
              "Loaded tarn1516e library from '{library}'")
NO_HOME = "Tarn home not found. Will use PATH/CLASSPATH"
FOUND = PLACE + trace("Tarn home found at  '{home}'")
AVAILABLE = trace("JVM was available on library path")


def using(home):
    return trace(f"Looking for JVM at '{home}{{VM}}'", f"Found JVM at '{home}{{VM}}'",
                 f"Using bundled JVM in '{home}{{VM}}'")


def vms(status="OK", count=0):
    # The line has a line end of its own, and so an empty line behind it.
    return trace("Checking for existing JVM", f"getCreatedJavaVMs: {status} nVMcount = {count}\n")


def at_other(home):
    return PLACE + trace(f"Tarn home found at  '{home}'") + using(home) + UNKNOWN


UNKNOWN = vms("Unknown error (-1)")
NO_CHECK = "Cannot check for existing JVM. Error: Unknown error (-1)\n"
NO_CHECK_ON = {**ON, "VM_CHECK": "-1"}
NO_JAR = trace("No Tarn java libs found in '{home}lib/tarn1516e.jar'",
               "Setting classpath to '-Djava.class.path='")
CREATING = FOUND + using("{home}") + vms() + NO_JAR + trace("Attempting to create new JVM")
ATTACHING = FOUND + using("{home}") + vms(count=1) + trace("Attempting to attach to existing JVM")
CORE = trace("Locating core classes")
NO_OBJECT = "The file tarn1516e.jar can not be found in the CLASSPATH.\n" + NULL
TRACES = [
    failing("traced: nothing", NO_VM + "(unknown)", {}, ON,
            traced=PLACE + trace(NO_HOME, NO_VM + "(unknown)")),
    failing("traced: a home without a VM", NO_HOME_VM, MARKER, {"TARN1516E_TRACE_LOAD": "1"},
            traced=FOUND + trace("Looking for JVM at '{home}{VM}'")),
    failing("traced: a home with a VM", NO_CHECK, FAKE, NO_CHECK_ON, CHECKED,
            FOUND + using("{home}") + UNKNOWN),
    failing("traced: the variable's home", NO_CHECK, {**OTHER_FAKE, VM: "-> {vm2}"},
            {**NO_CHECK_ON, "TARN1516E_HOME": "{scratch}/other"}, CHECKED,
            at_other("{scratch}/other/")),
    failing("traced: the variable's home, its slash doubled", NO_CHECK, OTHER_FAKE,
            {**NO_CHECK_ON, "TARN1516E_HOME": "{scratch}/other/"}, CHECKED,
            at_other("{scratch}/other//")),
    failing("traced: the library's home before the variable's", NO_CHECK, {**FAKE, **OTHER_FAKE},
            {**NO_CHECK_ON, "TARN1516E_HOME": "{scratch}/other"}, CHECKED,
            FOUND + using("{home}") + UNKNOWN),
    failing("traced: a library that is found by a relative path", NO_CHECK, FAKE,
            {**NO_CHECK_ON, "{search}": "../home/lib/x"}, CHECKED,
            (FOUND + using("{home}") + UNKNOWN).replace("{home}", "../home/lib/x/../../").replace(
                "{library}", "../home/lib/x/{library-name}")),
    failing("traced: a VM on the path before the home's", NO_CHECK,
            {**MARKER, VM: "not a library\n", **ON_PATH},
            {**NO_CHECK_ON, "{search}": "{scratch}/path"}, CHECKED, FOUND + AVAILABLE + UNKNOWN),
    failing("traced: a VM on the path and no home", NO_CHECK, ON_PATH,
            {**NO_CHECK_ON, "{search}": "{scratch}/path"}, CHECKED,
            PLACE + trace(NO_HOME) + AVAILABLE + UNKNOWN),
    start("traced: a long path to the directory", {}, ON, "go {at511} create go {at512} create",
          2 * thrown(NO_VM + "(unknown)"),
          "".join(PLACE.replace("{scratch}/cwd", path) + trace(NO_HOME, NO_VM + "(unknown)")
                  + NO_VM + "(unknown)"
                  for path in ("{at511}", "<error retrieving current directory>"))),
    failing("traced: a VM that is not created", REFUSED, FAKE, {**ON, "VM_CREATE": "-6"},
            CHECKED + NO_OPTIONS, CREATING),
    failing("traced: a new VM without the core class", NO_CORE, FAKE,
            {**ON, "VM_LACKS": "Factory"}, CHECKED + NO_OPTIONS + ATTACHED,
            CREATING + trace("Created new JVM") + CORE
            + trace("Failed to locate core classes", NO_CORE)),
    failing("traced: a VM that cannot be joined",
            DETACHED, FAKE,
            {**ON, "VM_COUNT": "1", "VM_ATTACH": "-2"}, CHECKED + ATTACHED,
            ATTACHING + trace("AttachCurrentThread return value: JVM Detached (-2)")),
    failing("traced: a VM that is joined, after a status above 0, without the adapter class",
            ADAPTER, FAKE,
            {**ON, "VM_CHECK": "7", "VM_COUNT": "3", "VM_LACKS": "RTIambassador",
             "CLASSPATH": "a.jar:b"}, CHECKED + 2 * ATTACHED,
            ATTACHING.replace("OK nVMcount = 1", "Unknown JVM error 7 nVMcount = 3")
            + trace("AttachCurrentThread return value: OK", "Attached to existing JVM") + CORE
            + trace("Locating adapter classes", "Failed to locate adapter classes", ADAPTER)),
    # One flag is read when the VM is looked for, the other one with each ambassador.
    start("traced: switched on and off", FAKE,
          {"VM_COUNT": "1", "VM_LACKS": "FederateAmbassador"},
          "create set TARN1516E_TRACE_LOAD= create unset TARN1516E_TRACE_LOAD create",
          CHECKED + ATTACHED + 3 * (ATTACHED + CONSTRUCTED + thrown(NULL)),
          NO_OBJECT + CORE + trace("Locating adapter classes") + 2 * NO_OBJECT),
]

# ---- A real VM -----------------------------------------------------------------------------------


def variables(*texts):
    return {f"TARN1516_OPTION{number}": text for number, text in enumerate(texts, 1)}


# The second and third only make the VM start sooner.
QUIET = ("-Dtarn.standin.quiet", "-XX:TieredStopAtLevel=1", "-XX:+UseSerialGC")
WATCHED = (*QUIET, "-Xcheck:jni")  # warnings are seen


def not_found(name):
    """What the VM writes of a class that it does not find."""
    return ('Exception in thread "main" java.lang.NoClassDefFoundError: skerry/tarn1516e/' + name
            + "\nCaused by: java.lang.ClassNotFoundException: skerry.tarn1516e." + name + "\n")


def not_loaded(name, which, class_path):
    text = lacking(which, class_path=class_path)
    return {"out": thrown(text), "err": not_found(name) + text}


def joining(name, steps, out, err="", lay=(), env=()):
    """The VM that is there is taken as it is: no option of the library's reaches it."""
    return start(name, {**JAVA, **dict(lay)}, env,
                 "vm {jdk}/lib/server/{libjvm} -Xcheck:jni -XX:+UseSerialGC " + steps,
                 "VM before: 0\n" + out, err)


UNFIT = "Cannot locate constructor for Java class skerry.tarn1516e.RTIambassadorC2007"
UNKNOWN_NATIVE = (
    'Exception in thread "main" java.lang.NoSuchMethodError: Method '
    "skerry.tarn1516e.FederateAmbassadorC2007.requestRetraction_MRH_Native([B)V not found\n")
THROW = "-Dtarn.standin.constructor=throw"
RAISED = 'Exception in thread "main" java.lang.IllegalStateException'
IGNORED = {**variables(THROW), "CLASSPATH": "{jar}"}
IGNORED_FILE = {"cwd/tarn.vmoptions": THROW + "\n"}
WITH_CLASSES = "-Dtarn.standin.quiet -Djava.class.path={jar} then "
JAVAS = [
    start("no variable at all", JAVA, {}, "create create", "created\ncreated\n",
          "tarn1516e stand-in: not an RTI, for trials and tests only\n"),
    start("names without a VM", {}, {}, "names", "Tarn Evolved 5.5.10\n"),
    start("two threads", JAVA, variables(*WATCHED), "threads create", 3 * "created\n"),
    start("the jar by the class path", JRE, {**variables(*WATCHED), "CLASSPATH": "{jar}"}, "create",
          "created\n"),
    start("an installation that is named later",
          {**OTHER, "other/jre": "-> {jdk}", "other/lib/tarn1516e.jar": "-> {jar}"},
          variables(*WATCHED), "create set TARN1516E_HOME={scratch}/other create",
          thrown(NO_VM + "(unknown)") + "created\n", NO_VM + "(unknown)"),
    # The VM then starts with the next call, but has lost the class path.
    start("an option that the VM refuses", JAVA, variables("-Xmxfoo", *WATCHED),
          "create unset TARN1516_OPTION1 create", thrown(REFUSED) + thrown(NO_CORE),
          "Invalid maximum heap size: -Xmxfoo\n" + REFUSED + not_found("RtiFactoryImpl") + NO_CORE),
    start("traced to its end", JAVA, {**variables(*WATCHED), **ON}, "create create",
          "created\ncreated\n",
          FOUND + using("{home}") + vms() + trace(
              "Tarn java libs found in '{home}lib/tarn1516e.jar'",
              "Setting classpath to '-Djava.class.path=:{home}lib/tarn1516e.jar'",
              "Attempting to create new JVM", "Created new JVM",
              *2 * ("Locating core classes", "Locating adapter classes"))),
    start("no jar, and one that is named too late", JRE, variables(*WATCHED),
          "create set CLASSPATH={jar} create",
          "".join(thrown(lacking("core", class_path=path)) for path in ("(unknown)", "{jar}")),
          "".join(not_found("RtiFactoryImpl") + lacking("core", class_path=path)
                  for path in ("(unknown)", "{jar}"))),
    start("no core class, but the adapter's", JRE,
          {**variables(*WATCHED), "CLASSPATH": "{classes}/unfit:b"}, "create",
          **not_loaded("RtiFactoryImpl", "core", "{classes}/unfit:b")),
    start("no adapter class", JRE, {**variables(*WATCHED), "CLASSPATH": "{classes}/core"}, "create",
          **not_loaded("RTIambassadorC2007", "adapter", "{classes}/core")),
    start("no such constructor", JAVA, {**variables(*WATCHED), "CLASSPATH": "{classes}/unfit"},
          "create create", 2 * thrown(UNFIT), 2 * UNFIT),
    start("a constructor that throws", JAVA, variables(*WATCHED, THROW + ":no licence"),
          "create create", 2 * thrown("no licence"), 2 * (RAISED + ": no licence\n")),
    start("one that throws without a text", JAVA, variables(*WATCHED, THROW), "create",
          thrown("java.lang.IllegalStateException"), RAISED + "\n"),
    start("a native that Java does not know", JAVA,
          {**variables(*WATCHED), "CLASSPATH": "{classes}/unfit-natives"}, "create", "created\n",
          "Failed to register native functions.\n" + UNKNOWN_NATIVE),
    joining("a VM with the classes", WITH_CLASSES + "create", "created\n", "",
            IGNORED_FILE, IGNORED),
    joining("a VM without the classes", "then create", thrown(lacking("core", "existing", "{jar}")),
            not_found("RtiFactoryImpl") + lacking("core", "existing", "{jar}"),
            IGNORED_FILE, IGNORED),
    joining("a VM that two threads join", WITH_CLASSES + "threads", "created\ncreated\n"),
    joining("a VM that is joined, traced", WITH_CLASSES + "create", "created\n",
            FOUND + AVAILABLE + vms(count=1) + trace(
                "Attempting to attach to existing JVM", "AttachCurrentThread return value: OK",
                "Attached to existing JVM", "Locating core classes", "Locating adapter classes"),
            env=ON),
]

# ---- Running them --------------------------------------------------------------------------------


def names(to, scratch, jdk):
    """What the texts may name."""
    def folder_of(length):
        path = f"{scratch}/{'a' * 200}/{'b' * 200}/"
        return path + "c" * (length - len(path))

    return {"scratch": str(scratch), "home": f"{scratch}/home/lib/x/../../", "jdk": jdk,
            "library": f"{scratch}/home/lib/x/{to.rti1516e.name}", "library-name": to.rti1516e.name,
            "libjvm": to.libjvm, "VM": f"jre/lib/server/{to.libjvm}", "search": to.search,
            "jar": to.jar, "classes": to.classes, "vm0": to.vm0, "vm1": to.vm1, "vm2": to.vm2,
            "at511": folder_of(511), "at512": folder_of(512)}


def lay(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    if content.startswith("-> "):
        path.symlink_to(content[3:])
    else:
        path.write_bytes(content.encode())


def run(to, row, jdk):
    """What differs in the whole of both streams."""
    with sdk.Scratch() as scratch:
        known = names(to, scratch, jdk)
        for folder in (scratch / "home/lib/x", scratch / "cwd", known["at511"], known["at512"]):
            Path(folder).mkdir(parents=True)
        for file in (to.rti1516e, to.fedtime):
            (scratch / "home/lib/x" / file.name).symlink_to(file)
        # A copy: the system takes a link's target for the place of a program. It is made by another
        # process, since one that this forks meanwhile would hold the file open for writing.
        starter = scratch / "home/lib/x" / to.starter.name
        subprocess.run(["cp", to.starter, starter], check=True)
        for name, content in row["lay"].items():
            lay(scratch / name.format_map(known), content.format_map(known))
        environment = {name.format_map(known): value.format_map(known).encode("latin-1")
                       for name, value in row["env"].items()}
        environment.update((name, value) for name, value in os.environ.items()
                           if "SAN_OPTIONS" in name)
        if not jdk:
            environment.update(VM_TELLS="", VM_NULL="")  # for the VM that is none
        done = subprocess.run([starter, *(step.format_map(known) for step in row["steps"])],
                              env=environment, cwd=scratch / "cwd", timeout=120, check=False,
                              stdin=subprocess.DEVNULL, capture_output=True)
    # The VM writes the frames of a stack in its own way.
    frames = re.compile(r"^\t(at |\.\.\. ).*\n", re.MULTILINE)
    found = {"out": done.stdout.decode("latin-1"),
             "err": frames.sub("", done.stderr.decode("latin-1")),
             "end": str(done.returncode)}
    wanted = {"out": row["out"], "err": row["err"], "end": "0"}
    return "".join(line for stream in found for line in difflib.unified_diff(
        wanted[stream].format_map(known).splitlines(True), found[stream].splitlines(True),
        f"{row['name']}: expected {stream}", f"{row['name']}: found {stream}"))


def main():
    to = sdk.settings()
    jdk = sys.argv[2] if len(sys.argv) > 2 else ""
    rows = JAVAS if jdk else NO_VMS + REFUSALS + OPTIONS + STARTS + TRACES
    different = 0
    with ThreadPoolExecutor(4) as pool:
        for lines in pool.map(lambda row: run(to, row, jdk), rows):
            different += bool(lines)
            print(lines, end="")
    print(f"{len(rows)} starts, {different} differ")
    sys.exit(1 if different or not rows else 0)


if __name__ == "__main__":
    main()
