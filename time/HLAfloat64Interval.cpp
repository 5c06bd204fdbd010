// The interval of the standard float time: its constants and its arithmetic.
#include <RTI/time/HLAfloat64Interval.h>

#include "time/StandardTime.h"

#include <limits>
#include <RTI/time/HLAfloat64Time.h>

namespace rti1516e {

namespace {

double const ZERO_VALUE = 0.0;
double const EPSILON_VALUE = std::numeric_limits<double>::min();

} // namespace

DEFINE_STANDARD_TIME(HLAfloat64Interval, LogicalTimeInterval, double, HLAfloat64BE, HLAfloat64Time)

HLAfloat64Interval::HLAfloat64Interval(double value) : HLAfloat64Interval()
{
   _implementation->value = value;
}

void HLAfloat64Interval::setZero()
{
   _implementation->value = ZERO_VALUE;
}

bool HLAfloat64Interval::isZero() const
{
   return _implementation->value == ZERO_VALUE;
}

void HLAfloat64Interval::setEpsilon()
{
   _implementation->value = EPSILON_VALUE;
}

bool HLAfloat64Interval::isEpsilon() const
{
   return _implementation->value == EPSILON_VALUE;
}

LogicalTimeInterval& HLAfloat64Interval::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAfloat64Interval const& interval = dynamic_cast<HLAfloat64Interval const&>(addend);
   _implementation->value += interval.getInterval();
   return *this;
}

LogicalTimeInterval& HLAfloat64Interval::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAfloat64Interval const& interval = dynamic_cast<HLAfloat64Interval const&>(subtrahend);
   _implementation->value -= interval.getInterval();
   return *this;
}

void HLAfloat64Interval::setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime))
{
   HLAfloat64Time const& left = dynamic_cast<HLAfloat64Time const&>(minuend);
   HLAfloat64Time const& right = dynamic_cast<HLAfloat64Time const&>(subtrahend);
   _implementation->value = left.getTime() - right.getTime();
}

double HLAfloat64Interval::getInterval() const
{
   return _implementation->value;
}

void HLAfloat64Interval::setInterval(double value)
{
   _implementation->value = value;
}

} // namespace rti1516e
