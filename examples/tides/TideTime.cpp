#include "TideTime.h"

#include <limits>

using namespace rti1516e;

RTI_BEGIN_INTERFACE

namespace {

long long const lastMinute = std::numeric_limits<long long>::max();
long long const minutesOfATide = 12 * 60 + 25;
size_t const length = 8;

} // namespace

template <class Base, class Refusal>
long long Tide<Base, Refusal>::minutesOf(Base const& value)
{
   Tide const* const tide = dynamic_cast<Tide const*>(&value);
   if (tide == nullptr) {
      throw Refusal(L"Not of the kind TideTime: " + value.toString());
   }
   return tide->_minutes;
}

// The minutes of the interval are asked for by its own class, since the base may be a time's.
template <class Base, class Refusal>
Base& Tide<Base, Refusal>::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   TideInterval interval;
   interval = addend;
   long long sum;
   if (__builtin_add_overflow(_minutes, interval.minutes(), &sum)) {
      throw IllegalTimeArithmetic(L"Past the end of time");
   }
   _minutes = sum;
   return *this;
}

template <class Base, class Refusal>
Base& Tide<Base, Refusal>::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   TideInterval interval;
   interval = subtrahend;
   long long difference;
   if (__builtin_sub_overflow(_minutes, interval.minutes(), &difference)) {
      throw IllegalTimeArithmetic(L"Before the beginning of time");
   }
   _minutes = difference;
   return *this;
}

template <class Base, class Refusal>
size_t Tide<Base, Refusal>::encodedLength() const
{
   return length;
}

template <class Base, class Refusal>
VariableLengthData Tide<Base, Refusal>::encode() const
{
   char bytes[length];
   encode(bytes, length);
   return VariableLengthData(bytes, length);
}

template <class Base, class Refusal>
size_t Tide<Base, Refusal>::encode(void* buffer, size_t bufferSize) const
      RTI_THROW((CouldNotEncode))
{
   if (bufferSize < length) {
      throw CouldNotEncode(L"A TideTime takes 8 bytes");
   }
   for (size_t i = 0; i < length; ++i) {
      static_cast<char*>(buffer)[i] = static_cast<char>(_minutes >> (56 - 8 * i));
   }
   return length;
}

template <class Base, class Refusal>
void Tide<Base, Refusal>::decode(VariableLengthData const& data)
      RTI_THROW((InternalError, CouldNotDecode))
{
   decode(const_cast<void*>(data.data()), data.size());
}

template <class Base, class Refusal>
void Tide<Base, Refusal>::decode(void* buffer, size_t bufferSize)
      RTI_THROW((InternalError, CouldNotDecode))
{
   if (bufferSize < length) {
      throw CouldNotDecode(L"A TideTime takes 8 bytes");
   }
   unsigned long long bits = 0;
   for (size_t i = 0; i < length; ++i) {
      bits = bits << 8 | static_cast<unsigned char const*>(buffer)[i];
   }
   _minutes = static_cast<long long>(bits);
}

template class Tide<LogicalTime, InvalidLogicalTime>;
template class Tide<LogicalTimeInterval, InvalidLogicalTimeInterval>;

void TideInterval::setZero()
{
   _minutes = 0;
}

bool TideInterval::isZero() const
{
   return _minutes == 0;
}

void TideInterval::setEpsilon()
{
   _minutes = 1;
}

bool TideInterval::isEpsilon() const
{
   return _minutes == 1;
}

void TideInterval::setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime))
{
   TideTime from;
   TideTime to;
   to = minuend;
   from = subtrahend;
   long long difference;
   if (__builtin_sub_overflow(to.minutes(), from.minutes(), &difference)) {
      throw IllegalTimeArithmetic(L"Longer than any interval");
   }
   _minutes = difference;
}

std::wstring TideInterval::toString() const
{
   return std::to_wstring(_minutes) + L" min";
}

void TideTime::setInitial()
{
   _minutes = 0;
}

bool TideTime::isInitial() const
{
   return _minutes == 0;
}

void TideTime::setFinal()
{
   _minutes = lastMinute;
}

bool TideTime::isFinal() const
{
   return _minutes == lastMinute;
}

std::wstring TideTime::toString() const
{
   return L"tide " + std::to_wstring(_minutes / minutesOfATide) + L" + "
         + std::to_wstring(_minutes % minutesOfATide) + L" min";
}

RTI_END_INTERFACE
