// One start of a federate: in an installation, an environment and a directory of its own.
#ifndef tests_startup_Trial_h
#define tests_startup_Trial_h

#include <string>
#include <vector>

// All texts may name
//
//    {scratch}  the trial's folder. The federate lies in {scratch}/home/lib/x, beside the
//               libraries, and starts in {scratch}/work
//    {home}     the installation, as the library finds it from its own place
//    {library}  the library, as it was loaded
//    {libjvm}   the file name of a VM library
//    {search}   the variable with the folders in which the system looks for libraries
//    {jdk}, {jar}, {classes}           what is built beside the tests; the class folders
//    {fake}, {entries-0}, {entries-1}  the fake VM, and with that many entry points only
struct Trial {
   struct File {
      std::string name;    // below {scratch}
      std::string content; // or "-> " and what it is a link to
   };

   std::string name;
   std::vector<File> files;
   std::vector<std::string> environment; // "NAME=value", and nothing else
   std::vector<std::string> steps;       // of the starter
   std::string out;                      // of both streams, whole
   std::string err;
};

// A failure tells the trial and the first line that differs. The frames of Java stack traces are
// left out of the standard error stream, which the VM writes in its own way.
void run(Trial const& trial);
void run(std::vector<Trial> const& trials);

// What the trials of several tests have in common. They are in the header, so that the constants of
// a test can be made of them.
std::string const VM_BELOW = "jre/lib/server/{libjvm}"; // a VM library's place in an installation
Trial::File const MARKER = {"home/versioninfo.txt", ""};
Trial::File const FAKE_VM = {"home/" + VM_BELOW, "-> {fake}"};
std::string const TRACE = "TARN1516E_TRACE_LOAD: ";
std::string const TRACED_PLACE = TRACE + "Starting tarn1516e library\n" //
      + TRACE + "Current directory '{scratch}/work'\n"                  //
      + TRACE + "Loaded tarn1516e library from '{library}'\n";

#endif
