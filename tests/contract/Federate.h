// A federate against the scripted stand-in, which keeps every callback as text.
#ifndef tests_contract_Federate_h
#define tests_contract_Federate_h

#include <RTI/FederateAmbassador.h>
#include <RTI/RTIambassador.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace contract {

typedef std::vector<std::string> Texts;

// The last callback, by the name of its native without the ending, with its arguments.
struct CallbackRecord {
   int calls = 0;
   std::string operation;
   Texts arguments;

   // Runs inside every callback, behind the record.
   std::function<void()> inside;

   void add(std::string const& name, Texts const& shown);
};

// One for all, never connected by itself.
rti1516e::RTIambassador& ambassador();

std::unique_ptr<rti1516e::RTIambassador> newAmbassador();

// The handle that the next connect of this process gets. To be called once for each connect.
int takeHandle();

class Federate {
public:
   // Connects to a Java side that accepts everything.
   Federate();

   // Joins a federation of that time implementation.
   void join(std::wstring const& timeName);

   std::wstring fire(std::string const& operation, struct Wire const& fields) const;

   CallbackRecord record;
   std::unique_ptr<rti1516e::FederateAmbassador> callbacks; // write to the record
   std::unique_ptr<rti1516e::RTIambassador> rti;
   int handle;
};

// A federate ambassador that writes to the record.
std::unique_ptr<rti1516e::FederateAmbassador> makeRecorder(CallbackRecord& record);

} // namespace contract

#endif
