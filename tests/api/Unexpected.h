// Operations that throw what their list does not allow. That ends the process, unless a federate
// has set a handler.
#ifndef tests_api_Unexpected_h
#define tests_api_Unexpected_h

#include <exception>
#include <RTI/Exception.h>
#include <string>
#include <typeinfo>

// The text of what was thrown. A pointer's object is freed.
inline std::wstring textOf(rti1516e::Exception const* thrown)
{
   std::wstring const text = thrown->what();
   delete thrown;
   return text;
}

inline std::wstring textOf(std::bad_cast const&)
{
   return L"bad cast";
}

// Runs an operation whose list allows Allowed while it throws Thrown. A handler such as a federate
// may set turns the one into the other. Gives the text of what was thrown, or says that nothing
// was.
template <class Thrown, class Allowed, class Operation>
std::wstring textOfUnexpected(Operation operation)
{
   std::unexpected_handler const before = std::set_unexpected([] {
      try {
         throw;
      } catch (Thrown thrown) {
         throw Allowed(textOf(thrown));
      }
   });
   std::wstring text = L"nothing thrown";
   try {
      operation();
   } catch (Allowed const& allowed) {
      text = allowed.what();
   }
   std::set_unexpected(before);
   return text;
}

#endif
