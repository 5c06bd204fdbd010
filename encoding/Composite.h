// What arrays, records and opaque data have in common: encoding by way of a vector of bytes, and
// elements that they own or that the caller owns.
#ifndef encoding_Composite_h
#define encoding_Composite_h

#include <RTI/encoding/DataElement.h>
#include <vector>

namespace rti1516e {

// A place for an element: a clone made by the composite, which deletes it, or the caller's.
struct ElementSlot {
   DataElement* element;
   bool owned;
};

ElementSlot cloneOf(DataElement const& element);

// Deletes the element if it is owned.
void release(ElementSlot const& slot);

// Throws "Array index out of bounds" unless the index is below the size.
void checkIndex(std::size_t index, std::size_t size);

// Throws "Element doesn't match prototype" unless the types are the same.
void checkPrototype(bool sameType);

// Throws "Non-matching type" unless the types are the same.
void checkType(bool sameType);

// Appends zeros up to a multiple of the boundary.
void padTo(unsigned long boundary, std::vector<Octet>& buffer);

// The same to the element's boundary, which is not asked for at the beginning of a vector: large
// composites take long to tell.
void padTo(DataElement const& element, std::vector<Octet>& buffer);

// The element's encodeInto() and decodeFrom() on a whole block. A block of its own is encoded by
// the element's encode() with a block to replace.
VariableLengthData encodeBlock(DataElement const& element);
void encodeBlock(DataElement const& element, VariableLengthData& inData);
void decodeBlock(DataElement& element, VariableLengthData const& inData);

} // namespace rti1516e

// clang-format off

// Defines the members of the element X that go through its copy constructor, encodeInto() and
// decodeFrom().
#define RTI_DEFINE_COMPOSITE_MEMBERS(X)                                                            \
   std::auto_ptr<DataElement> X::clone() const { return std::auto_ptr<DataElement>(new X(*this)); }\
   VariableLengthData X::encode() const RTI_THROW((EncoderException)) { return encodeBlock(*this); }\
   void X::encode(VariableLengthData& inData) const RTI_THROW((EncoderException))                  \
   { encodeBlock(*this, inData); }                                                                 \
   void X::decode(VariableLengthData const& inData) RTI_THROW((EncoderException))                  \
   { decodeBlock(*this, inData); }

// Defines how the element X is copied and destroyed with its implementation.
#define RTI_DEFINE_COPYING(X)                                                                      \
   X::X(X const& rhs)                                                                              \
      : DataElement(rhs), _implementation(new X##Implementation(*rhs._implementation)) {}          \
   X::~X() { delete _implementation; }

// Defines its assignment. The copy is made first: an element may be assigned to itself.
#define RTI_DEFINE_ASSIGNMENT(X)                                                                   \
   X& X::operator=(X const& rhs)                                                                   \
   {                                                                                               \
      X##Implementation* const old = _implementation;                                              \
      _implementation = new X##Implementation(*rhs._implementation);                               \
      delete old;                                                                                  \
      return *this;                                                                                \
   }

// clang-format on

#endif
