// What a test tells the other side of the bridge, and what it asks it: answers of methods, calls
// that arrived, frames for natives. Two other sides stand behind this face: the stand-in in a Java
// VM (StandIn.cpp), and a VM that is none (BareVm.cpp). Needs a VM that the library has brought
// up.
#ifndef tests_support_JavaSide_h
#define tests_support_JavaSide_h

#include <RTI/SpecificConfig.h>

#include <cstdint>
#include <string>
#include <vector>

namespace java {

// What a method answers. The type is I, J, Z, D as in JNI, S a string, B, i, j an array of byte,
// int or long, X an exception, x one without a message, V nothing: 0, null, "" or false.
struct Answer {
   char type;
   std::wstring text;                 // of an exception its message
   std::string bytes;                 // of an exception its class, with slashes
   std::vector<std::int64_t> numbers; // of a double its bits
};

struct Call {
   std::string method;
   bool hasBody;
   std::string body;
};

// Forgets answers and calls. From now on methods answer as told here, or nothing; otherwise the
// other side does its own work, if it has any.
RTI_EXPORT void reset(bool scripted = true);

// For the method's next call.
RTI_EXPORT void answer(std::string const& method, Answer const& answer);

// The calls since the last time or reset; of several of one method the last body.
RTI_EXPORT std::vector<Call> takeCalls();

// Calls a native. What it threw: nothing, or class, line feed and message. No C++ exception passes
// the other side's frames.
RTI_EXPORT std::wstring fire(
      std::string const& native, std::string const& frame, bool onNewThread = false) noexcept;

// References and pinned arrays that the library has not let go; 0 where the VM does not tell.
RTI_EXPORT int heldReferences();

// What a VM that checks JNI calls has to warn of.
void callUnchecked();

// Lets local references go with the object that came up meanwhile.
class RTI_EXPORT LocalFrame {
public:
   LocalFrame();
   ~LocalFrame();

private:
   LocalFrame(LocalFrame const&) = delete;
   LocalFrame& operator=(LocalFrame const&) = delete;
};

} // namespace java

#endif
