// Elements in a row.
#include "encoding/ElementSequence.h"

#include "encoding/Encoder.h"

#include <algorithm>

namespace rti1516e {

ElementSequence::ElementSequence() : _scalarBoundary(1), _others(0) {}

ElementSequence::ElementSequence(ElementSequence const& rhs) : ElementSequence()
{
   _slots.reserve(rhs.size());
   for (ElementSlot const& slot : rhs._slots) {
      append(cloneOf(*slot.element));
   }
}

ElementSequence::~ElementSequence()
{
   truncate(0);
}

void ElementSequence::append(ElementSlot slot)
{
   try {
      _slots.push_back(slot);
   } catch (...) {
      release(slot);
      throw;
   }
   count(slot);
}

void ElementSequence::count(ElementSlot const& slot)
{
   if (slot.codec != nullptr) {
      _scalarBoundary = std::max(_scalarBoundary, slot.codec->bytes);
   } else {
      ++_others;
   }
}

void ElementSequence::countAll()
{
   _scalarBoundary = 1;
   _others = 0;
   for (ElementSlot const& slot : _slots) {
      count(slot);
   }
}

void ElementSequence::replace(std::size_t index, ElementSlot slot)
{
   std::swap(_slots[index], slot);
   if (slot.codec != _slots[index].codec) {
      countAll();
   }
   release(slot);
}

void ElementSequence::truncate(std::size_t size)
{
   if (size >= _slots.size()) {
      return;
   }
   for (std::size_t i = size; i < _slots.size(); ++i) {
      release(_slots[i]);
   }
   _slots.resize(size);
   countAll();
}

unsigned int ElementSequence::boundary(unsigned int least) const
{
   unsigned int largest = std::max(least, _scalarBoundary);
   if (_others != 0) {
      for (ElementSlot const& slot : _slots) {
         largest = std::max(largest, boundaryOf(slot));
      }
   }
   return largest;
}

void ElementSequence::encodeInto(std::vector<Octet>& buffer) const
{
   Slots::const_iterator slot = _slots.begin();
   while (slot != _slots.end()) {
      if (slot->codec != nullptr) {
         slot = encodeScalars(slot, buffer);
      } else {
         slot->element->encodeInto(buffer);
         ++slot;
      }
   }
}

ElementSequence::Slots::const_iterator ElementSequence::encodeScalars(
      Slots::const_iterator first, std::vector<Octet>& buffer) const
{
   // So many slots that growing the vector costs little for each, and so few that they are still in
   // the processor's nearest cache when their turn comes.
   Slots::difference_type const atMost = 256;

   Slots::const_iterator const end = first + std::min(atMost, _slots.end() - first);
   Slots::const_iterator last = first;
   std::size_t index = buffer.size();
   std::size_t size = index;
   for (; last != end && last->codec != nullptr; ++last) {
      size += Encoder::paddingSizeInBytes(size, last->codec->bytes) + last->codec->bytes;
   }
   Encoder::insertBytes(buffer, size - index);
   for (; first != last; ++first) {
      index += Encoder::paddingSizeInBytes(index, first->codec->bytes);
      first->codec->store(*first->element, &buffer[index]);
      index += first->codec->bytes;
   }
   return last;
}

std::size_t ElementSequence::encodedLength(std::size_t start) const
{
   std::size_t length = start;
   for (ElementSlot const& slot : _slots) {
      length += Encoder::paddingSizeInBytes(length, boundaryOf(slot));
      length += slot.codec != nullptr ? slot.codec->bytes : slot.element->getEncodedLength();
   }
   return length;
}

std::size_t ElementSequence::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
{
   for (ElementSlot const& slot : _slots) {
      if (ScalarCodec const* const codec = slot.codec) {
         index += Encoder::paddingSizeInBytes(index, codec->bytes);
         bytesLeft(buffer.size(), index, codec->bytes);
         codec->load(*slot.element, &buffer[index]);
         index += codec->bytes;
      } else {
         index += Encoder::paddingSizeInBytes(index, slot.element->getOctetBoundary());
         index = slot.element->decodeFrom(buffer, index);
      }
   }
   return index;
}

} // namespace rti1516e
