// The standard float time: its constants and its arithmetic.
#include <RTI/time/HLAfloat64Time.h>

#include "time/StandardTime.h"

#include <cstdint>
#include <cstring>
#include <limits>

namespace rti1516e {

namespace {

double const INITIAL_VALUE = 0.0;
double const FINAL_VALUE = std::numeric_limits<double>::max();

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

DEFINE_STANDARD_TIME(HLAfloat64Time, LogicalTime, double, HLAfloat64BE, HLAfloat64Time)

HLAfloat64Time::HLAfloat64Time(double const& value) : HLAfloat64Time()
{
   _implementation->value = value;
}

void HLAfloat64Time::setInitial()
{
   _implementation->value = INITIAL_VALUE;
}

bool HLAfloat64Time::isInitial() const
{
   return _implementation->value == INITIAL_VALUE;
}

void HLAfloat64Time::setFinal()
{
   _implementation->value = FINAL_VALUE;
}

bool HLAfloat64Time::isFinal() const
{
   return _implementation->value == FINAL_VALUE;
}

LogicalTime& HLAfloat64Time::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAfloat64Interval const& interval = dynamic_cast<HLAfloat64Interval const&>(addend);
   double const distance = interval.getInterval();
   double const sum = _implementation->value + distance;
   bool const lost = sum == _implementation->value && distance != 0.0;
   _implementation->value = lost ? inc(_implementation->value) : sum;
   return *this;
}

LogicalTime& HLAfloat64Time::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAfloat64Interval const& interval = dynamic_cast<HLAfloat64Interval const&>(subtrahend);
   double const distance = interval.getInterval();
   double const difference = _implementation->value - distance;
   bool const lost = difference == _implementation->value && distance != 0.0;
   _implementation->value = lost ? dec(_implementation->value) : difference;
   return *this;
}

double HLAfloat64Time::getTime() const
{
   return _implementation->value;
}

void HLAfloat64Time::setTime(double value)
{
   _implementation->value = value;
}

} // namespace rti1516e
