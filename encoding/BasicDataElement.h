// The one pattern of the scalars and strings: a value inside the element or in the caller's
// variable, encoded and decoded by the coding of the element's name.
#ifndef encoding_BasicDataElement_h
#define encoding_BasicDataElement_h

#include "encoding/Encoder.h"
#include "encoding/hasher.h"
#include "encoding/ScalarCodec.h"

#include <memory>
#include <RTI/encoding/BasicDataElements.h>
#include <typeinfo>
#include <utility>

namespace rti1516e {

// What an element is made of and what its members do. Where a boundary is given, it is the one that
// the element tells, which may be that of a federate's subclass.
template <class ElementCoding>
class BasicValue {
public:
   typedef ElementCoding Coding;
   typedef typename Coding::Value Value;

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

   // Ends the binding first: assigned to itself it holds the default value.
   void assign(BasicValue const& rhs)
   {
      *this = BasicValue();
      set(rhs.get());
   }

   std::size_t length() const
   {
      return static_cast<std::size_t>(Coding::size(get()));
   }

   VariableLengthData encode() const
   {
      typename Coding::Bytes bytes(get());
      return VariableLengthData(bytes.data(), bytes.size());
   }

   void encode(VariableLengthData& data) const
   {
      typename Coding::Bytes bytes(get());
      data.setData(bytes.data(), bytes.size());
   }

   void encodeInto(std::vector<Octet>& buffer, unsigned int boundary) const
   {
      Coding::append(buffer, boundary, get());
   }

   void decode(VariableLengthData const& data, unsigned int boundary)
   {
      Coding::decode(data.data(), bytesLeft(data.size(), 0, boundary), decoded());
   }

   void decodeFrom(std::vector<Octet> const& buffer, std::size_t index, unsigned int boundary)
   {
      unsigned long const length = bytesLeft(buffer.size(), index, boundary);
      Coding::decode(&buffer[index], length, decoded());
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

template <class Implementation>
void storeScalar(DataElement const& scalar, char* out)
{
   Implementation::Coding::encode(Implementation::of(scalar).get(), out);
}

template <class Implementation>
void loadScalar(DataElement& scalar, char const* in)
{
   typename Implementation::Value& value = Implementation::of(scalar).decoded();
   Implementation::Coding::decode(in, sizeof(value), value);
}

template <class Element, class Implementation>
constexpr ScalarCodec codecOf()
{
   return {Implementation::Coding::boundary, &typeid(Element), storeScalar<Implementation>,
         loadScalar<Implementation>};
}

} // namespace rti1516e

// Defines the members of the element X with values of type V. Each hands over to the function above
// that does its work.
// clang-format off
#define RTI_DEFINE_BASIC_DATA_ELEMENT(X, V)                                                        \
   namespace rti1516e {                                                                            \
   class X##Implementation : public BasicValue<Encoder::X##Coding> {                               \
   public:                                                                                         \
      using BasicValue::BasicValue;                                                                \
      static X##Implementation& of(DataElement const& element)                                     \
      { return *static_cast<X const&>(element)._implementation; }                                  \
   };                                                                                              \
   X::X() : _implementation(new X##Implementation) {}                                              \
   X::X(V const& inData) : _implementation(new X##Implementation(inData)) {}                       \
   X::X(V* inData) : _implementation(new X##Implementation(inData)) {}                             \
   X::X(X const& rhs)                                                                              \
      : DataElement(rhs), _implementation(new X##Implementation(rhs._implementation->get())) {}    \
   X::~X() { delete _implementation; }                                                             \
   X& X::operator=(X const& rhs) { _implementation->assign(*rhs._implementation); return *this; }  \
   X& X::operator=(V rhs) { _implementation->set(std::move(rhs)); return *this; }                  \
   X::operator V() const { return _implementation->get(); }                                        \
   std::auto_ptr<DataElement> X::clone() const                                                     \
   { return std::auto_ptr<DataElement>(new X(_implementation->get())); }                           \
   VariableLengthData X::encode() const RTI_THROW((EncoderException))                              \
   { return _implementation->encode(); }                                                           \
   void X::encode(VariableLengthData& inData) const RTI_THROW((EncoderException))                  \
   { _implementation->encode(inData); }                                                            \
   void X::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))              \
   { _implementation->encodeInto(buffer, getOctetBoundary()); }                                    \
   void X::decode(VariableLengthData const& inData) RTI_THROW((EncoderException))                  \
   { _implementation->decode(inData, getOctetBoundary()); }                                        \
   std::size_t X::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)                  \
      RTI_THROW((EncoderException))                                                                \
   {                                                                                               \
      _implementation->decodeFrom(buffer, index, getOctetBoundary());                              \
      return index + getEncodedLength();                                                           \
   }                                                                                               \
   std::size_t X::getEncodedLength() const RTI_THROW((EncoderException))                           \
   { return _implementation->length(); }                                                           \
   unsigned int X::getOctetBoundary() const { return Encoder::X##Coding::boundary; }               \
   Integer64 X::hash() const { return hasher(_implementation->get()); }                            \
   void X::setDataPointer(V* inData) { _implementation->bind(inData); }                            \
   void X::set(V inData) { _implementation->set(std::move(inData)); }                              \
   V X::get() const { return _implementation->get(); }                                             \
   }

// The same for a scalar, and its codec.
#define RTI_DEFINE_SCALAR(X, V)                                                                    \
   RTI_DEFINE_BASIC_DATA_ELEMENT(X, V)                                                             \
   namespace rti1516e {                                                                            \
   extern ScalarCodec const X##Codec;                                                              \
   constexpr ScalarCodec X##Codec = codecOf<X, X##Implementation>();                               \
   }
// clang-format on

#endif
