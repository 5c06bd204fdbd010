// What can be seen of an installation and of the environment without a Java VM.
#ifndef tarn1516e_check_Surroundings_h
#define tarn1516e_check_Surroundings_h

#include <string>
#include <vector>

namespace check {

// ---- Files. A directory's name is told without a '/' at its end

bool exists(std::string const& path);
bool isDirectory(std::string const& path);
std::string directoryOf(std::string const& path);
std::string resolved(std::string const& path); // without links and dots, if it exists

// Whether the name is there but no line of it can be read.
bool isUnreadable(std::string const& path);

// ---- The environment

bool isSet(char const* variable);
std::string valueOf(char const* variable);
std::vector<std::string> elementsOf(std::string const& path); // what stands between colons

// The variable that names folders in which the platform looks for libraries.
char const* libraryPathVariable();

// A VM option, and the variable or file that it comes from.
struct Option {
   std::string text;
   std::string source;
};
extern char const* const optionFile;
std::vector<Option> optionsGiven();

// ---- Libraries

// The file of librti1516e that this program runs with.
std::string libraryFile();

// The processor that a library was built for, empty for what is no library of this platform.
std::string machineOf(std::string const& file);
std::string ownMachine();

// The first VM library on the library path's folders, whatever its machine; empty if none.
std::string vmOnLibraryPath();

// The version that a VM's own installation tells of itself; empty if it tells nothing.
std::string versionOfVm(std::string const& vmFile);

// ---- Classes. Names have '/' between their parts

// Whether an element of a class path holds the class.
bool holdsClass(std::string const& element, std::string const& className);

} // namespace check

#endif
