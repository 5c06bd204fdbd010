// HLAfixedArray: elements in a row, without a count.
#include <RTI/encoding/HLAfixedArray.h>

#include "encoding/ElementSequence.h"

namespace rti1516e {

class HLAfixedArrayImplementation : public ElementSequence {
public:
   HLAfixedArrayImplementation() {}

   HLAfixedArrayImplementation(DataElement const& prototype, std::size_t length)
   {
      for (std::size_t i = 0; i < length; ++i) {
         append(cloneOf(prototype));
      }
   }
};

HLAfixedArray::HLAfixedArray() : _implementation(new HLAfixedArrayImplementation) {}

HLAfixedArray::HLAfixedArray(DataElement const& prototype, std::size_t length)
      : _implementation(new HLAfixedArrayImplementation(prototype, length))
{
}

HLAfixedArray::HLAfixedArray(HLAfixedArray const& rhs)
      : DataElement(rhs),
        _implementation(new HLAfixedArrayImplementation(*rhs._implementation))
{
}

HLAfixedArray::~HLAfixedArray()
{
   delete _implementation;
}

HLAfixedArray& HLAfixedArray::operator=(HLAfixedArray const& rhs)
{
   HLAfixedArrayImplementation* const old = _implementation;
   _implementation = new HLAfixedArrayImplementation(*rhs._implementation);
   delete old;
   return *this;
}

RTI_DEFINE_COMPOSITE_MEMBERS(HLAfixedArray)

void HLAfixedArray::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))
{
   padTo(*this, buffer);
   _implementation->encodeInto(buffer);
}

std::size_t HLAfixedArray::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
      RTI_THROW((EncoderException))
{
   return _implementation->decodeFrom(buffer, index);
}

std::size_t HLAfixedArray::getEncodedLength() const RTI_THROW((EncoderException))
{
   return _implementation->encodedLength(0);
}

unsigned int HLAfixedArray::getOctetBoundary() const
{
   return _implementation->boundary(1);
}

bool HLAfixedArray::isSameTypeAs(DataElement const& inData) const
{
   return DataElement::isSameTypeAs(inData);
}

bool HLAfixedArray::hasPrototypeSameTypeAs(DataElement const& inData) const
{
   return (*_implementation)[0].isSameTypeAs(inData);
}

std::size_t HLAfixedArray::size() const
{
   return _implementation->size();
}

void HLAfixedArray::set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException))
{
   checkIndex(index, size());
   checkPrototype(hasPrototypeSameTypeAs(inData));
   _implementation->replace(index, cloneOf(inData));
}

void HLAfixedArray::setElementPointer(std::size_t index, DataElement* inData)
      RTI_THROW((EncoderException))
{
   checkIndex(index, size());
   checkPrototype(hasPrototypeSameTypeAs(*inData));
   _implementation->replace(index, callersOwn(inData));
}

DataElement const& HLAfixedArray::get(std::size_t index) const RTI_THROW((EncoderException))
{
   checkIndex(index, size());
   return (*_implementation)[index];
}

DataElement const& HLAfixedArray::operator[](std::size_t index) const RTI_THROW((EncoderException))
{
   return get(index);
}

} // namespace rti1516e
