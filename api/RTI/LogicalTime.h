// The abstract logical time, a point on a federation's time axis.
#ifndef RTI_LogicalTime_h
#define RTI_LogicalTime_h

#include <RTI/SpecificConfig.h>

#include <cstddef>
#include <iosfwd>
#include <RTI/Exception.h>
#include <RTI/VariableLengthData.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class LogicalTimeInterval;

/// A logical time of any kind. The library handles every time through this class, so that a
/// federation may use a kind of its own; all its federates then use that same kind.
///
/// The operations that take a time or an interval take one of the same kind. What another kind
/// leads to is told with each kind, as are the length and layout of the encoded form.
class RTI_EXPORT LogicalTime {
public:
#if __cplusplus >= 201103L
   // Without a word on them the assignment below would make copies deprecated.
   /// A time that its class gives a value.
   LogicalTime() = default;
   LogicalTime(LogicalTime const&) = default;
#endif

   virtual ~LogicalTime();

   /// Sets the first time of the axis.
   virtual void setInitial() = 0;
   /// Whether it is the first time.
   virtual bool isInitial() const = 0;

   /// Sets the last time of the axis.
   virtual void setFinal() = 0;
   /// Whether it is the last time.
   virtual bool isFinal() const = 0;

   /// Copies the value.
   virtual LogicalTime& operator=(LogicalTime const& value) RTI_THROW((InvalidLogicalTime)) = 0;

   /// Moves the time on by the interval, or back by it.
   virtual LogicalTime& operator+=(LogicalTimeInterval const& addend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval)) = 0;
   virtual LogicalTime& operator-=(LogicalTimeInterval const& subtrahend)
         RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval)) = 0;

   /// Compares the values; the later time is the greater one.
   virtual bool operator>(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime)) = 0;
   virtual bool operator<(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime)) = 0;
   virtual bool operator==(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime)) = 0;
   virtual bool operator>=(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime)) = 0;
   virtual bool operator<=(LogicalTime const& value) const RTI_THROW((InvalidLogicalTime)) = 0;

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

   /// Name of the kind of time, as a federation execution is created with it.
   virtual std::wstring implementationName() const = 0;
};

/// Writes the time's toString().
RTI_EXPORT std::wostream& operator<<(std::wostream& stream, LogicalTime const& value);

} // namespace rti1516e

RTI_END_INTERFACE

#endif
