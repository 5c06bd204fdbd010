// Opaque bytes behind a record that knows who frees them.
#include "api/VariableLengthDataImplementation.h"

#include <algorithm>

namespace rti1516e {

namespace {

char noBytes[1];

} // namespace

constexpr VariableLengthDataImplementation VariableLengthDataImplementation::NONE(nullptr, true);
constexpr VariableLengthDataImplementation VariableLengthDataImplementation::COPY_OF_NONE(
      noBytes, true);

VariableLengthData::VariableLengthData() : _implementation(VariableLengthDataImplementation::none())
{
}

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
   _implementation->destroy();
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
   if (_implementation->hasRoomFor(inSize)) {
      _implementation->setCopy(inData, inSize);
      return;
   }
   _implementation->destroy();
   _implementation = VariableLengthDataImplementation::none(); // if there is no memory
   _implementation = VariableLengthDataImplementation::makeCopy(inData, inSize);
}

void VariableLengthData::setDataPointer(void* inData, unsigned long inSize)
{
   _implementation->destroy();
   _implementation = VariableLengthDataImplementation::none(); // if there is no memory
   _implementation = VariableLengthDataImplementation::make();
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
