// What can be seen of an installation and of the environment without a Java VM.
#ifndef tarn1516e_check_Surroundings_h
#define tarn1516e_check_Surroundings_h

#include <string>
#include <vector>

namespace check {

// ---- Files. A directory's name is told without a '/' at its end

bool exists(std::string const& path);
bool isDirectory(std::string const& path);
bool isDanglingLink(std::string const& path);
std::string targetOf(std::string const& link);
std::string directoryOf(std::string const& path);
std::string resolved(std::string const& path); // without links and dots, if it exists

// Whether the name is there but no line of it can be read.
bool isUnreadable(std::string const& path);

// Why Java does not find files below the path, in the locale that the environment names; empty if
// it does.
std::string whyJavaCannotRead(std::string const& path);

// ---- The environment

std::string valueOf(char const* variable);
std::vector<std::string> elementsOf(std::string const& path); // what stands between colons

// Variables that are set and begin so.
std::vector<std::string> variablesLike(std::string const& beginning);

// The text with a carriage return, and others of the kind, as it would stand in C++.
std::string visible(std::string const& text);

// ---- Libraries

// The library that this program was installed with; empty if it is not where it was put.
std::string ownLibrary();

// The processor that a library was built for, empty for what is no library of this platform.
std::string machineOf(std::string const& file);
std::string ownMachine();

// The first library of that name on the library path's folders, whatever its machine; empty if
// none.
std::string onLibraryPath(std::string const& name);

// The version that a VM's own installation tells of itself; empty if it tells nothing.
std::string versionOfVm(std::string const& vmFile);

// ---- Classes. Names have '/' between their parts

// What an element of a class path holds.
bool holdsClass(std::string const& element, std::string const& className);
bool holdsPackage(std::string const& element, std::string const& package);

} // namespace check

#endif
