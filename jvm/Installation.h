// The layout of an installation, and the order in which variables and files count. It knows no Java
// VM: the check tool is compiled from it too, so that it looks where the library does.
#ifndef jvm_Installation_h
#define jvm_Installation_h

#include <RTI/SpecificConfig.h>
#include <string>
#include <vector>

// An address inside this library, by which it finds the file that it was loaded from.
extern "C" RTI_EXPORT void tarn1516e_exported_symbol_for_dlsym();

namespace tarn1516e {

// ---- Files. A home is the directory of an installation, with its trailing '/', or empty

char const markerBelowHome[] = "versioninfo.txt";
char const jarBelowHome[] = "lib/tarn1516e.jar";
char const homeVariable[] = "TARN1516E_HOME";

bool fileExists(std::string const& path);
std::string getDirName(std::string const& path); // with the '/' behind it
bool isTarnHome(std::string const& directory);

// The file of the library, as the loader names it; null if the loader does not know.
char const* libraryFile();

// Where a home may be, the first choice first.
std::vector<std::string> homeCandidates(std::string const& libraryFile);

// ---- What a new VM is started with

// Java names have '/' between their parts.
char const coreClass[] = "skerry/tarn1516e/RtiFactoryImpl";
char const adapterClass[] = "skerry/tarn1516e/RTIambassadorC2007";
char const nativesClass[] = "skerry/tarn1516e/FederateAmbassadorC2007";

// The option's beginning, and what the library puts behind it: CLASSPATH, and the home's jar if it
// is there.
char const classPathProperty[] = "-Djava.class.path=";
std::string classPath(std::string const& home);

// A VM option that the user gives, and the variable or the file that it comes from.
struct GivenOption {
   std::string text;
   std::string source;
};
char const optionVariable[] = "TARN1516_OPTION"; // and a number behind it
int const optionVariables = 19;                  // the highest one that is read
char const optionFile[] = "tarn.vmoptions";      // in the current directory

int const optionLimit = 50; // entries that the option file may fill
int const ownOptions = 5;   // entries of the library's own, which come first

// Those of the variables, then the lines of the file as long as there is room.
std::vector<GivenOption> givenOptions();

} // namespace tarn1516e

#endif
