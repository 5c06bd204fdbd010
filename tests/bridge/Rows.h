// The kept list of methods and natives (java.txt), and a call of each service; write_calls.py
// writes the calls.
#ifndef tests_bridge_Rows_h
#define tests_bridge_Rows_h

#include "tests/bridge/Federate.h"
#include "tests/bridge/Samples.h"

#include <map>

namespace net {

int const sets = 7; // of arguments; no code of a service has more samples

// The arguments of one call. Each field takes another sample of its code in every set, and fields
// of one code take different ones.
class Fields {
public:
   explicit Fields(int set) : _set(set) {}

   template <class Code>
   auto at(int position)
   {
      auto const& samples = Code::samples();
      auto const& value = samples[static_cast<std::size_t>(_set + position) % samples.size()];
      if (_wires.count(position) == 0) { // so that a second call takes no memory for it
         _wires[position] = wire(value);
      }
      return std::cref(value);
   }

   // The ambassador that connect gets. On the wire stands a handle that the call tells.
   rti1516e::FederateAmbassador& federateAmbassador(int position);

   // In the order of positions.
   Wire body() const;

private:
   int const _set;
   std::map<int, Wire> _wires;
};

// Calls the public operation and gives its result as wire() has it. `time` and `interval` are there
// for results that are assigned.
typedef std::string (*ServiceCall)(rti1516e::RTIambassador& rti, Fields& fields,
      rti1516e::LogicalTime& time, rti1516e::LogicalTimeInterval& interval);

struct ServiceRow {
   std::string name;
   std::string signature;
   std::string result; // code, "-" for none
   std::vector<std::string> ladder;
   ServiceCall call;
};

std::vector<ServiceRow> const& serviceRows();
std::vector<std::string> const& natives();
std::vector<ServiceCall> serviceCalls(); // in the order of the list

} // namespace net

#endif
