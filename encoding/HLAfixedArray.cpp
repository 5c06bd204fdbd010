// HLAfixedArray: elements in a row, without a count.
#include <RTI/encoding/HLAfixedArray.h>

#include "encoding/ElementSequence.h"

namespace rti1516e {

class HLAfixedArrayImplementation : public ElementSequence {
public:
   HLAfixedArrayImplementation() {}

   HLAfixedArrayImplementation(DataElement const& prototype, std::size_t length)
   {
      append(prototype, length);
   }
};

HLAfixedArray::HLAfixedArray() : _implementation(new HLAfixedArrayImplementation) {}

HLAfixedArray::HLAfixedArray(DataElement const& prototype, std::size_t length)
      : _implementation(new HLAfixedArrayImplementation(prototype, length))
{
}

RTI_DEFINE_COPYING(HLAfixedArray)
RTI_DEFINE_ASSIGNMENT(HLAfixedArray)
RTI_DEFINE_COMPOSITE_MEMBERS(HLAfixedArray)
RTI_DEFINE_SEQUENCE_MEMBERS(HLAfixedArray)

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

RTI_DEFINE_ARRAY_SETTERS(HLAfixedArray)

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
