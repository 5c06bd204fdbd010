// The script face of the Java stand-in, from C++: what methods answer, what arrived, and frames
// for natives. Needs the VM that the library has started. What fails in Java is a
// std::runtime_error here.
#ifndef tests_support_Script_h
#define tests_support_Script_h

#include <jni.h>
#include <string>
#include <vector>

namespace script {

// References that the library makes on this thread and keeps are released with the object.
class LocalFrame {
public:
   LocalFrame();
   ~LocalFrame();

private:
   LocalFrame(LocalFrame const&) = delete;
   LocalFrame& operator=(LocalFrame const&) = delete;
};

void reset();
void scriptAll(bool on);
void record(bool on);
void forgetCalls();

// What a method answers at its next call; or at all that follow. Bytes are a std::string.
void answerInt(std::string const& method, jint value, bool always = false);
void answerLong(std::string const& method, jlong value, bool always = false);
void answerDouble(std::string const& method, jdouble value, bool always = false);
void answerBoolean(std::string const& method, bool value, bool always = false);
void answerString(std::string const& method, std::wstring const& value, bool always = false);
void answerBytes(std::string const& method, std::string const& value, bool always = false);
void answerInts(std::string const& method, std::vector<jint> const& value, bool always = false);
void answerLongs(std::string const& method, std::vector<jlong> const& value, bool always = false);

// 0, null, "" or false; for void methods too.
void answerDefault(std::string const& method, bool always = false);

// The message may be null.
void answerThrow(std::string const& method, std::string const& className, wchar_t const* message,
      bool always = false);

int totalCalls();
std::string calledMethod(int index);

// The array of the last recorded call; hasBody is false for a call without one.
struct Body {
   bool hasBody;
   std::string bytes;
};
Body lastBody(std::string const& method);

// Calls a native: nothing, or class, line feed and message of what it threw.
std::wstring fire(std::string const& native, std::string const& frame);
std::wstring fireOnNewThread(std::string const& native, std::string const& frame);

// Makes a call that a VM warns of that checks them.
void callUnchecked();

// A property of the VM, such as "java.home".
std::wstring property(std::string const& name);

} // namespace script

#endif
