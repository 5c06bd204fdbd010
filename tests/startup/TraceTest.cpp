// The trace of start-up, to the letter.
#include "tests/startup/Trial.h"

#include <gtest/gtest.h>

namespace {

typedef std::vector<Trial> Trials;

std::string const ON = "TARN1516E_TRACE_LOAD=";

std::string const HOME_FOUND = TRACE + "Tarn home found at  '{home}'\n";
std::string const VM_FOUND = TRACE + "Looking for JVM at '{home}" + VM_BELOW + "'\n" //
      + TRACE + "Found JVM at '{home}" + VM_BELOW + "'\n"                            //
      + TRACE + "Using bundled JVM in '{home}" + VM_BELOW + "'\n";
std::string const NO_JAR = TRACE + "No Tarn java libs found in '{home}lib/tarn1516e.jar'\n" //
      + TRACE + "Setting classpath to '-Djava.class.path='\n";
std::string const CHECK = TRACE + "Checking for existing JVM\n";

// The line has a line end of its own, and so an empty line behind it.
std::string checked(std::string const& status, std::string const& count)
{
   return CHECK + TRACE + "getCreatedJavaVMs: " + status + " nVMcount = " + count + "\n\n";
}

std::string const CREATING = TRACE + "Attempting to create new JVM\n";
std::string const ATTACHING = TRACE + "Attempting to attach to existing JVM\n";
std::string const CALLED = "JNI_GetCreatedJavaVMs 1\n";
std::string const CALLED_TWICE = CALLED + "AttachCurrentThread 0\n";

std::string thrown(std::string const& text)
{
   return "RTIinternalError: " + text + "|\n";
}

TEST(Trace, OfTheSearch)
{
   std::string const noVm = "Failed to find JVM on LD_LIBRARY_PATH and unable to locate Tarn "
                            "installation\nLD_LIBRARY_PATH: (unknown)";
   std::string const none = "Failed to find JVM in Tarn installation\n";
   std::string const refused = "Cannot check for existing JVM. Error: Unknown error (-1)\n";
   std::string const otherFound = TRACE + "Looking for JVM at '{scratch}/other/" + VM_BELOW + "'\n"
         + TRACE + "Found JVM at '{scratch}/other/" + VM_BELOW + "'\n" //
         + TRACE + "Using bundled JVM in '{scratch}/other/" + VM_BELOW + "'\n";
   std::string const otherFoundTwoSlashes = TRACE + "Looking for JVM at '{scratch}/other//"
         + VM_BELOW + "'\n" + TRACE + "Found JVM at '{scratch}/other//" + VM_BELOW + "'\n" //
         + TRACE + "Using bundled JVM in '{scratch}/other//" + VM_BELOW + "'\n";
   Trial::File const other = {"other/versioninfo.txt", ""};
   Trial::File const otherVm = {"other/" + VM_BELOW, "-> {fake}"};
   std::string const end = checked("Unknown error (-1)", "0") + refused;
   run(Trials{
         {"nothing", {}, {ON}, {"create"}, thrown(noVm),
               TRACED_PLACE + TRACE + "Tarn home not found. Will use PATH/CLASSPATH\n" + TRACE
                     + noVm + "\n" + noVm},
         {"a home without a VM", {MARKER}, {ON + "1"}, {"create"}, thrown(none),
               TRACED_PLACE + HOME_FOUND + TRACE + "Looking for JVM at '{home}" + VM_BELOW + "'\n"
                     + none},
         {"a home with a VM", {MARKER, FAKE_VM}, {ON, "VM_CHECK=-1"}, {"create"},
               CALLED + thrown(refused), TRACED_PLACE + HOME_FOUND + VM_FOUND + end},
         {"the variable's home", {other, otherVm, FAKE_VM},
               {ON, "VM_CHECK=-1", "TARN1516E_HOME={scratch}/other"}, {"create"},
               CALLED + thrown(refused),
               TRACED_PLACE + TRACE + "Tarn home found at  '{scratch}/other/'\n" + otherFound
                     + end},
         {"the variable's home, its slash doubled", {other, otherVm, FAKE_VM},
               {ON, "VM_CHECK=-1", "TARN1516E_HOME={scratch}/other/"}, {"create"},
               CALLED + thrown(refused),
               TRACED_PLACE + TRACE + "Tarn home found at  '{scratch}/other//'\n"
                     + otherFoundTwoSlashes + end},
         {"the library's home before the variable's", {MARKER, FAKE_VM, other, otherVm},
               {ON, "VM_CHECK=-1", "TARN1516E_HOME={scratch}/other"}, {"create"},
               CALLED + thrown(refused), TRACED_PLACE + HOME_FOUND + VM_FOUND + end},
         {"a VM on the path before the home's",
               {MARKER, {"home/" + VM_BELOW, "not a library\n"}, {"path/{libjvm}", "-> {fake}"}},
               {ON, "VM_CHECK=-1", "{search}={scratch}/path"}, {"create"}, CALLED + thrown(refused),
               TRACED_PLACE + HOME_FOUND + TRACE + "JVM was available on library path\n" + end},
         {"a VM on the path and no home", {{"path/{libjvm}", "-> {fake}"}},
               {ON, "VM_CHECK=-1", "{search}={scratch}/path"}, {"create"}, CALLED + thrown(refused),
               TRACED_PLACE + TRACE + "Tarn home not found. Will use PATH/CLASSPATH\n" + TRACE
                     + "JVM was available on library path\n" + end},
   });
}

TEST(Trace, OfTheVm)
{
   std::string const begin = TRACED_PLACE + HOME_FOUND + VM_FOUND;
   std::string const core = TRACE + "Locating core classes\n";
   std::string const noCore = "Tarn failed to load core classes in new JVM.\nCLASSPATH: (unknown)";
   std::string const noAdapter =
         "Tarn failed to load adapter classes in existing JVM.\nCLASSPATH: a.jar";
   std::string const noObject = "Cannot create RTIambassador object. Constructor returned NULL\n";
   std::string const notAttached = "Cannot attach to existing JVM. Error: JVM Detached (-2)\n";
   std::string const notCreated = "Cannot create JVM. Error: VM already created (-5)\n";
   std::string const created = "JNI_CreateJavaVM version 10002, ignoring what it does not know: 1\n"
                               "[-Djava.class.path=]\n[-DTarn.libraryName=rti1516]\n[]\n[]\n[]\n"
                               "[-Xss1024k]\n";
   run(Trials{
         {"a VM that is not created", {MARKER, FAKE_VM}, {ON, "VM_CREATE=-5"}, {"create"},
               CALLED + created + thrown(notCreated),
               begin + checked("OK", "0") + NO_JAR + CREATING + notCreated},
         {"a new VM without the core class", {MARKER, FAKE_VM}, {ON, "VM_LACKS=Factory"},
               {"create"}, CALLED + created + "AttachCurrentThread 0\n" + thrown(noCore),
               begin + checked("OK", "0") + NO_JAR + CREATING + TRACE + "Created new JVM\n" + core
                     + TRACE + "Failed to locate core classes\n" + TRACE + noCore + "\n" + noCore},
         {"a VM that cannot be joined", {MARKER, FAKE_VM}, {ON, "VM_COUNT=1", "VM_ATTACH=-2"},
               {"create"}, CALLED_TWICE + thrown(notAttached),
               begin + checked("OK", "1") + ATTACHING + TRACE
                     + "AttachCurrentThread return value: JVM Detached (-2)\n" + notAttached},
         {"a VM that is joined, without the adapter class", {MARKER, FAKE_VM},
               {ON, "VM_COUNT=3", "VM_LACKS=RTIambassador", "CLASSPATH=a.jar"}, {"create"},
               CALLED_TWICE + "AttachCurrentThread 0\n" + thrown(noAdapter),
               begin + checked("OK", "3") + ATTACHING + TRACE
                     + "AttachCurrentThread return value: OK\n" + TRACE
                     + "Attached to existing JVM\n" + core + TRACE + "Locating adapter classes\n"
                     + TRACE + "Failed to locate adapter classes\n" + TRACE + noAdapter + "\n"
                     + noAdapter},
         // One flag is read when the VM is looked for, the other one with each ambassador.
         {"switched on and off", {MARKER, FAKE_VM}, {"VM_COUNT=1", "VM_LACKS=FederateAmbassador"},
               {"create", "set", ON, "create", "unset", "TARN1516E_TRACE_LOAD", "create"},
               [&] {
                  std::string const each = "AttachCurrentThread 0\nNewByteArray 4\n"
                                           "array 0 0 0 0\n"
                        + thrown(noObject);
                  return CALLED_TWICE + each + each + each;
               }(),
               [&] {
                  std::string const each =
                        "The file tarn1516e.jar can not be found in the CLASSPATH.\n" + noObject;
                  return each + core + TRACE + "Locating adapter classes\n" + each + each;
               }()},
   });
}

} // namespace
