// The rows of services and callbacks as the tests use them; write_rows.py makes the two tables.
#ifndef tests_contract_Rows_h
#define tests_contract_Rows_h

#include "tests/contract/Federate.h"
#include "tests/contract/Samples.h"

#include <map>
#include <stdexcept>

namespace contract {

int const sets = 8; // of arguments; no code has more samples

// The arguments of one call. Each field takes another sample of its code in every set, and fields
// of one code take different ones.
class Fields {
public:
   Fields(Way way, int set) : _way(way), _set(set) {}

   template <class Code>
   typename Code::Native const& at(int position)
   {
      static Samples<typename Code::Native> const all[] = {Code::samples(Way::OUT),
            Code::samples(Way::IN_INTEGER_TIME), Code::samples(Way::IN_FLOAT_TIME)};
      auto const& samples = all[static_cast<int>(_way)];
      if (samples.size() > sets) {
         throw std::logic_error("more samples than sets");
      }
      auto const& sample = samples[static_cast<std::size_t>(_set + position) % samples.size()];
      _wires[position] = sample.wire;
      return sample.value;
   }

   // The ambassador that connect gets; on the wire the handle that it takes.
   rti1516e::FederateAmbassador& federateAmbassador(int position)
   {
      _wires[position] = integer(takeHandle());
      return *_callbacks;
   }

   // In the order of positions.
   Wire body() const
   {
      Wire wire{};
      for (auto const& field : _wires) {
         wire += field.second;
      }
      return wire;
   }

private:
   Way const _way;
   int const _set;
   std::map<int, Wire> _wires;
   CallbackRecord _record;
   std::unique_ptr<rti1516e::FederateAmbassador> const _callbacks = makeRecorder(_record);
};

struct ServiceRow {
   char const* javaName;
   char const* signature;
   char const* result; // type code, empty for none
   std::vector<std::string> ladder;

   // Calls the public operation and shows its result. `time` and `interval` are there for results
   // that are assigned.
   std::string (*call)(rti1516e::RTIambassador& rti, Fields& fields, rti1516e::LogicalTime& time,
         rti1516e::LogicalTimeInterval& interval);
};

struct CallbackRow {
   char const* javaName; // without the native's ending
   bool hasTime;
   Texts (*arguments)(Fields& fields); // as the federate is to see them
};

std::vector<ServiceRow> const& serviceRows();
std::vector<CallbackRow> const& callbackRows();

} // namespace contract

#endif
