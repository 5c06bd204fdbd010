// A federate whose other side does as a test tells it, and which keeps every callback in bytes.
#ifndef tests_bridge_Federate_h
#define tests_bridge_Federate_h

#include "tests/support/JavaSide.h"
#include <RTI/FederateAmbassador.h>
#include <RTI/RTIambassador.h>

#include <functional>
#include <memory>

namespace net {

// The last callback, by the name of its native, with its arguments as wire() has them.
struct CallbackRecord {
   int calls = 0;
   std::string native;
   std::vector<std::string> arguments;
   std::function<void()> inside; // runs inside every callback, behind the record

   void add(char const* name, std::vector<std::string> const& values);
};

// A federate ambassador that writes to the record; written from the interface's header.
std::unique_ptr<rti1516e::FederateAmbassador> makeRecorder(CallbackRecord& record);

// One for all, which is never joined.
rti1516e::RTIambassador& ambassador();

std::unique_ptr<rti1516e::RTIambassador> newAmbassador();

// The handle that a connect has sent, the last call until now.
int connectedHandle();

class Federate {
public:
   Federate(); // connects to an other side that accepts everything

   // Joins a federation of that time implementation.
   void join(std::wstring const& timeName);

   // Lets Java call a native for this federate: what came of it, see java::fire.
   std::wstring fire(std::string const& native, std::string const& fields) const;

   CallbackRecord record;
   std::unique_ptr<rti1516e::FederateAmbassador> const callbacks; // write to the record
   std::unique_ptr<rti1516e::RTIambassador> const rti;
   int handle;
};

} // namespace net

#endif
