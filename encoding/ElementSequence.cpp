// Elements in a row.
#include "encoding/ElementSequence.h"

#include "encoding/Encoder.h"

#include <algorithm>

namespace rti1516e {

ElementSequence::ElementSequence() {}

ElementSequence::ElementSequence(ElementSequence const& rhs) : ElementSequence()
{
   _slots.reserve(rhs.size());
   for (ElementSlot const& slot : rhs._slots) {
      append(*slot.element);
   }
}

ElementSequence::~ElementSequence()
{
   truncate(0);
}

void ElementSequence::append(DataElement const& element)
{
   std::auto_ptr<DataElement> clone = element.clone();
   _slots.push_back({true, clone.get()});
   clone.release();
}

void ElementSequence::appendPointer(DataElement* element)
{
   _slots.push_back(callersOwn(element));
}

void ElementSequence::replace(std::size_t index, ElementSlot slot)
{
   std::swap(_slots[index], slot);
   release(slot);
}

void ElementSequence::truncate(std::size_t size)
{
   while (_slots.size() > size) {
      release(_slots.back());
      _slots.pop_back();
   }
}

unsigned int ElementSequence::boundary(unsigned int least) const
{
   unsigned int largest = least;
   for (ElementSlot const& slot : _slots) {
      largest = std::max(largest, slot.element->getOctetBoundary());
   }
   return largest;
}

void ElementSequence::encodeInto(std::vector<Octet>& buffer) const
{
   for (ElementSlot const& slot : _slots) {
      slot.element->encodeInto(buffer);
   }
}

std::size_t ElementSequence::encodedLength(std::size_t start) const
{
   std::size_t length = start;
   for (ElementSlot const& slot : _slots) {
      length += Encoder::paddingSizeInBytes(length, slot.element->getOctetBoundary());
      length += slot.element->getEncodedLength();
   }
   return length;
}

std::size_t ElementSequence::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
{
   for (ElementSlot const& slot : _slots) {
      index += Encoder::paddingSizeInBytes(index, slot.element->getOctetBoundary());
      index = slot.element->decodeFrom(buffer, index);
   }
   return index;
}

} // namespace rti1516e
