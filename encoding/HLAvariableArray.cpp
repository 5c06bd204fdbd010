// HLAvariableArray: elements in a row behind their number.
#include <RTI/encoding/HLAvariableArray.h>

#include "encoding/ElementSequence.h"
#include "encoding/Encoder.h"

#include <algorithm>

namespace rti1516e {

namespace {

wchar_t const* const TOO_SHORT = L"HLAvariableArray cannot decode (indata too short)";

} // namespace

class HLAvariableArrayImplementation : public ElementSequence {
public:
   HLAvariableArrayImplementation() {}
   explicit HLAvariableArrayImplementation(DataElement const& example) : prototype(example.clone())
   {
   }

   HLAvariableArrayImplementation(HLAvariableArrayImplementation const& rhs)
         : ElementSequence(rhs),
           prototype(rhs.prototype->clone())
   {
   }

   // Keeps the elements that stay; new ones are clones of the prototype.
   void resize(std::size_t count)
   {
      truncate(count);
      if (size() < count) {
         append(*prototype, count - size());
      }
   }

   std::unique_ptr<DataElement> prototype; // null in an array made without one
};

HLAvariableArray::HLAvariableArray() : _implementation(new HLAvariableArrayImplementation) {}

HLAvariableArray::HLAvariableArray(DataElement const& prototype)
      : _implementation(new HLAvariableArrayImplementation(prototype))
{
}

RTI_DEFINE_COPYING(HLAvariableArray)
RTI_DEFINE_COMPOSITE_MEMBERS(HLAvariableArray)

void HLAvariableArray::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))
{
   padTo(*this, buffer);
   Encoder::appendInt(buffer, static_cast<int>(size()));
   _implementation->encodeInto(buffer);
}

std::size_t HLAvariableArray::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
      RTI_THROW((EncoderException))
{
   // 4 is the count's boundary; whoever calls has seen to the array's own.
   index += Encoder::paddingSizeInBytes(index, 4);
   if (index > buffer.size() || buffer.size() - index < 4) {
      Encoder::fail(TOO_SHORT);
   }
   long const count = Encoder::decodeInt(buffer, index);
   index += 4;
   // An element takes one byte at least. A negative count is greater than any size.
   if (static_cast<std::size_t>(count) > buffer.size() - index) {
      Encoder::fail(TOO_SHORT);
   }
   _implementation->resize(static_cast<std::size_t>(count));
   return _implementation->decodeFrom(buffer, index);
}

std::size_t HLAvariableArray::getEncodedLength() const RTI_THROW((EncoderException))
{
   return _implementation->encodedLength(4);
}

unsigned int HLAvariableArray::getOctetBoundary() const
{
   if (_implementation->size() == 0) {
      return std::max(4U, _implementation->prototype->getOctetBoundary());
   }
   return _implementation->boundary(4);
}

bool HLAvariableArray::isSameTypeAs(DataElement const& inData) const
{
   return DataElement::isSameTypeAs(inData);
}

std::size_t HLAvariableArray::size() const
{
   return _implementation->size();
}

bool HLAvariableArray::hasPrototypeSameTypeAs(DataElement const& inData) const
{
   return _implementation->prototype->isSameTypeAs(inData);
}

void HLAvariableArray::addElement(DataElement const& inData) RTI_THROW((EncoderException))
{
   _implementation->append(inData, 1);
}

void HLAvariableArray::addElementPointer(DataElement* inData) RTI_THROW((EncoderException))
{
   _implementation->appendPointer(inData);
}

RTI_DEFINE_ARRAY_SETTERS(HLAvariableArray)

DataElement const& HLAvariableArray::get(std::size_t index) const
{
   return (*_implementation)[index];
}

DataElement const& HLAvariableArray::operator[](std::size_t index) const
      RTI_THROW((EncoderException))
{
   checkIndex(index, size());
   return get(index);
}

} // namespace rti1516e
