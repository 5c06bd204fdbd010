// The interval of the standard float time.
#ifndef RTI_HLAfloat64Interval_h
#define RTI_HLAfloat64Interval_h

#include <RTI/LogicalTimeInterval.h>
#include <RTI/SpecificConfig.h>

#if __cplusplus >= 202002L
#include <concepts>
#endif

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAfloat64IntervalImplementation;

/// A distance between two HLAfloat64Time: a double, which may be negative.
///
/// Arithmetic and comparisons are the plain ones of doubles, NaN included. The encoded form is the
/// 8 bytes of the IEEE 754 double, most significant byte first.
///
/// Where an operation takes a LogicalTimeInterval, it takes an HLAfloat64Interval, and
/// setToDifference two HLAfloat64Time. Any other class is a std::bad_cast: the constructor lets
/// it out, every other operation ends the process through std::unexpected, since it is in no list.
/// So does a buffer of less than 8 bytes: what is thrown is a pointer to a CouldNotDecode.
class RTI_EXPORT HLAfloat64Interval : public LogicalTimeInterval {
public:
   /// Zero.
   HLAfloat64Interval();

   /// The number, or the value of another interval.
   HLAfloat64Interval(double value);
   HLAfloat64Interval(LogicalTimeInterval const& value);
   HLAfloat64Interval(HLAfloat64Interval const& value);
   virtual ~HLAfloat64Interval();

   /// 0.0; -0.0 is zero, too.
   virtual void setZero();
   virtual bool isZero() const;

   /// 2.2250738585072014e-308, the smallest normal double above zero. The factory's epsilon is
   /// another one.
   virtual void setEpsilon();
   virtual bool isEpsilon() const;

   virtual LogicalTimeInterval& operator=(LogicalTimeInterval const& value)
         RTI_THROW((InvalidLogicalTimeInterval));
   virtual LogicalTimeInterval& operator+=(LogicalTimeInterval const& addend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual LogicalTimeInterval& operator-=(LogicalTimeInterval const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval));

   virtual bool operator>(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval));
   virtual bool operator<(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval));
   virtual bool operator==(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval));
   virtual bool operator>=(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval));
   virtual bool operator<=(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval));

   virtual void setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime));

   virtual VariableLengthData encode() const;
   virtual size_t encode(void* buffer, size_t bufferSize) const RTI_THROW((CouldNotEncode));
   virtual size_t encodedLength() const;
   virtual void decode(VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode));
   virtual void decode(void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode));

   /// The class's name and in angle brackets the value with six significant digits.
   virtual std::wstring toString() const;

   /// "HLAfloat64Time", the name of the time that the interval belongs to.
   virtual std::wstring implementationName() const;

   /// The value as a number.
   virtual double getInterval() const;
   virtual void setInterval(double value);
   virtual HLAfloat64Interval& operator=(HLAfloat64Interval const& value);

   /// The value as a number, without a word on it.
   operator double() const;

private:
   HLAfloat64IntervalImplementation* _implementation;
};

#if __cplusplus >= 202002L
// This language version tries the operands in either order and finds both as good for two of the
// class, or of a federate's class over it. A number is no operand: it is compared with a number.
template <std::derived_from<HLAfloat64Interval> Left, std::derived_from<HLAfloat64Interval> Right>
bool operator==(Left const& left, Right const& right)
{
   return left.operator==(static_cast<LogicalTimeInterval const&>(right));
}
#endif

} // namespace rti1516e

RTI_END_INTERFACE

#endif
