// The interval of the standard integer time: its constants.
#include <RTI/time/HLAinteger64Interval.h>

#include "time/StandardTime.h"

#include <RTI/time/HLAinteger64Time.h>

namespace rti1516e {

class HLAinteger64IntervalImplementation : public StandardValue<Encoder::HLAinteger64BECoding> {
public:
   static constexpr long long ZERO_VALUE = 0;
   static constexpr long long EPSILON_VALUE = 1;

   using StandardValue::StandardValue;
};

DEFINE_STANDARD_INTERVAL(HLAinteger64Interval, HLAinteger64Time, long long)

} // namespace rti1516e
