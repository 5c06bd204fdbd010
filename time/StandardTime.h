// What the four classes of the standard times have alike: a record with the value, comparisons,
// bytes and texts. The rest of a class stands in its own unit.
#ifndef time_StandardTime_h
#define time_StandardTime_h

#include "encoding/Encoder.h"

#include <sstream>

namespace rti1516e {

// What is thrown is the pointer. No list allows it, so that it ends the process.
inline void requireBytes(size_t bufferSize, size_t encodedLength)
{
   if (bufferSize < encodedLength) {
      throw new CouldNotDecode(L"Buffer too small!");
   }
}

// Integer times wrap around; signed integers may not, so the sums are made without a sign.

inline long long wrappedSum(long long left, long long right)
{
   return static_cast<long long>(
         static_cast<unsigned long long>(left) + static_cast<unsigned long long>(right));
}

inline long long wrappedDifference(long long left, long long right)
{
   return static_cast<long long>(
         static_cast<unsigned long long>(left) - static_cast<unsigned long long>(right));
}

} // namespace rti1516e

// Defines one comparison of Class. The cast refuses every other class derived from Base.
#define DEFINE_COMPARISON(Class, Base, Comparison)                                                 \
   bool Class::operator Comparison(Base const& value) const RTI_THROW((Invalid##Base))             \
   {                                                                                               \
      return _implementation->value Comparison dynamic_cast<Class const&>(value)                   \
            ._implementation->value;                                                               \
   }

// Defines the alike members of Class, which derives from Base and holds a Value. Its bytes are
// those of the encoding Coding; Name is the name of its kind of time.
#define DEFINE_STANDARD_TIME(Class, Base, Value, Coding, Name)                                     \
   class Class##Implementation {                                                                   \
   public:                                                                                         \
      Class##Implementation() : value(0) {}                                                        \
                                                                                                   \
      Value value;                                                                                 \
   };                                                                                              \
                                                                                                   \
   Class::Class() : _implementation(new Class##Implementation) {}                                  \
                                                                                                   \
   Class::Class(Base const& value) : Class(dynamic_cast<Class const&>(value)) {}                   \
                                                                                                   \
   Class::Class(Class const& value)                                                                \
         : Base(),                                                                                 \
           _implementation(new Class##Implementation(*value._implementation))                      \
   {                                                                                               \
   }                                                                                               \
                                                                                                   \
   Class::~Class()                                                                                 \
   {                                                                                               \
      delete _implementation;                                                                      \
   }                                                                                               \
                                                                                                   \
   Base& Class::operator=(Base const& value) RTI_THROW((Invalid##Base))                            \
   {                                                                                               \
      _implementation->value = dynamic_cast<Class const&>(value)._implementation->value;           \
      return *this;                                                                                \
   }                                                                                               \
                                                                                                   \
   Class& Class::operator=(Class const& value)                                                     \
   {                                                                                               \
      _implementation->value = value._implementation->value;                                       \
      return *this;                                                                                \
   }                                                                                               \
                                                                                                   \
   DEFINE_COMPARISON(Class, Base, >)                                                               \
   DEFINE_COMPARISON(Class, Base, <)                                                               \
   DEFINE_COMPARISON(Class, Base, ==)                                                              \
   DEFINE_COMPARISON(Class, Base, >=)                                                              \
   DEFINE_COMPARISON(Class, Base, <=)                                                              \
                                                                                                   \
   VariableLengthData Class::encode() const                                                        \
   {                                                                                               \
      int length;                                                                                  \
      char* const bytes = Encoder::encode##Coding(_implementation->value, length);                 \
      VariableLengthData data;                                                                     \
      data.takeDataPointer(bytes, static_cast<unsigned long>(length));                             \
      return data;                                                                                 \
   }                                                                                               \
                                                                                                   \
   size_t Class::encode(void* buffer, size_t bufferSize) const RTI_THROW((CouldNotEncode))         \
   {                                                                                               \
      requireBytes(bufferSize, encodedLength());                                                   \
      Encoder::encode##Coding(_implementation->value, buffer);                                     \
      return static_cast<size_t>(Encoder::sizeof##Coding(_implementation->value));                 \
   }                                                                                               \
                                                                                                   \
   size_t Class::encodedLength() const                                                             \
   {                                                                                               \
      return static_cast<size_t>(Encoder::sizeof##Coding(_implementation->value));                 \
   }                                                                                               \
                                                                                                   \
   void Class::decode(VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode))   \
   {                                                                                               \
      requireBytes(data.size(), encodedLength());                                                  \
      _implementation->value = Encoder::decode##Coding(data.data(), data.size());                  \
   }                                                                                               \
                                                                                                   \
   void Class::decode(void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode))  \
   {                                                                                               \
      requireBytes(bufferSize, encodedLength());                                                   \
      _implementation->value = Encoder::decode##Coding(buffer, bufferSize);                        \
   }                                                                                               \
                                                                                                   \
   std::wstring Class::toString() const                                                            \
   {                                                                                               \
      std::wstringstream stream;                                                                   \
      stream << L"" #Class << L"<" << _implementation->value << L">";                              \
      return stream.str();                                                                         \
   }                                                                                               \
                                                                                                   \
   std::wstring Class::implementationName() const                                                  \
   {                                                                                               \
      return L"" #Name;                                                                            \
   }                                                                                               \
                                                                                                   \
   Class::operator Value() const                                                                   \
   {                                                                                               \
      return _implementation->value;                                                               \
   }

#endif
