// The factory of the standard integer time.
#include <RTI/time/HLAinteger64TimeFactory.h>

#include "time/StandardTimeFactory.h"

namespace rti1516e {

DEFINE_STANDARD_TIME_FACTORY(HLAinteger64TimeFactory, HLAinteger64Time, HLAinteger64Interval,
      long long, 1, HLAinteger64TimeName)

} // namespace rti1516e
