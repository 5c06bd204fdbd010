// The factory of the standard float time.
#include <RTI/time/HLAfloat64TimeFactory.h>

#include "api/StandardFactories.h"
#include "time/StandardTimeFactory.h"

#include <typeinfo>

namespace rti1516e {

// Its epsilon is a step that federates can take, and not the smallest that an interval can hold.
DEFINE_STANDARD_TIME_FACTORY(
      HLAfloat64TimeFactory, HLAfloat64Time, HLAfloat64Interval, double, 1.0, HLAfloat64TimeName)

} // namespace rti1516e

bool tarn1516e::isFloat64TimeFactory(rti1516e::LogicalTimeFactory const& factory)
{
   return typeid(factory) == typeid(rti1516e::HLAfloat64TimeFactory);
}
