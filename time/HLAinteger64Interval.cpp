// The interval of the standard integer time: its constants and its arithmetic.
#include <RTI/time/HLAinteger64Interval.h>

#include "time/StandardTime.h"

#include <RTI/time/HLAinteger64Time.h>

namespace rti1516e {

namespace {

long long const ZERO_VALUE = 0;
long long const EPSILON_VALUE = 1;

} // namespace

DEFINE_STANDARD_TIME(
      HLAinteger64Interval, LogicalTimeInterval, long long, HLAinteger64BE, HLAinteger64Time)

HLAinteger64Interval::HLAinteger64Interval(long long value) : HLAinteger64Interval()
{
   _implementation->value = value;
}

void HLAinteger64Interval::setZero()
{
   _implementation->value = ZERO_VALUE;
}

bool HLAinteger64Interval::isZero() const
{
   return _implementation->value == ZERO_VALUE;
}

void HLAinteger64Interval::setEpsilon()
{
   _implementation->value = EPSILON_VALUE;
}

bool HLAinteger64Interval::isEpsilon() const
{
   return _implementation->value == EPSILON_VALUE;
}

LogicalTimeInterval& HLAinteger64Interval::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAinteger64Interval const& interval = dynamic_cast<HLAinteger64Interval const&>(addend);
   _implementation->value = wrappedSum(_implementation->value, interval.getInterval());
   return *this;
}

LogicalTimeInterval& HLAinteger64Interval::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAinteger64Interval const& interval = dynamic_cast<HLAinteger64Interval const&>(subtrahend);
   _implementation->value = wrappedDifference(_implementation->value, interval.getInterval());
   return *this;
}

void HLAinteger64Interval::setToDifference(LogicalTime const& minuend,
      LogicalTime const& subtrahend) RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime))
{
   HLAinteger64Time const& left = dynamic_cast<HLAinteger64Time const&>(minuend);
   HLAinteger64Time const& right = dynamic_cast<HLAinteger64Time const&>(subtrahend);
   _implementation->value = wrappedDifference(left.getTime(), right.getTime());
}

long long HLAinteger64Interval::getInterval() const
{
   return _implementation->value;
}

void HLAinteger64Interval::setInterval(long long value)
{
   _implementation->value = value;
}

} // namespace rti1516e
