// Opaque bytes behind a record that knows who frees them.
#include "api/VariableLengthDataImplementation.h"

#include <algorithm>

namespace rti1516e {

VariableLengthData::VariableLengthData() : _implementation(new VariableLengthDataImplementation) {}

VariableLengthData::VariableLengthData(void const* inData, unsigned long inSize)
      : _implementation(VariableLengthDataImplementation::makeCopy(inData, inSize))
{
}

VariableLengthData::VariableLengthData(VariableLengthData const& rhs)
      : _implementation(VariableLengthDataImplementation::makeCopy(rhs.data(), rhs.size()))
{
}

VariableLengthData::~VariableLengthData()
{
   delete _implementation;
}

VariableLengthData& VariableLengthData::operator=(VariableLengthData const& rhs)
{
   setData(rhs.data(), rhs.size());
   return *this;
}

void const* VariableLengthData::data() const
{
   return _implementation->data;
}

unsigned long VariableLengthData::size() const
{
   return _implementation->size;
}

void VariableLengthData::setData(void const* inData, unsigned long inSize)
{
   delete _implementation;
   _implementation = VariableLengthDataImplementation::makeCopy(inData, inSize);
}

void VariableLengthData::setDataPointer(void* inData, unsigned long inSize)
{
   delete _implementation;
   _implementation = new VariableLengthDataImplementation;
   _implementation->data = inData;
   _implementation->size = inSize;
}

void VariableLengthData::takeDataPointer(void* inData, unsigned long inSize, void (*func)(void*))
{
   setDataPointer(inData, inSize);
   _implementation->deleter = func;
   _implementation->owned = true;
}

bool operator<(VariableLengthData const& lhs, VariableLengthData const& rhs)
{
   signed char const* const left = static_cast<signed char const*>(lhs.data());
   signed char const* const right = static_cast<signed char const*>(rhs.data());
   return std::lexicographical_compare(left, left + lhs.size(), right, right + rhs.size());
}

} // namespace rti1516e
