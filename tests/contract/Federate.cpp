#include "tests/contract/Federate.h"

#include "tests/contract/Wire.h"
#include "tests/support/Script.h"
#include <RTI/RTIambassadorFactory.h>

using namespace rti1516e;

namespace contract {

namespace {

int handlesTaken;

} // namespace

RTIambassador& ambassador()
{
   static std::unique_ptr<RTIambassador> const one(
         RTIambassadorFactory().createRTIambassador().release());
   return *one;
}

int takeHandle()
{
   return ++handlesTaken;
}

void CallbackRecord::add(std::string const& name, Texts const& shown)
{
   ++calls;
   operation = name;
   arguments = shown;
   if (inside) {
      inside();
   }
}

// Each construction leaves references behind, which would drown a leak of a service's.
std::unique_ptr<RTIambassador> newAmbassador()
{
   ambassador(); // brings up the VM
   script::LocalFrame const frame;
   return std::unique_ptr<RTIambassador>(RTIambassadorFactory().createRTIambassador().release());
}

Federate::Federate() : callbacks(makeRecorder(record)), rti(newAmbassador()), handle(takeHandle())
{
   script::scriptAll(true);
   rti->connect(*callbacks, HLA_EVOKED);
}

void Federate::join(std::wstring const& timeName)
{
   script::answerString("getTimeFactory", timeName);
   rti->joinFederationExecution(L"type", L"federation");
}

std::wstring Federate::fire(std::string const& operation, Wire const& fields) const
{
   return script::fire(operation + "_Native", frame(handle, fields));
}

} // namespace contract
