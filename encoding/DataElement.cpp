// What every element has unless its class says otherwise.
#include <RTI/encoding/DataElement.h>

#include <typeinfo>

namespace rti1516e {

DataElement::~DataElement() {}

bool DataElement::isSameTypeAs(DataElement const& inData) const
{
   return typeid(*this) == typeid(inData);
}

Integer64 DataElement::hash() const
{
   return 1;
}

} // namespace rti1516e
