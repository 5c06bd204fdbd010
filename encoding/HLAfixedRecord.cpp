// HLAfixedRecord: fields in a row.
#include <RTI/encoding/HLAfixedRecord.h>

#include "encoding/ElementSequence.h"

namespace rti1516e {

class HLAfixedRecordImplementation : public ElementSequence {};

HLAfixedRecord::HLAfixedRecord() : _implementation(new HLAfixedRecordImplementation) {}

RTI_DEFINE_COPYING(HLAfixedRecord)
RTI_DEFINE_ASSIGNMENT(HLAfixedRecord)
RTI_DEFINE_COMPOSITE_MEMBERS(HLAfixedRecord)
RTI_DEFINE_SEQUENCE_MEMBERS(HLAfixedRecord)

bool HLAfixedRecord::isSameTypeAs(DataElement const& inData) const
{
   return DataElement::isSameTypeAs(inData);
}

bool HLAfixedRecord::hasElementSameTypeAs(std::size_t index, DataElement const& inData) const
{
   return (*_implementation)[index].isSameTypeAs(inData);
}

std::size_t HLAfixedRecord::size() const
{
   return _implementation->size();
}

void HLAfixedRecord::appendElement(DataElement const& inData)
{
   _implementation->append(inData, 1);
}

void HLAfixedRecord::appendElementPointer(DataElement* inData)
{
   _implementation->appendPointer(inData);
}

void HLAfixedRecord::set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException))
{
   checkType(hasElementSameTypeAs(index, inData));
   _implementation->set(index, inData);
}

void HLAfixedRecord::setElementPointer(std::size_t index, DataElement* inData)
      RTI_THROW((EncoderException))
{
   checkType(hasElementSameTypeAs(index, *inData));
   _implementation->setPointer(index, inData);
}

DataElement const& HLAfixedRecord::get(std::size_t index) const
{
   return (*_implementation)[index];
}

} // namespace rti1516e
