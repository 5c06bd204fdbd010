// The standard integer time: its constants.
#include <RTI/time/HLAinteger64Time.h>

#include "time/StandardTime.h"

#include <limits>

namespace rti1516e {

class HLAinteger64TimeImplementation : public StandardValue<Encoder::HLAinteger64BECoding> {
public:
   static constexpr long long INITIAL_VALUE = 0;
   static constexpr long long FINAL_VALUE = std::numeric_limits<long long>::max();

   using StandardValue::StandardValue;
};

HLAinteger64Time::HLAinteger64Time(long long value)
      : _implementation(new HLAinteger64TimeImplementation(value))
{
}

DEFINE_STANDARD_TIME(HLAinteger64Time, HLAinteger64Interval, long long)

} // namespace rti1516e
