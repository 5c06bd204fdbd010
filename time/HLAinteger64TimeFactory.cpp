// The factory of the standard integer time.
#include <RTI/time/HLAinteger64TimeFactory.h>

#include "api/StandardFactories.h"
#include "time/StandardTimeFactory.h"

#include <typeinfo>

namespace rti1516e {

DEFINE_STANDARD_TIME_FACTORY(HLAinteger64TimeFactory, HLAinteger64Time, HLAinteger64Interval,
      long long, 1, HLAinteger64TimeName)

} // namespace rti1516e

bool tarn1516e::isInteger64TimeFactory(rti1516e::LogicalTimeFactory const& factory)
{
   return typeid(factory) == typeid(rti1516e::HLAinteger64TimeFactory);
}
