// How the public operations hand out what the bridge object answers by pointer.
#ifndef bridge_Answers_h
#define bridge_Answers_h

#include "gen/cpp_generated/RTIambassadorC.h"

#include <memory>

namespace tarn1516e {

// Gives the caller's object the value of the answer.
template <class Value>
void assign(Value& out, std::unique_ptr<Value> const& answer)
{
   out = *answer;
}

// Leaves the caller's time as it is if there is no such time.
inline bool assignIfAny(rti1516e::LogicalTime& out, TimeQueryReturn const& answer)
{
   if (answer.first) {
      assign(out, answer.second);
   }
   return answer.first;
}

} // namespace tarn1516e

#endif
