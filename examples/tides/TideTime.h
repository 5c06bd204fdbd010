// A kind of logical time made from nothing: minutes since the first high water, in 8 bytes, most
// significant first, which is the form that the RTI has to know.
#ifndef tides_TideTime_h
#define tides_TideTime_h

#include <RTI/LogicalTimeFactory.h>

#include <string>

// The overrides below repeat the exception lists of their bases, by a macro that yields nothing
// where the language has no lists. Compilers warn of lists, but not between two macros.
RTI_BEGIN_INTERFACE

wchar_t const* const tideTimeName = L"TideTime";

// What a time and an interval have in common: a count of minutes, and the base that says which of
// the two it is. Another kind of time is refused by an exception of the base's list.
template <class Base, class Refusal>
class Tide : public Base {
public:
   explicit Tide(long long minutes = 0) : _minutes(minutes) {}

   long long minutes() const
   {
      return _minutes;
   }

   Base& operator=(Base const& value) RTI_THROW((Refusal)) override
   {
      _minutes = minutesOf(value);
      return *this;
   }

   Base& operator+=(rti1516e::LogicalTimeInterval const& addend) RTI_THROW(
         (rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTimeInterval)) override;
   Base& operator-=(rti1516e::LogicalTimeInterval const& subtrahend) RTI_THROW(
         (rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTimeInterval)) override;

   bool operator>(Base const& value) const RTI_THROW((Refusal)) override
   {
      return _minutes > minutesOf(value);
   }

   bool operator<(Base const& value) const RTI_THROW((Refusal)) override
   {
      return _minutes < minutesOf(value);
   }

   bool operator==(Base const& value) const RTI_THROW((Refusal)) override
   {
      return _minutes == minutesOf(value);
   }

   bool operator>=(Base const& value) const RTI_THROW((Refusal)) override
   {
      return _minutes >= minutesOf(value);
   }

   bool operator<=(Base const& value) const RTI_THROW((Refusal)) override
   {
      return _minutes <= minutesOf(value);
   }

   // Every time of a kind has one length: the library asks makeFinal() for it.
   size_t encodedLength() const override;
   rti1516e::VariableLengthData encode() const override;
   size_t encode(void* buffer, size_t bufferSize) const
         RTI_THROW((rti1516e::CouldNotEncode)) override;
   void decode(rti1516e::VariableLengthData const& data)
         RTI_THROW((rti1516e::InternalError, rti1516e::CouldNotDecode)) override;
   void decode(void* buffer, size_t bufferSize)
         RTI_THROW((rti1516e::InternalError, rti1516e::CouldNotDecode)) override;

   std::wstring implementationName() const override
   {
      return tideTimeName;
   }

protected:
   static long long minutesOf(Base const& value);

   long long _minutes;
};

class TideInterval
      : public Tide<rti1516e::LogicalTimeInterval, rti1516e::InvalidLogicalTimeInterval> {
public:
   using Tide::Tide;
   using Tide::operator=;

   void setZero() override;
   bool isZero() const override;
   void setEpsilon() override;
   bool isEpsilon() const override;
   void setToDifference(
         rti1516e::LogicalTime const& minuend, rti1516e::LogicalTime const& subtrahend)
         RTI_THROW((rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTime)) override;
   std::wstring toString() const override;
};

class TideTime : public Tide<rti1516e::LogicalTime, rti1516e::InvalidLogicalTime> {
public:
   using Tide::Tide;
   using Tide::operator=;

   void setInitial() override;
   bool isInitial() const override;
   void setFinal() override;
   bool isFinal() const override;
   std::wstring toString() const override; // as "tide 3 + 90 min"
};

RTI_END_INTERFACE

#endif
