// The cases by group, and what their units share.
#ifndef bench_bridge_Cases_h
#define bench_bridge_Cases_h

#include "bench/bridge/Partner.h"
#include "bench/bridge/Script.h"

#include <benchmark/benchmark.h>
#include <string>

void addServices();
void addCallbacks();
void addScaling();

// An update of one object.
class Update {
public:
   explicit Update(rti1516e::AttributeHandleValueMap const& values)
         : _object(makeObject(1)),
           _values(values),
           _tag("tag!", 4)
   {
   }

   void operator()(rti1516e::RTIambassador& ambassador) const
   {
      ambassador.updateAttributeValues(_object, _values, _tag);
   }

private:
   rti1516e::ObjectInstanceHandle _object;
   rti1516e::AttributeHandleValueMap _values;
   rti1516e::VariableLengthData _tag;
};

// The array with which `call` reaches the Java method.
template <class Call>
std::string recordBody(char const* method, Call const& call)
{
   script::record();
   call();
   std::string const bytes = script::lastBody(method);
   script::answerAtOnce();
   return bytes;
}

inline void countBytes(benchmark::State& state, std::string const& bytesPerCall)
{
   state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytesPerCall.size()));
}

#endif
