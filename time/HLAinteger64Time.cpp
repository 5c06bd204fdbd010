// The standard integer time: its constants and its arithmetic.
#include <RTI/time/HLAinteger64Time.h>

#include "time/StandardTime.h"

#include <limits>

namespace rti1516e {

namespace {

long long const INITIAL_VALUE = 0;
long long const FINAL_VALUE = std::numeric_limits<long long>::max();

} // namespace

DEFINE_STANDARD_TIME(HLAinteger64Time, LogicalTime, long long, HLAinteger64BE, HLAinteger64Time)

HLAinteger64Time::HLAinteger64Time(long long value) : HLAinteger64Time()
{
   _implementation->value = value;
}

void HLAinteger64Time::setInitial()
{
   _implementation->value = INITIAL_VALUE;
}

bool HLAinteger64Time::isInitial() const
{
   return _implementation->value == INITIAL_VALUE;
}

void HLAinteger64Time::setFinal()
{
   _implementation->value = FINAL_VALUE;
}

bool HLAinteger64Time::isFinal() const
{
   return _implementation->value == FINAL_VALUE;
}

LogicalTime& HLAinteger64Time::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAinteger64Interval const& interval = dynamic_cast<HLAinteger64Interval const&>(addend);
   _implementation->value = wrappedSum(_implementation->value, interval.getInterval());
   return *this;
}

LogicalTime& HLAinteger64Time::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   HLAinteger64Interval const& interval = dynamic_cast<HLAinteger64Interval const&>(subtrahend);
   _implementation->value = wrappedDifference(_implementation->value, interval.getInterval());
   return *this;
}

long long HLAinteger64Time::getTime() const
{
   return _implementation->value;
}

void HLAinteger64Time::setTime(long long value)
{
   _implementation->value = value;
}

} // namespace rti1516e
