// Starts of a real VM, with the classes of the stand-in, without some, or with unfit ones.
#include "tests/startup/Trial.h"

#include <gtest/gtest.h>

namespace {

typedef std::vector<Trial> Trials;
typedef std::vector<std::string> Texts;

Trial::File const JRE = {"home/jre", "-> {jdk}"};
Trial::File const JAR = {"home/lib/tarn1516e.jar", "-> {jar}"};

Texts operator+(Texts texts, Texts const& more)
{
   texts.insert(texts.end(), more.begin(), more.end());
   return texts;
}

// The last two only make the VM start sooner.
Texts const QUIET = {"TARN1516_OPTION1=-Dtarn.standin.quiet",
      "TARN1516_OPTION3=-XX:TieredStopAtLevel=1", "TARN1516_OPTION4=-XX:+UseSerialGC"};
Texts const CHECKED = QUIET + Texts{"TARN1516_OPTION2=-Xcheck:jni"}; // warnings are seen

std::string thrown(std::string const& text)
{
   return "RTIinternalError: " + text + "|\n";
}

std::string lacking(std::string const& which, std::string const& vm, std::string const& classPath)
{
   return "Tarn failed to load " + which + " classes in " + vm + " JVM.\nCLASSPATH: " + classPath;
}

// What the VM writes of a class that it does not find.
std::string notFound(std::string const& name)
{
   return "Exception in thread \"main\" java.lang.NoClassDefFoundError: skerry/tarn1516e/" + name
         + "\nCaused by: java.lang.ClassNotFoundException: skerry.tarn1516e." + name + "\n";
}

TEST(Java, StartsFromAnInstallation)
{
   run(Trials{
         {"no variable at all", {MARKER, JRE, JAR}, {}, {"create", "create"}, "created\ncreated\n",
               "tarn1516e stand-in: not an RTI, for trials and tests only\n"},
         {"names without a VM", {}, {}, {"names"}, "Tarn Evolved 5.5.10\n", ""},
         {"two threads", {MARKER, JRE, JAR}, CHECKED, {"threads", "create"},
               "created\ncreated\ncreated\n", ""},
         {"the jar by the class path", {MARKER, JRE}, CHECKED + Texts{"CLASSPATH={jar}"},
               {"create"}, "created\n", ""},
         {"an installation that is named later",
               {{"other/versioninfo.txt", ""}, {"other/jre", "-> {jdk}"},
                     {"other/lib/tarn1516e.jar", "-> {jar}"}},
               CHECKED, {"create", "set", "TARN1516E_HOME={scratch}/other", "create"},
               thrown("Failed to find JVM on LD_LIBRARY_PATH and unable to locate Tarn "
                      "installation\nLD_LIBRARY_PATH: (unknown)")
                     + "created\n",
               "Failed to find JVM on LD_LIBRARY_PATH and unable to locate Tarn installation\n"
               "LD_LIBRARY_PATH: (unknown)"},
         {"an option that the VM refuses", {MARKER, JRE, JAR},
               CHECKED + Texts{"TARN1516_OPTION5=-Xmxfoo"}, {"create"},
               thrown("Cannot create JVM. Error: Invalid JVM arguments (-6)\n"),
               "Invalid maximum heap size: -Xmxfoo\n"
               "Cannot create JVM. Error: Invalid JVM arguments (-6)\n"},
   });
}

TEST(Java, IsTracedToItsEnd)
{
   std::string const classes =
         TRACE + "Locating core classes\n" + TRACE + "Locating adapter classes\n";
   run(Trial{"a start that ends well", {MARKER, JRE, JAR}, CHECKED + Texts{"TARN1516E_TRACE_LOAD="},
         {"create", "create"}, "created\ncreated\n",
         TRACED_PLACE + TRACE + "Tarn home found at  '{home}'\n"                               //
               + TRACE + "Looking for JVM at '{home}" + VM_BELOW + "'\n"                       //
               + TRACE + "Found JVM at '{home}" + VM_BELOW + "'\n"                             //
               + TRACE + "Using bundled JVM in '{home}" + VM_BELOW + "'\n"                     //
               + TRACE + "Checking for existing JVM\n"                                         //
               + TRACE + "getCreatedJavaVMs: OK nVMcount = 0\n\n"                              //
               + TRACE + "Tarn java libs found in '{home}lib/tarn1516e.jar'\n"                 //
               + TRACE + "Setting classpath to '-Djava.class.path=:{home}lib/tarn1516e.jar'\n" //
               + TRACE + "Attempting to create new JVM\n"                                      //
               + TRACE + "Created new JVM\n" + classes + classes});
}

TEST(Java, TellsOfMissingClasses)
{
   run(Trials{
         {"no jar", {MARKER, JRE}, CHECKED, {"create", "create"},
               thrown(lacking("core", "new", "(unknown)"))
                     + thrown(lacking("core", "new", "(unknown)")),
               notFound("RtiFactoryImpl") + lacking("core", "new", "(unknown)")
                     + notFound("RtiFactoryImpl") + lacking("core", "new", "(unknown)")},
         {"no core class, but the adapter's", {MARKER, JRE},
               CHECKED + Texts{"CLASSPATH={classes}/unfit:b"}, {"create"},
               thrown(lacking("core", "new", "{classes}/unfit:b")),
               notFound("RtiFactoryImpl") + lacking("core", "new", "{classes}/unfit:b")},
         {"no adapter class", {MARKER, JRE}, CHECKED + Texts{"CLASSPATH={classes}/core"},
               {"create"}, thrown(lacking("adapter", "new", "{classes}/core")),
               notFound("RTIambassadorC2007") + lacking("adapter", "new", "{classes}/core")},
   });
}

TEST(Java, TellsOfAnUnfitConstructor)
{
   std::string const missing =
         "Cannot locate constructor for Java class skerry.tarn1516e.RTIambassadorC2007";
   std::string const exception = "Exception in thread \"main\" java.lang.IllegalStateException";
   std::string const property = "TARN1516_OPTION5=-Dtarn.standin.constructor=throw";
   // The text of an exception is taken without a look whether that raised another one, of which
   // the VM would warn.
   run(Trials{
         {"no such signature", {MARKER, JRE, JAR}, CHECKED + Texts{"CLASSPATH={classes}/unfit"},
               {"create"}, thrown(missing), missing},
         {"one that throws", {MARKER, JRE, JAR}, QUIET + Texts{property + ":no licence"},
               {"create", "create"}, thrown("no licence") + thrown("no licence"),
               exception + ": no licence\n" + exception + ": no licence\n"},
         {"one that throws without a text", {MARKER, JRE, JAR}, QUIET + Texts{property}, {"create"},
               thrown("java.lang.IllegalStateException"), exception + "\n"},
   });
}

// The VM that is there is taken as it is: no option of the library's reaches it.
TEST(Java, JoinsAVmThatIsThere)
{
   Texts const vm = {"vm", "{jdk}/lib/server/{libjvm}", "-Xcheck:jni", "-XX:+UseSerialGC"};
   Texts const quiet = {"-Dtarn.standin.quiet"};
   Texts const ignored = {"TARN1516_OPTION1=-Dtarn.standin.constructor=throw", "CLASSPATH={jar}"};
   std::string const traced = TRACED_PLACE + TRACE + "Tarn home found at  '{home}'\n" //
         + TRACE + "JVM was available on library path\n"                              //
         + TRACE + "Checking for existing JVM\n"                                      //
         + TRACE + "getCreatedJavaVMs: OK nVMcount = 1\n\n"                           //
         + TRACE + "Attempting to attach to existing JVM\n"                           //
         + TRACE + "AttachCurrentThread return value: OK\n"                           //
         + TRACE + "Attached to existing JVM\n"                                       //
         + TRACE + "Locating core classes\n" + TRACE + "Locating adapter classes\n";
   Trial::File const options = {"work/tarn.vmoptions", "-Dtarn.standin.constructor=throw\n"};
   run(Trials{
         {"one with the classes", {MARKER, JRE, JAR, options}, ignored,
               vm + quiet + Texts{"-Djava.class.path={jar}", "then", "create"},
               "VM before: 0\ncreated\n", ""},
         {"one without", {MARKER, JRE, JAR, options}, ignored, vm + Texts{"then", "create"},
               "VM before: 0\n" + thrown(lacking("core", "existing", "{jar}")),
               notFound("RtiFactoryImpl") + lacking("core", "existing", "{jar}")},
         {"traced", {MARKER, JRE, JAR}, {"TARN1516E_TRACE_LOAD=1"},
               vm + quiet + Texts{"-Djava.class.path={jar}", "then", "create"},
               "VM before: 0\ncreated\n", traced},
         {"two threads", {MARKER, JRE, JAR}, {},
               vm + quiet + Texts{"-Djava.class.path={jar}", "then", "threads"},
               "VM before: 0\ncreated\ncreated\n", ""},
   });
}

} // namespace
