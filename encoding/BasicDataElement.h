// The one pattern of the scalars and strings: a value inside the element or in the caller's
// variable, and the members that encode and decode it by the Encoder functions of the element's
// name.
#ifndef encoding_BasicDataElement_h
#define encoding_BasicDataElement_h

#include "encoding/Encoder.h"
#include "encoding/hasher.h"
#include "encoding/ScalarCodec.h"

#include <memory>
#include <RTI/encoding/BasicDataElements.h>
#include <utility>

namespace rti1516e {

// An element's value: the caller's variable if one is bound, else the one inside.
template <class Value>
class BasicValue {
public:
   BasicValue() : _external(nullptr), _value() {}
   explicit BasicValue(Value const& value) : _external(nullptr), _value(value) {}
   explicit BasicValue(Value* external) : _external(external), _value() {}

   Value const& get() const
   {
      return _external != nullptr ? *_external : _value;
   }

   // Ends the binding.
   void set(Value value)
   {
      _external = nullptr;
      _value = std::move(value);
   }

   void bind(Value* external)
   {
      _external = external;
   }

   // Where a decoded value goes: the binding stays.
   Value& decoded()
   {
      return _external != nullptr ? *_external : _value;
   }

private:
   Value* _external; // the caller's
   Value _value;
};

} // namespace rti1516e

// Defines all members of the element X with values of type V.
#define RTI_DEFINE_BASIC_DATA_ELEMENT(X, V)                                                        \
   namespace rti1516e {                                                                            \
                                                                                                   \
   class X##Implementation : public BasicValue<V> {                                                \
   public:                                                                                         \
      using BasicValue<V>::BasicValue;                                                             \
                                                                                                   \
      static V const& valueOf(DataElement const& element)                                          \
      {                                                                                            \
         return static_cast<X const&>(element)._implementation->get();                             \
      }                                                                                            \
                                                                                                   \
      static V& decodedValueOf(DataElement& element)                                               \
      {                                                                                            \
         return static_cast<X&>(element)._implementation->decoded();                               \
      }                                                                                            \
   };                                                                                              \
                                                                                                   \
   X::X() : _implementation(new X##Implementation) {}                                              \
                                                                                                   \
   X::X(V const& inData) : _implementation(new X##Implementation(inData)) {}                       \
                                                                                                   \
   X::X(V* inData) : _implementation(new X##Implementation(inData)) {}                             \
                                                                                                   \
   X::X(X const& rhs)                                                                              \
         : DataElement(rhs),                                                                       \
           _implementation(new X##Implementation(rhs._implementation->get()))                      \
   {                                                                                               \
   }                                                                                               \
                                                                                                   \
   X::~X()                                                                                         \
   {                                                                                               \
      delete _implementation;                                                                      \
   }                                                                                               \
                                                                                                   \
   X& X::operator=(X const& rhs)                                                                   \
   {                                                                                               \
      *_implementation = X##Implementation();                                                      \
      _implementation->set(rhs._implementation->get());                                            \
      return *this;                                                                                \
   }                                                                                               \
                                                                                                   \
   X& X::operator=(V rhs)                                                                          \
   {                                                                                               \
      _implementation->set(std::move(rhs));                                                        \
      return *this;                                                                                \
   }                                                                                               \
                                                                                                   \
   X::operator V() const                                                                           \
   {                                                                                               \
      return _implementation->get();                                                               \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<DataElement> X::clone() const                                                     \
   {                                                                                               \
      return std::auto_ptr<DataElement>(new X(_implementation->get()));                            \
   }                                                                                               \
                                                                                                   \
   VariableLengthData X::encode() const RTI_THROW((EncoderException))                              \
   {                                                                                               \
      VariableLengthData data;                                                                     \
      encode(data);                                                                                \
      return data;                                                                                 \
   }                                                                                               \
                                                                                                   \
   void X::encode(VariableLengthData& inData) const RTI_THROW((EncoderException))                  \
   {                                                                                               \
      int length;                                                                                  \
      std::unique_ptr<char[]> bytes(Encoder::encode##X(_implementation->get(), length));           \
      inData.setData(bytes.get(), static_cast<unsigned long>(length));                             \
   }                                                                                               \
                                                                                                   \
   void X::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))              \
   {                                                                                               \
      Encoder::append##X(buffer, getOctetBoundary(), _implementation->get());                      \
   }                                                                                               \
                                                                                                   \
   void X::decode(VariableLengthData const& inData) RTI_THROW((EncoderException))                  \
   {                                                                                               \
      unsigned long const length = bytesLeft(inData.size(), 0, getOctetBoundary());                \
      Encoder::decode##X(inData.data(), length, _implementation->decoded());                       \
   }                                                                                               \
                                                                                                   \
   std::size_t X::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)                  \
         RTI_THROW((EncoderException))                                                             \
   {                                                                                               \
      unsigned long const length = bytesLeft(buffer.size(), index, getOctetBoundary());            \
      Encoder::decode##X(&buffer[index], length, _implementation->decoded());                      \
      return index + getEncodedLength();                                                           \
   }                                                                                               \
                                                                                                   \
   std::size_t X::getEncodedLength() const RTI_THROW((EncoderException))                           \
   {                                                                                               \
      return static_cast<std::size_t>(Encoder::sizeof##X(_implementation->get()));                 \
   }                                                                                               \
                                                                                                   \
   unsigned int X::getOctetBoundary() const                                                        \
   {                                                                                               \
      return Encoder::boundaryof##X();                                                             \
   }                                                                                               \
                                                                                                   \
   Integer64 X::hash() const                                                                       \
   {                                                                                               \
      return hasher(_implementation->get());                                                       \
   }                                                                                               \
                                                                                                   \
   void X::setDataPointer(V* inData)                                                               \
   {                                                                                               \
      _implementation->bind(inData);                                                               \
   }                                                                                               \
                                                                                                   \
   void X::set(V inData)                                                                           \
   {                                                                                               \
      _implementation->set(std::move(inData));                                                     \
   }                                                                                               \
                                                                                                   \
   V X::get() const                                                                                \
   {                                                                                               \
      return _implementation->get();                                                               \
   }                                                                                               \
                                                                                                   \
   } // namespace rti1516e

// The same for a scalar, and its codec.
#define RTI_DEFINE_SCALAR(X, V)                                                                    \
   RTI_DEFINE_BASIC_DATA_ELEMENT(X, V)                                                             \
                                                                                                   \
   namespace rti1516e {                                                                            \
                                                                                                   \
   static void store##X(DataElement const& scalar, char* out)                                      \
   {                                                                                               \
      Encoder::encode##X(X##Implementation::valueOf(scalar), out);                                 \
   }                                                                                               \
                                                                                                   \
   static void load##X(DataElement& scalar, char const* in)                                        \
   {                                                                                               \
      Encoder::decode##X(in, sizeof(V), X##Implementation::decodedValueOf(scalar));                \
   }                                                                                               \
                                                                                                   \
   extern ScalarCodec const X##Codec;                                                              \
   ScalarCodec const X##Codec = {Encoder::boundaryof##X(), store##X, load##X};                     \
                                                                                                   \
   } // namespace rti1516e

#endif
