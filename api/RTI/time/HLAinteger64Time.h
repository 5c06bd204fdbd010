// The standard integer time.
#ifndef RTI_HLAinteger64Time_h
#define RTI_HLAinteger64Time_h

#include <RTI/LogicalTime.h>
#include <RTI/SpecificConfig.h>
#include <RTI/time/HLAinteger64Interval.h>

#if __cplusplus >= 202002L
#include <concepts>
#endif

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAinteger64TimeImplementation;

/// A logical time that is a signed 64-bit integer; nothing keeps it from being negative.
///
/// Arithmetic wraps around silently: the final time and 1 more is the most negative value. The
/// encoded form is 8 bytes, most significant byte first.
///
/// Where an operation takes a LogicalTime it takes an HLAinteger64Time, and an HLAinteger64Interval
/// for a LogicalTimeInterval. Any other class is a std::bad_cast: the constructor lets it out,
/// every other operation ends the process through std::unexpected, since it is in no list. So does
/// a buffer of less than 8 bytes: what is thrown is a pointer to a CouldNotDecode.
class RTI_EXPORT HLAinteger64Time : public LogicalTime {
public:
   /// The initial time.
   HLAinteger64Time();

   /// The number, or the value of another time.
   HLAinteger64Time(long long value);
   HLAinteger64Time(LogicalTime const& value);
   HLAinteger64Time(HLAinteger64Time const& value);
   virtual ~HLAinteger64Time();

   /// 0.
   virtual void setInitial();
   virtual bool isInitial() const;

   /// 9223372036854775807.
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

   /// The class's name and in angle brackets the value.
   virtual std::wstring toString() const;

   /// "HLAinteger64Time".
   virtual std::wstring implementationName() const;

   /// The value as a number.
   virtual long long getTime() const;
   virtual void setTime(long long value);
   virtual HLAinteger64Time& operator=(HLAinteger64Time const& value);

   /// The value as a number, without a word on it.
   operator long long() const;

private:
   HLAinteger64TimeImplementation* _implementation;
};

#if __cplusplus >= 202002L
// This language version tries the operands in either order and finds both as good for two of the
// class, or of a federate's class over it. A number is no operand: it is compared with a number.
template <std::derived_from<HLAinteger64Time> Left, std::derived_from<HLAinteger64Time> Right>
bool operator==(Left const& left, Right const& right)
{
   return left.operator==(static_cast<LogicalTime const&>(right));
}
#endif

} // namespace rti1516e

RTI_END_INTERFACE

#endif
