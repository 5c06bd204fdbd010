// What the four classes of the standard times have alike: a value with its arithmetic, bytes and
// text, and the members that hand over to it. The constants stand in each class's own unit.
#ifndef time_StandardTime_h
#define time_StandardTime_h

#include "encoding/Encoder.h"

#include <sstream>

namespace rti1516e {

// Integers wrap around; signed ones may not, so the sums are made without a sign. Doubles are
// added as they are.

inline long long sumOf(long long left, long long right)
{
   return static_cast<long long>(
         static_cast<unsigned long long>(left) + static_cast<unsigned long long>(right));
}

inline long long differenceOf(long long left, long long right)
{
   return static_cast<long long>(
         static_cast<unsigned long long>(left) - static_cast<unsigned long long>(right));
}

inline double sumOf(double left, double right)
{
   return left + right;
}

inline double differenceOf(double left, double right)
{
   return left - right;
}

// What a time or an interval holds and does.
template <class Coding>
class StandardValue {
public:
   typedef typename Coding::Value Value;

   StandardValue() : value(0) {}
   explicit StandardValue(Value number) : value(number) {}

   void add(Value distance)
   {
      value = sumOf(value, distance);
   }

   void subtract(Value distance)
   {
      value = differenceOf(value, distance);
   }

   VariableLengthData encode() const
   {
      typename Coding::Bytes bytes(value);
      return VariableLengthData(bytes.data(), bytes.size());
   }

   size_t encode(void* buffer, size_t bufferSize, size_t encodedLength) const
   {
      requireBytes(bufferSize, encodedLength);
      Coding::encode(value, buffer);
      return length();
   }

   void decode(void const* buffer, size_t bufferSize, size_t encodedLength)
   {
      requireBytes(bufferSize, encodedLength);
      Coding::decode(buffer, bufferSize, value);
   }

   size_t length() const
   {
      return static_cast<size_t>(Coding::size(value));
   }

   std::wstring toString(wchar_t const* className) const
   {
      std::wstringstream stream;
      stream << className << L"<" << value << L">";
      return stream.str();
   }

   Value value;

private:
   // What is thrown is the pointer. No list allows it, so that it ends the process.
   static void requireBytes(size_t bufferSize, size_t encodedLength)
   {
      if (bufferSize < encodedLength) {
         throw new CouldNotDecode(L"Buffer too small!");
      }
   }
};

} // namespace rti1516e

// clang-format off

