#include "tests/bridge/Federate.h"

#include "tests/bridge/Wire.h"
#include <RTI/RTIambassadorFactory.h>

using namespace rti1516e;

namespace net {

void CallbackRecord::add(char const* name, std::vector<std::string> const& values)
{
   ++calls;
   native = name;
   arguments = values;
   if (inside) {
      inside();
   }
}

RTIambassador& ambassador()
{
   static std::unique_ptr<RTIambassador> const one(
         RTIambassadorFactory().createRTIambassador().release());
   return *one;
}

// Each construction leaves references behind, which would drown a leak of a service's.
std::unique_ptr<RTIambassador> newAmbassador()
{
   ambassador(); // brings up the VM
   java::LocalFrame const frame;
   return std::unique_ptr<RTIambassador>(RTIambassadorFactory().createRTIambassador().release());
}

int connectedHandle()
{
   std::string const body = java::takeCalls().back().body;
   return static_cast<unsigned char>(body[2]) << 8 | static_cast<unsigned char>(body[3]);
}

Federate::Federate() : callbacks(makeRecorder(record)), rti(newAmbassador())
{
   java::reset();
   rti->connect(*callbacks, HLA_EVOKED);
   handle = connectedHandle();
}

void Federate::join(std::wstring const& timeName)
{
   java::answer("getTimeFactory", {'S', timeName, "", {}});
   rti->joinFederationExecution(L"type", L"federation");
   java::takeCalls();
}

std::wstring Federate::fire(std::string const& native, std::string const& fields) const
{
   return java::fire(native, frame(handle, fields));
}

} // namespace net
