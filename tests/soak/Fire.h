// Frames for natives, many times over, from a Java loop.
#ifndef tests_soak_Fire_h
#define tests_soak_Fire_h

#include <string>

namespace soak {

// Nothing, or class, line feed and message of what the native threw.
std::wstring fire(std::string const& native, std::string const& frame, int times);

} // namespace soak

#endif
