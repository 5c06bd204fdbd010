// What the Java stand-in answers and what reached it. Needs the VM that the library has started;
// what fails in Java is a std::runtime_error here.
#ifndef bench_bridge_Script_h
#define bench_bridge_Script_h

#include <string>

namespace script {

// Every method answers 0, null, "" or false; nothing is recorded.
void answerAtOnce();

// From here on the array of each call is kept.
void record();

// The array of the last recorded call.
std::string lastBody(std::string const& method);

// What the method answers at its next call.
void answerInt(std::string const& method, int value);

// The method throws at every call.
void throwAlways(std::string const& method, std::string const& className);

} // namespace script

#endif
