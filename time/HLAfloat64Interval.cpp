// The interval of the standard float time: its constants.
#include <RTI/time/HLAfloat64Interval.h>

#include "time/StandardTime.h"

#include <limits>
#include <RTI/time/HLAfloat64Time.h>

namespace rti1516e {

class HLAfloat64IntervalImplementation : public StandardValue<Encoder::HLAfloat64BECoding> {
public:
   static constexpr double ZERO_VALUE = 0.0;
   static constexpr double EPSILON_VALUE = std::numeric_limits<double>::min();

   using StandardValue::StandardValue;
};

DEFINE_STANDARD_INTERVAL(HLAfloat64Interval, HLAfloat64Time, double)

} // namespace rti1516e
