// The elements of arrays and fixed records, encoded one after the other.
#ifndef encoding_ElementSequence_h
#define encoding_ElementSequence_h

#include "encoding/Composite.h"

namespace rti1516e {

// Indices are not checked.
class ElementSequence {
public:
   ElementSequence();

   // Clones all elements, also those that rhs does not own.
   ElementSequence(ElementSequence const& rhs);

   ElementSequence& operator=(ElementSequence const&) = delete;
   ~ElementSequence();

   std::size_t size() const
   {
      return _slots.size();
   }

   DataElement& operator[](std::size_t index) const
   {
      return *_slots[index].element;
   }

   void append(ElementSlot slot);

   // Puts the new element where the old one was, and releases that.
   void replace(std::size_t index, ElementSlot slot);

   // Releases the elements from size on.
   void truncate(std::size_t size);

   // The largest boundary among the elements, and at least the one given. Takes no longer for more
   // scalars.
   unsigned int boundary(unsigned int least) const;

   // Each element pads to its own boundary.
   void encodeInto(std::vector<Octet>& buffer) const;

   // Where the last element ends if the first may begin at start.
   std::size_t encodedLength(std::size_t start) const;

   // Returns the index behind the last element.
   std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index);

private:
   typedef std::vector<ElementSlot> Slots;

   // Encodes a number of scalars, the first of which is at the iterator. Returns where the next
   // element is.
   Slots::const_iterator encodeScalars(
         Slots::const_iterator first, std::vector<Octet>& buffer) const;

   // Keep what boundary() goes by.
   void count(ElementSlot const& slot);
   void countAll();

   Slots _slots;
   unsigned int _scalarBoundary; // the largest among the scalars
   std::size_t _others;          // number of elements that are no scalars
};

} // namespace rti1516e

// Defines the members of the element X that are those of its sequence, without a count in front.
// clang-format off
#define RTI_DEFINE_SEQUENCE_MEMBERS(X)                                                             \
   void X::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))              \
   {                                                                                               \
      padTo(*this, buffer);                                                                        \
      _implementation->encodeInto(buffer);                                                         \
   }                                                                                               \
   std::size_t X::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)                  \
      RTI_THROW((EncoderException))                                                                \
   { return _implementation->decodeFrom(buffer, index); }                                          \
   std::size_t X::getEncodedLength() const RTI_THROW((EncoderException))                           \
   { return _implementation->encodedLength(0); }                                                   \
   unsigned int X::getOctetBoundary() const { return _implementation->boundary(1); }

// Defines how the elements of the array X are replaced. The index is looked at first.
#define RTI_DEFINE_ARRAY_SETTERS(X)                                                                \
   void X::set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException))         \
   {                                                                                               \
      checkIndex(index, size());                                                                   \
      checkPrototype(hasPrototypeSameTypeAs(inData));                                              \
      _implementation->replace(index, cloneOf(inData));                                            \
   }                                                                                               \
   void X::setElementPointer(std::size_t index, DataElement* inData) RTI_THROW((EncoderException)) \
   {                                                                                               \
      checkIndex(index, size());                                                                   \
      checkPrototype(hasPrototypeSameTypeAs(*inData));                                             \
      _implementation->replace(index, callersOwn(inData));                                         \
   }
// clang-format on

#endif
