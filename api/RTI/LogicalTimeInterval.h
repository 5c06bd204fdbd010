// The abstract logical time interval, a distance on a federation's time axis.
#ifndef RTI_LogicalTimeInterval_h
#define RTI_LogicalTimeInterval_h

#include <RTI/SpecificConfig.h>

#include <cstddef>
#include <iosfwd>
#include <RTI/Exception.h>
#include <RTI/VariableLengthData.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class LogicalTime;

/// A logical time interval of any kind; each kind belongs to one kind of LogicalTime, and all that
/// is told there of kinds holds here.
class RTI_EXPORT LogicalTimeInterval {
public:
#if __cplusplus >= 201103L
   // Without a word on them the assignment below would make copies deprecated.
   /// An interval that its class gives a value.
   LogicalTimeInterval() = default;
   LogicalTimeInterval(LogicalTimeInterval const&) = default;
#endif

   virtual ~LogicalTimeInterval();

   /// Sets the empty interval.
   virtual void setZero() = 0;
   /// Whether it is the empty interval.
   virtual bool isZero() const = 0;

   /// Sets the smallest interval above the empty one.
   virtual void setEpsilon() = 0;
   /// Whether it is the smallest one above that.
   virtual bool isEpsilon() const = 0;

   /// Copies the value.
   virtual LogicalTimeInterval& operator=(LogicalTimeInterval const& value)
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;

   /// Adds the value, or subtracts it.
   virtual LogicalTimeInterval& operator+=(LogicalTimeInterval const& addend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval)) = 0;
   virtual LogicalTimeInterval& operator-=(LogicalTimeInterval const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval)) = 0;

   /// Compares the values.
   virtual bool operator>(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;
   virtual bool operator<(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;
   virtual bool operator==(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;
   virtual bool operator>=(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;
   virtual bool operator<=(LogicalTimeInterval const& value) const
         RTI_THROW((InvalidLogicalTimeInterval)) = 0;

   /// Sets the distance from the subtrahend to the minuend.
   virtual void setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime)) = 0;

   /// The encoded form; the result owns its bytes.
   virtual VariableLengthData encode() const = 0;

   /// Writes the encoded form into the caller's buffer and returns its length. Sizes are in bytes.
   virtual size_t encode(void* buffer, size_t bufferSize) const RTI_THROW((CouldNotEncode)) = 0;

   /// Length of the encoded form in bytes.
   virtual size_t encodedLength() const = 0;

   /// Takes the value from an encoded form; bytes behind it are ignored.
   virtual void decode(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) = 0;
   virtual void decode(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode)) = 0;

   /// The value as text for people.
   virtual std::wstring toString() const = 0;

   /// Name of the kind of time that the interval belongs to.
   virtual std::wstring implementationName() const = 0;
};

} // namespace rti1516e

/// Writes the interval's toString(). It stands outside every namespace, so that code inside a
/// namespace with inserters of its own does not find it and writes the number alone, to which the
/// standard intervals convert: HLAinteger64Interval(3) comes out as 3. There bring it in by a
/// using-declaration with :: in front, or write the interval's toString().
RTI_EXPORT std::wostream& operator<<(
      std::wostream& stream, rti1516e::LogicalTimeInterval const& value);

RTI_END_INTERFACE

#endif