// Defines one comparison of Class. The cast refuses every other class derived from Base.
#define DEFINE_COMPARISON(Class, Base, Comparison)                                                 \
   bool Class::operator Comparison(Base const& value) const RTI_THROW((Invalid##Base))             \
   {                                                                                               \
      return _implementation->value                                                                \
         Comparison dynamic_cast<Class const&>(value)._implementation->value;                      \
   }

// Defines the members that times and intervals have alike. Class derives from Base and holds a
// Value; Kind is the name of its kind of time.
#define DEFINE_STANDARD_VALUE(Class, Base, Value, Kind)                                            \
   Class::Class() : _implementation(new Class##Implementation) {}                                  \
   Class::Class(Base const& value) : Class(dynamic_cast<Class const&>(value)) {}                   \
   Class::Class(Class const& value)                                                                \
      : Base(), _implementation(new Class##Implementation(*value._implementation)) {}              \
   Class::~Class() { delete _implementation; }                                                     \
   Base& Class::operator=(Base const& value) RTI_THROW((Invalid##Base))                            \
   { return *this = dynamic_cast<Class const&>(value); }                                           \
   Class& Class::operator=(Class const& value)                                                     \
   {                                                                                               \
      _implementation->value = value._implementation->value;                                       \
      return *this;                                                                                \
   }                                                                                               \
   DEFINE_COMPARISON(Class, Base, >)                                                               \
   DEFINE_COMPARISON(Class, Base, <)                                                               \
   DEFINE_COMPARISON(Class, Base, ==)                                                              \
   DEFINE_COMPARISON(Class, Base, >=)                                                              \
   DEFINE_COMPARISON(Class, Base, <=)                                                              \
   VariableLengthData Class::encode() const { return _implementation->encode(); }                  \
   size_t Class::encode(void* buffer, size_t bufferSize) const RTI_THROW((CouldNotEncode))         \
   { return _implementation->encode(buffer, bufferSize, encodedLength()); }                        \
   size_t Class::encodedLength() const { return _implementation->length(); }                       \
   void Class::decode(VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode))   \
   { _implementation->decode(data.data(), data.size(), encodedLength()); }                         \
   void Class::decode(void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode))  \
   { _implementation->decode(buffer, bufferSize, encodedLength()); }                               \
   std::wstring Class::toString() const { return _implementation->toString(L"" #Class); }          \
   std::wstring Class::implementationName() const { return L"" #Kind; }                            \
   Class::operator Value() const { return _implementation->value; }

// Defines one arithmetic operation of Class by the function of its implementation. The cast refuses
// every other class of intervals.
#define DEFINE_ARITHMETIC(Class, Base, Interval, Operation, function)                              \
   Base& Class::operator Operation(LogicalTimeInterval const& distance)                            \
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))                               \
   {                                                                                               \
      _implementation->function(dynamic_cast<Interval const&>(distance).getInterval());            \
      return *this;                                                                                \
   }

// Defines the members of the time Class, whose distances are of the class Interval. Its
// implementation has the constants.
#define DEFINE_STANDARD_TIME(Class, Interval, Value)                                               \
   DEFINE_STANDARD_VALUE(Class, LogicalTime, Value, Class)                                         \
   void Class::setInitial() { _implementation->value = Class##Implementation::INITIAL_VALUE; }     \
   bool Class::isInitial() const                                                                   \
   { return _implementation->value == Class##Implementation::INITIAL_VALUE; }                      \
   void Class::setFinal() { _implementation->value = Class##Implementation::FINAL_VALUE; }         \
   bool Class::isFinal() const                                                                     \
   { return _implementation->value == Class##Implementation::FINAL_VALUE; }                        \
   DEFINE_ARITHMETIC(Class, LogicalTime, Interval, +=, add)                                        \
   DEFINE_ARITHMETIC(Class, LogicalTime, Interval, -=, subtract)                                   \
   Value Class::getTime() const { return _implementation->value; }                                 \
   void Class::setTime(Value value) { _implementation->value = value; }

// Defines the members of the interval Class between two of the class Time. Its implementation has
// the constants.
#define DEFINE_STANDARD_INTERVAL(Class, Time, Value)                                               \
   DEFINE_STANDARD_VALUE(Class, LogicalTimeInterval, Value, Time)                                  \
   Class::Class(Value value) : _implementation(new Class##Implementation(value)) {}                \
   void Class::setZero() { _implementation->value = Class##Implementation::ZERO_VALUE; }           \
   bool Class::isZero() const                                                                      \
   { return _implementation->value == Class##Implementation::ZERO_VALUE; }                         \
   void Class::setEpsilon() { _implementation->value = Class##Implementation::EPSILON_VALUE; }     \
   bool Class::isEpsilon() const                                                                   \
   { return _implementation->value == Class##Implementation::EPSILON_VALUE; }                      \
   DEFINE_ARITHMETIC(Class, LogicalTimeInterval, Class, +=, add)                                   \
   DEFINE_ARITHMETIC(Class, LogicalTimeInterval, Class, -=, subtract)                              \
   void Class::setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)          \
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime))                                       \
   {                                                                                               \
      Time const& left = dynamic_cast<Time const&>(minuend);                                       \
      Time const& right = dynamic_cast<Time const&>(subtrahend);                                   \
      _implementation->value = differenceOf(left.getTime(), right.getTime());                      \
   }                                                                                               \
   Value Class::getInterval() const { return _implementation->value; }                             \
   void Class::setInterval(Value value) { _implementation->value = value; }

// clang-format on

#endif
