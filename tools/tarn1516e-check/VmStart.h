// A Java VM without the library: to be there before it comes, as in a program written in Java, or
// to see which options a VM knows.
#ifndef tarn1516e_check_VmStart_h
#define tarn1516e_check_VmStart_h

#include <string>
#include <vector>

namespace check {

// Starts a VM in this process, found where the library would find it. Returns what went wrong, or
// an empty text.
std::string startVm(
      std::string const& home, std::vector<std::string> const& options, bool ignoringUnknown);

// Of the VM in this process: its version, and the one that the jar of the core class says of
// itself. Empty for what is not there.
std::string versionOfRunningVm();
std::string versionOfCoreJar();

} // namespace check

#endif
