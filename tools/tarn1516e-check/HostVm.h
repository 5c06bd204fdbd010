// A Java VM that is in the process before the library comes, as in a program written in Java.
#ifndef tarn1516e_check_HostVm_h
#define tarn1516e_check_HostVm_h

#include <string>

namespace check {

// Starts a VM with that class path, found where the library would find it. Returns what went wrong,
// or an empty text.
std::string startHostVm(std::string const& home, std::string const& classPath);

} // namespace check

#endif
