// The one pattern of the scalars and strings: a value inside the element or in the caller's
// variable, encoded and decoded by the coding of the element's name.
#ifndef encoding_BasicDataElement_h
#define encoding_BasicDataElement_h

#include "encoding/BasicValue.h"
#include "encoding/hasher.h"
#include "encoding/ScalarCodec.h"

#include <memory>
#include <new>
#include <RTI/encoding/BasicDataElements.h>
#include <typeinfo>
#include <utility>

namespace rti1516e {

// The functions of a scalar's codec. Its implementation lies in a cell.

template <class Implementation>
ScalarCell* recordOf(DataElement const& scalar)
{
   return reinterpret_cast<ScalarCell*>(&Implementation::of(scalar));
}

template <class Implementation>
void storeScalars(ScalarCell const* records, std::size_t count, char* out)
{
   typedef typename Implementation::Coding Coding;
   Implementation const* const values = reinterpret_cast<Implementation const*>(records);
   for (std::size_t i = 0; i < count; ++i) {
      Coding::encode(values[i].get(), out + i * Coding::boundary);
   }
}

template <class Implementation>
void loadScalars(ScalarCell* records, std::size_t count, char const* in)
{
   typedef typename Implementation::Coding Coding;
   Implementation* const values = reinterpret_cast<Implementation*>(records);
   for (std::size_t i = 0; i < count; ++i) {
      Coding::decode(in + i * Coding::boundary, Coding::boundary, values[i].decoded());
   }
}

template <class Implementation>
void cloneScalars(ScalarCell const* sources, std::size_t step, std::size_t count,
      ScalarCell* records, ScalarCell* objects, DataElement** elements)
{
   Implementation const* source = reinterpret_cast<Implementation const*>(sources);
   for (std::size_t i = 0; i < count; ++i, source += step) {
      typename Implementation::Value const value = source->get(); // the source may be the place
      Implementation* const implementation = ::new (records + i) Implementation(value);
      elements[i] = Implementation::place(objects + i, *implementation);
   }
}

template <class Element, class Implementation, ScalarKind kind>
constexpr ScalarCodec codecOf()
{
   static_assert(sizeof(Implementation) == sizeof(ScalarCell), "bytes of a scalar's record");
   static_assert(sizeof(Element) == sizeof(ScalarCell), "bytes of a scalar");
   return {kind, Implementation::Coding::boundary, &typeid(Element), recordOf<Implementation>,
         storeScalars<Implementation>, loadScalars<Implementation>, cloneScalars<Implementation>};
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
      static X* place(void* room, X##Implementation& inside) { return new (room) X(inside); }      \
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
   { _implementation->encodeInto(buffer, getOctetBoundary(), getEncodedLength()); }                \
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
   constexpr ScalarCodec X##Codec = codecOf<X, X##Implementation, KIND_OF_##X>();                  \
   }
// clang-format on

#endif
