// Slots, checks and blocks of the composites.
#include "encoding/Composite.h"

#include "encoding/Encoder.h"

namespace rti1516e {

ElementSlot cloneOf(DataElement const& element)
{
   return {element.clone().release(), true};
}

void release(ElementSlot const& slot)
{
   if (slot.owned) {
      delete slot.element;
   }
}

void checkIndex(std::size_t index, std::size_t size)
{
   if (index >= size) {
      Encoder::fail(L"Array index out of bounds");
   }
}

void checkPrototype(bool sameType)
{
   if (!sameType) {
      Encoder::fail(L"Element doesn't match prototype");
   }
}

void checkType(bool sameType)
{
   if (!sameType) {
      Encoder::fail(L"Non-matching type");
   }
}

void padTo(unsigned long boundary, std::vector<Octet>& buffer)
{
   Encoder::insertBytes(buffer, Encoder::paddingSizeInBytes(buffer.size(), boundary));
}

void padTo(DataElement const& element, std::vector<Octet>& buffer)
{
   if (!buffer.empty()) {
      padTo(element.getOctetBoundary(), buffer);
   }
}

VariableLengthData encodeBlock(DataElement const& element)
{
   VariableLengthData data;
   element.encode(data);
   return data;
}

void encodeBlock(DataElement const& element, VariableLengthData& inData)
{
   std::size_t const length = element.getEncodedLength();
   std::vector<Octet> buffer;
   buffer.reserve(length);
   element.encodeInto(buffer);
   // The block has the length that the element tells, whatever a federate's class has written.
   buffer.resize(length);
   inData.setData(buffer.data(), length);
}

void decodeBlock(DataElement& element, VariableLengthData const& inData)
{
   Octet const* const bytes = static_cast<Octet const*>(inData.data());
   std::vector<Octet> const buffer(bytes, bytes + inData.size());
   element.decodeFrom(buffer, 0);
}

} // namespace rti1516e
