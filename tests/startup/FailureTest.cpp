// Starts that fail before there is a VM with Java in it, and what the VM is asked for.
#include "tests/startup/Trial.h"

#include <gtest/gtest.h>

namespace {

typedef std::vector<Trial> Trials;

// The federate sees an exception of the text that is on the standard error stream.
Trial failing(std::string const& name, std::vector<Trial::File> const& files,
      std::vector<std::string> const& environment, std::string const& text)
{
   return {name, files, environment, {"create"}, "RTIinternalError: " + text + "|\n", text};
}

std::string const NO_VM = "Failed to find JVM on LD_LIBRARY_PATH and unable to locate Tarn "
                          "installation\nLD_LIBRARY_PATH: ";
std::string const HOME_VM = "home/" + VM_BELOW;

TEST(Failure, NoVm)
{
   run(Trials{
         failing("nothing at all", {}, {}, NO_VM + "(unknown)"),
         failing("a path without a VM", {}, {"LD_LIBRARY_PATH=/nowhere:{scratch}/work"},
               NO_VM + "/nowhere:{scratch}/work"),
         failing("an empty path", {}, {"LD_LIBRARY_PATH="}, NO_VM),
         failing("a path beyond ASCII", {}, {"LD_LIBRARY_PATH=/\xc3\xa9"}, NO_VM + "/\xc3\xa9"),
         failing("a VM, but no marker", {FAKE_VM}, {}, NO_VM + "(unknown)"),
         failing("no marker where the variable says", {{"other/readme.txt", ""}},
               {"TARN1516E_HOME={scratch}/other"}, NO_VM + "(unknown)"),
         failing("an empty variable", {}, {"TARN1516E_HOME="}, NO_VM + "(unknown)"),
         failing("an installation without a VM", {MARKER}, {},
               "Failed to find JVM in Tarn installation\n"),
         failing("one of the variable's without a VM", {{"other/versioninfo.txt", ""}},
               {"TARN1516E_HOME={scratch}/other"}, "Failed to find JVM in Tarn installation\n"),
   });
   std::string const longPath(3000, 'p');
   run(failing("a text that is cut", {}, {"LD_LIBRARY_PATH=" + longPath},
         (NO_VM + longPath).substr(0, 2047)));
}

TEST(Failure, LibraryThatIsNoVm)
{
   std::string const path = "{home}" + VM_BELOW;
   run(Trials{
         failing("a text file", {MARKER, {HOME_VM, "not a library\n"}}, {},
               "Failed to dlopen JVM at '" + path + "', dlerror: " + path + ": file too short\n"),
         failing("a library without entry points", {MARKER, {HOME_VM, "-> {entries-0}"}}, {},
               "Failed to find JNI_GetCreatedJavaVMs, dlerror: " + path
                     + ": undefined symbol: JNI_GetCreatedJavaVMs\n"),
         failing("a library with one", {MARKER, {HOME_VM, "-> {entries-1}"}}, {},
               "Failed to find JNI_CreateJavaVM, dlerror: " + path
                     + ": undefined symbol: JNI_CreateJavaVM\n"),
   });
}

// ---- A VM that refuses -----------------------------------------------------------------------

std::string const CHECKED = "JNI_GetCreatedJavaVMs 1\n";
std::string const CREATED = "JNI_CreateJavaVM version 10002, ignoring what it does not know: 1\n";
std::string const ATTACHED = "AttachCurrentThread 0\n";
std::string const NO_OPTIONS = "[-Djava.class.path=]\n[-DTarn.libraryName=rti1516]\n[]\n[]\n[]\n"
                               "[-Xss1024k]\n";

Trial refusing(std::string const& name, std::vector<std::string> const& answers,
      std::string const& calls, std::string const& text)
{
   Trial trial = failing(name, {MARKER, FAKE_VM}, answers, text);
   trial.out = calls + trial.out;
   return trial;
}

TEST(Failure, EachStatusOfTheVm)
{
   struct Status {
      char const* value;
      char const* text;
   };
   Status const statuses[] = {
         {"-1", "Unknown error (-1)"},
         {"-2", "JVM Detached (-2)"},
         {"-3", "JNI Version Error (-3)"},
         {"-4", "Not enough JVM memory allocated (-4)"},
         {"-5", "VM already created (-5)"},
         {"-6", "Invalid JVM arguments (-6)"},
         {"-7", "Unknown JVM error -7"},
   };
   for (Status const& status : statuses) {
      std::string const value = status.value;
      std::string const text = status.text + std::string("\n");
      run(Trials{
            refusing("check " + value, {"VM_CHECK=" + value}, CHECKED,
                  "Cannot check for existing JVM. Error: " + text),
            refusing("check " + value + " with a VM", {"VM_CHECK=" + value, "VM_COUNT=1"}, CHECKED,
                  "Cannot check for existing JVM. Error: " + text),
            refusing("creation " + value, {"VM_CREATE=" + value}, CHECKED + CREATED + NO_OPTIONS,
                  "Cannot create JVM. Error: " + text),
            refusing("attachment " + value, {"VM_ATTACH=" + value, "VM_COUNT=1"},
                  CHECKED + ATTACHED, "Cannot attach to existing JVM. Error: " + text),
      });
   }
}

// ---- What the VM is asked for ----------------------------------------------------------------

Trial optionsTrial(std::string const& name, std::vector<Trial::File> files,
      std::vector<std::string> environment, std::string const& options)
{
   files.push_back(MARKER);
   files.push_back(FAKE_VM);
   environment.push_back("VM_CREATE=-6");
   Trial trial = refusing(name, environment, CHECKED + CREATED + options,
         "Cannot create JVM. Error: Invalid JVM arguments (-6)\n");
   trial.files = files;
   return trial;
}

std::string fileLines(int count, std::string const& begin, std::string const& end)
{
   std::string text;
   for (int i = 1; i <= count; ++i) {
      text += begin + "-Dline=" + std::to_string(i) + end + "\n";
   }
   return text;
}

TEST(Options, ReachTheVm)
{
   std::string const always = "[-Djava.class.path=]\n[-DTarn.libraryName=rti1516]\n[]\n[]\n[]\n";
   run(Trials{
         optionsTrial("all that there is",
               {{"home/lib/tarn1516e.jar", ""},
                     {"work/tarn.vmoptions", "#-Xmx1g\n-Da=1\r\n\n #-Xmx1g\n-Db=2"}},
               {"CLASSPATH=a.jar:b", "TARN_ENABLEBUNDLING=", "TARN_SINGLETHREAD=false",
                     "TARN_VERBOSEJNI=1", "TARN1516_OPTION1=first", "TARN1516_OPTION19=last",
                     "TARN1516_OPTION20=never"},
               "[-Djava.class.path=a.jar:b:{home}lib/tarn1516e.jar]\n[-DTarn.libraryName=rti1516]\n"
               "[-DenableBundling=true]\n[-Dsinglethread=true]\n[-verbose:jni]\n[first]\n[last]\n"
               "[-Da=1\r]\n[ #-Xmx1g]\n[-Db=2]\n[-Xss1024k]\n"),
         optionsTrial("a jar and no class path", {{"home/lib/tarn1516e.jar", ""}}, {},
               "[-Djava.class.path=:{home}lib/tarn1516e.jar]\n[-DTarn.libraryName=rti1516]\n"
               "[]\n[]\n[]\n[-Xss1024k]\n"),
         optionsTrial(
               "stack size of a variable", {}, {"TARN1516_OPTION7=-Xss2m"}, always + "[-Xss2m]\n"),
         optionsTrial("stack size of the file", {{"work/tarn.vmoptions", "-Xss512k\n"}}, {},
               always + "[-Xss512k]\n"),
         optionsTrial("files elsewhere",
               {{"home/tarn.vmoptions", "-Da\n"}, {"home/lib/x/tarn.vmoptions", "-Db\n"}}, {},
               always + "[-Xss1024k]\n"),
         optionsTrial("60 lines", {{"work/tarn.vmoptions", fileLines(60, "", "")}}, {},
               always + fileLines(45, "[", "]") + "[-Xss1024k]\n"),
   });
}

// ---- Starting over, and starting once --------------------------------------------------------

// With this class missing, start-up has ended and all that follows fails.
std::string const NO_CORE = "Tarn failed to load core classes in new JVM.\nCLASSPATH: (unknown)";
std::string const NO_CORE_THROWN = "RTIinternalError: " + NO_CORE + "|\n";

TEST(Start, BeginsOverAfterAFailure)
{
   std::string const refused = "Cannot create JVM. Error: Invalid JVM arguments (-6)\n";
   run(Trials{
         {"a VM that agrees later", {MARKER, FAKE_VM}, {"VM_CREATE=-6", "VM_LACKS=Factory"},
               {"create", "set", "TARN1516_OPTION1=-Da", "set", "VM_CREATE=0", "create", "create"},
               CHECKED + CREATED + NO_OPTIONS + "RTIinternalError: " + refused + "|\n" //
                     + CHECKED + CREATED
                     + "[-Djava.class.path=]\n[-DTarn.libraryName=rti1516]\n[]\n[]\n[]\n[-Da]\n"
                       "[-Xss1024k]\n"
                     + ATTACHED + NO_CORE_THROWN + ATTACHED + NO_CORE_THROWN,
               refused + NO_CORE + NO_CORE},
         {"an installation that is named later",
               {{"other/versioninfo.txt", ""}, {"other/" + VM_BELOW, "-> {fake}"}},
               {"VM_LACKS=Factory"}, {"create", "set", "TARN1516E_HOME={scratch}/other", "create"},
               "RTIinternalError: " + NO_VM + "(unknown)|\n" + CHECKED + CREATED + NO_OPTIONS
                     + ATTACHED + NO_CORE_THROWN,
               NO_VM + "(unknown)" + NO_CORE},
         {"a directory with an option file", {MARKER, FAKE_VM, {"there/tarn.vmoptions", "-Da\n"}},
               {"VM_CREATE=-6", "VM_LACKS=Factory"},
               {"create", "go", "{scratch}/there", "set", "VM_CREATE=0", "create"},
               CHECKED + CREATED + NO_OPTIONS + "RTIinternalError: " + refused + "|\n" //
                     + CHECKED + CREATED
                     + "[-Djava.class.path=]\n[-DTarn.libraryName=rti1516]\n[]\n[]\n[]\n[-Da]\n"
                       "[-Xss1024k]\n"
                     + ATTACHED + NO_CORE_THROWN,
               refused + NO_CORE},
         {"a VM that is joined later", {MARKER, FAKE_VM},
               {"VM_COUNT=1", "VM_ATTACH=-2", "VM_LACKS=Factory"},
               {"create", "set", "VM_ATTACH=0", "create"},
               CHECKED + ATTACHED + "RTIinternalError: "
                     + "Cannot attach to existing JVM. Error: JVM Detached (-2)\n|\n" + CHECKED
                     + ATTACHED + ATTACHED
                     + "RTIinternalError: Tarn failed to load core classes in existing JVM.\n"
                       "CLASSPATH: (unknown)|\n",
               "Cannot attach to existing JVM. Error: JVM Detached (-2)\n"
               "Tarn failed to load core classes in existing JVM.\nCLASSPATH: (unknown)"},
   });
}

TEST(Start, IsMadeOnceForTwoThreads)
{
   run(Trial{"two threads", {MARKER, FAKE_VM}, {"VM_LACKS=Factory"}, {"threads"},
         CHECKED + CREATED + NO_OPTIONS + ATTACHED + ATTACHED + NO_CORE_THROWN + NO_CORE_THROWN,
         NO_CORE + NO_CORE});
}

// ---- Behind the start of the VM --------------------------------------------------------------

Trial behind(std::string const& name, std::vector<std::string> environment,
      std::string const& calls, std::string const& text, std::string const& err)
{
   environment.push_back("VM_COUNT=1");
   return {name, {MARKER, FAKE_VM}, environment, {"create"},
         CHECKED + ATTACHED + ATTACHED + calls + "RTIinternalError: " + text + "|\n", err};
}

TEST(Failure, OfTheJavaClasses)
{
   std::string const constructed = "NewByteArray 4\narray 0 0 0 0\n";
   std::string const null = "Cannot create RTIambassador object. Constructor returned NULL\n";
   std::string const noJar = "The file tarn1516e.jar can not be found in the CLASSPATH.\n";
   std::string const core = "Tarn failed to load core classes in existing JVM.\nCLASSPATH: ";
   std::string const adapter = "Tarn failed to load adapter classes in existing JVM.\nCLASSPATH: ";
   run(Trials{
         behind("core class", {"VM_LACKS=RtiFactoryImpl"}, "", core + "(unknown)",
               core + "(unknown)"),
         behind("adapter class", {"VM_LACKS=RTIambassadorC2007", "CLASSPATH=a.jar:b"}, "",
               adapter + "a.jar:b", adapter + "a.jar:b"),
         behind("both", {"VM_LACKS=skerry", "CLASSPATH="}, "", core, core),
         behind("a class path beyond ASCII", {"VM_LACKS=skerry", "CLASSPATH=/\xc3\xa9"}, "",
               core + "/\xc3\xa9", core + "/\xc3\xa9"),
         behind("object", {}, "RegisterNatives 60\n" + constructed, null, null),
         behind("class of the natives", {"VM_LACKS=FederateAmbassadorC2007"}, constructed, null,
               noJar + null),
         behind("natives", {"VM_REGISTER=-1"}, "RegisterNatives 60\n" + constructed, null,
               "Failed to register native functions.\n" + null),
         behind("exception of no known class", {"VM_THROWS="}, "RegisterNatives 60\n" + constructed,
               "Cannot create RTIambassador object", ""),
   });
}

} // namespace
