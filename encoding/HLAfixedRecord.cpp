// HLAfixedRecord: fields in a row.
#include <RTI/encoding/HLAfixedRecord.h>

#include "encoding/ElementSequence.h"

namespace rti1516e {

class HLAfixedRecordImplementation : public ElementSequence {};

HLAfixedRecord::HLAfixedRecord() : _implementation(new HLAfixedRecordImplementation) {}

HLAfixedRecord::HLAfixedRecord(HLAfixedRecord const& rhs)
      : DataElement(rhs),
        _implementation(new HLAfixedRecordImplementation(*rhs._implementation))
{
}

HLAfixedRecord::~HLAfixedRecord()
{
   delete _implementation;
}

HLAfixedRecord& HLAfixedRecord::operator=(HLAfixedRecord const& rhs)
{
   HLAfixedRecordImplementation* const old = _implementation;
   _implementation = new HLAfixedRecordImplementation(*rhs._implementation);
   delete old;
   return *this;
}

RTI_DEFINE_COMPOSITE_MEMBERS(HLAfixedRecord)

void HLAfixedRecord::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))
{
   padTo(*this, buffer);
   _implementation->encodeInto(buffer);
}

std::size_t HLAfixedRecord::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
      RTI_THROW((EncoderException))
{
   return _implementation->decodeFrom(buffer, index);
}

std::size_t HLAfixedRecord::getEncodedLength() const RTI_THROW((EncoderException))
{
   return _implementation->encodedLength(0);
}

unsigned int HLAfixedRecord::getOctetBoundary() const
{
   return _implementation->boundary(1);
}

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
   _implementation->append(cloneOf(inData));
}

void HLAfixedRecord::appendElementPointer(DataElement* inData)
{
   _implementation->append(callersOwn(inData));
}

void HLAfixedRecord::set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException))
{
   checkType(hasElementSameTypeAs(index, inData));
   _implementation->replace(index, cloneOf(inData));
}

void HLAfixedRecord::setElementPointer(std::size_t index, DataElement* inData)
      RTI_THROW((EncoderException))
{
   checkType(hasElementSameTypeAs(index, *inData));
   _implementation->replace(index, callersOwn(inData));
}

DataElement const& HLAfixedRecord::get(std::size_t index) const
{
   return (*_implementation)[index];
}

} // namespace rti1516e
