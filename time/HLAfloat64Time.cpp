// The standard float time: its constants and its arithmetic.
#include <RTI/time/HLAfloat64Time.h>

#include "time/StandardTime.h"

#include <cstdint>
#include <cstring>
#include <limits>

namespace rti1516e {

namespace {

// A double moved by one unit of its bit pattern, whatever its sign: a negative one moves away from
// zero by inc.

double moved(double value, std::uint64_t units)
{
   std::uint64_t bits;
   std::memcpy(&bits, &value, sizeof(bits));
   bits += units;
   std::memcpy(&value, &bits, sizeof(value));
   return value;
}

double inc(double value)
{
   return moved(value, 1);
}

double dec(double value)
{
   return moved(value, ~std::uint64_t(0));
}

} // namespace

class HLAfloat64TimeImplementation : public StandardValue<Encoder::HLAfloat64BECoding> {
public:
   static constexpr double INITIAL_VALUE = 0.0;
   static constexpr double FINAL_VALUE = std::numeric_limits<double>::max();

   using StandardValue::StandardValue;

   void add(double distance)
   {
      moveTo(sumOf(value, distance), distance, inc(value));
   }

   void subtract(double distance)
   {
      moveTo(differenceOf(value, distance), distance, dec(value));
   }

private:
   // Takes the neighbour instead where rounding has lost the distance.
   void moveTo(double target, double distance, double neighbour)
   {
      bool const lost = target == value && distance != 0.0;
      value = lost ? neighbour : target;
   }
};

HLAfloat64Time::HLAfloat64Time(double const& value)
      : _implementation(new HLAfloat64TimeImplementation(value))
{
}

DEFINE_STANDARD_TIME(HLAfloat64Time, HLAfloat64Interval, double)

} // namespace rti1516e
