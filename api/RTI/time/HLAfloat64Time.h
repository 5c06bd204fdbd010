// The standard float time.
#ifndef RTI_HLAfloat64Time_h
#define RTI_HLAfloat64Time_h

#include <RTI/LogicalTime.h>
#include <RTI/SpecificConfig.h>
#include <RTI/time/HLAfloat64Interval.h>

#if __cplusplus >= 202002L
#include <concepts>
#endif

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAfloat64TimeImplementation;

/// A logical time that is a double; nothing keeps it from being negative, infinite or NaN.
///
/// Adding or subtracting an interval other than zero never leaves a time as it was, unless that is
/// NaN. Where rounding would, the bit pattern of the time is raised by one for an addition and
/// lowered by one for a subtraction, whatever the signs of time and interval; a negative time so
/// moves away from zero by an addition, and an infinite one becomes NaN. A time that is NaN, or an
/// interval that is, gives NaN. Comparisons are the plain ones of doubles: with NaN every one of
/// them is false, as are isInitial() and isFinal(). The encoded form is the 8 bytes of the
/// IEEE 754 double, most significant byte first.
///
/// Where an operation takes a LogicalTime it takes an HLAfloat64Time, and an HLAfloat64Interval
/// for a LogicalTimeInterval. Any other class is a std::bad_cast: the constructor lets it out,
/// every other operation ends the process through std::unexpected, since it is in no list. So does
/// a buffer of less than 8 bytes: what is thrown is a pointer to a CouldNotDecode.
class RTI_EXPORT HLAfloat64Time : public LogicalTime {
public:
   /// The initial time.
   HLAfloat64Time();

   /// The number, or the value of another time.
   HLAfloat64Time(double const& value);
   HLAfloat64Time(LogicalTime const& value);
   HLAfloat64Time(HLAfloat64Time const& value);
   virtual ~HLAfloat64Time();

   /// 0.0.
   virtual void setInitial();
   virtual bool isInitial() const;

   /// 1.7976931348623157e+308, the largest finite double.
   virtual void setFinal();
   virtual bool isFinal() const;

   virtual LogicalTime& operator=(LogicalTime const& value) RTI_THROW((InvalidLogicalTime));
   virtual LogicalTime& operator+=(LogicalTimeInterval const& addend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual LogicalTime& operator-=(LogicalTimeInterval const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval));

   virtual bool operator>(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime));
   virtual bool operator<(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime));
   virtual bool operator==(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime));
   virtual bool operator>=(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime));
   virtual bool operator<=(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime));

   virtual VariableLengthData encode() const;
   virtual size_t encode(void* buffer, size_t bufferSize) const RTI_THROW((CouldNotEncode));
   virtual size_t encodedLength() const;
   virtual void decode(VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode));
   virtual void decode(void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode));

   /// The class's name and in angle brackets the value with six significant digits.
   virtual std::wstring toString() const;

   /// "HLAfloat64Time".
   virtual std::wstring implementationName() const;

   /// The value as a number.
   virtual double getTime() const;
   virtual void setTime(double value);
   virtual HLAfloat64Time& operator=(HLAfloat64Time const& value);

   /// The value as a number, without a word on it.
   operator double() const;

private:
   HLAfloat64TimeImplementation* _implementation;
};

#if __cplusplus >= 202002L
// This language version tries the operands in either order and finds both as good for two of the
// class, or of a federate's class over it. A number is no operand: it is compared with a number.
template <std::derived_from<HLAfloat64Time> Left, std::derived_from<HLAfloat64Time> Right>
bool operator==(Left const& left, Right const& right)
{
   return left.operator==(static_cast<LogicalTime const&>(right));
}
#endif

} // namespace rti1516e

RTI_END_INTERFACE

#endif
