// HLAopaqueData: bytes behind their number, in a buffer of the element's or the caller's.
#include <RTI/encoding/HLAopaqueData.h>

#include "encoding/Composite.h"
#include "encoding/Encoder.h"

#include <algorithm>

namespace rti1516e {

namespace {

// What an empty value is copied from.
Octet const EMPTY_ARRAY[1] = {0};

} // namespace

class HLAopaqueDataImplementation {
public:
   HLAopaqueDataImplementation()
         : buffer(nullptr),
           bufferLength(0),
           dataLength(0),
           room(0),
           owned(true)
   {
   }

   HLAopaqueDataImplementation(Octet const* data, std::size_t length)
         : HLAopaqueDataImplementation()
   {
      copy(data, length);
   }

   HLAopaqueDataImplementation(Octet* external, std::size_t bufferSize, std::size_t dataSize)
         : HLAopaqueDataImplementation()
   {
      use(external, bufferSize, dataSize);
   }

   HLAopaqueDataImplementation(HLAopaqueDataImplementation const& rhs)
         : HLAopaqueDataImplementation(rhs.buffer, rhs.dataLength)
   {
   }

   HLAopaqueDataImplementation& operator=(HLAopaqueDataImplementation const&) = delete;

   ~HLAopaqueDataImplementation()
   {
      release();
   }

   // A copy of its own, not null even if it is empty. The buffer stays if it is not much too large.
   void copy(Octet const* data, std::size_t length)
   {
      if (!owned || buffer == nullptr || room < length || room > 2 * length + 64) {
         release();
         buffer = new Octet[length];
         room = length;
      }
      std::copy(data, data + length, buffer);
      bufferLength = length;
      dataLength = length;
   }

   // The caller's memory.
   void use(Octet* external, std::size_t bufferSize, std::size_t dataSize)
   {
      release();
      buffer = external;
      bufferLength = bufferSize;
      dataLength = dataSize;
      owned = false;
   }

   // Leaves what the default constructor makes.
   void release()
   {
      if (owned) {
         delete[] buffer;
      }
      buffer = nullptr;
      bufferLength = 0;
      dataLength = 0;
      room = 0;
      owned = true;
   }

   Octet* buffer;
   std::size_t bufferLength; // bytes of the caller's buffer; of an own one as many as are in use
   std::size_t dataLength;   // bytes in use
   std::size_t room;         // bytes of an own buffer, else 0
   bool owned;               // if not, the buffer is the caller's
};

HLAopaqueData::HLAopaqueData() : _implementation(new HLAopaqueDataImplementation) {}

HLAopaqueData::HLAopaqueData(Octet const* inData, std::size_t dataSize)
      : _implementation(new HLAopaqueDataImplementation(inData, dataSize))
{
}

HLAopaqueData::HLAopaqueData(Octet** inData, std::size_t bufferSize, std::size_t dataSize)
      RTI_THROW((EncoderException))
      : _implementation(new HLAopaqueDataImplementation(*inData, bufferSize, dataSize))
{
}

RTI_DEFINE_COPYING(HLAopaqueData)

HLAopaqueData& HLAopaqueData::operator=(HLAopaqueData const& rhs)
{
   _implementation->copy(rhs._implementation->buffer, rhs._implementation->dataLength);
   return *this;
}

RTI_DEFINE_COMPOSITE_MEMBERS(HLAopaqueData)

void HLAopaqueData::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))
{
   padTo(*this, buffer);
   Encoder::appendInt(buffer, static_cast<int>(_implementation->dataLength));
   Encoder::appendBytes(buffer, _implementation->buffer, _implementation->dataLength);
}

std::size_t HLAopaqueData::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
      RTI_THROW((EncoderException))
{
   if (index > buffer.size() || buffer.size() - index < 4) {
      Encoder::fail(L"HLAopaqueData cannot decode (indata too short)");
   }
   long const count = Encoder::decodeInt(buffer, index);
   std::size_t const length = static_cast<std::size_t>(count);
   index += 4;
   if (length > buffer.size() - index) {
      Encoder::fail(L"Array index out of bounds");
   }
   Octet const* const data = length == 0 ? EMPTY_ARRAY : &buffer[index];
   if (_implementation->owned) {
      _implementation->copy(data, length);
   } else if (length > _implementation->bufferLength) {
      Encoder::fail(L"Insufficient external storage");
   } else {
      std::copy(data, data + length, _implementation->buffer);
      _implementation->dataLength = length;
   }
   return index + length;
}

std::size_t HLAopaqueData::getEncodedLength() const RTI_THROW((EncoderException))
{
   return _implementation->dataLength + 4;
}

unsigned int HLAopaqueData::getOctetBoundary() const
{
   return 4;
}

std::size_t HLAopaqueData::bufferLength() const
{
   return _implementation->bufferLength;
}

std::size_t HLAopaqueData::dataLength() const
{
   return _implementation->dataLength;
}

void HLAopaqueData::setDataPointer(Octet** inData, std::size_t bufferSize, std::size_t dataSize)
      RTI_THROW((EncoderException))
{
   _implementation->use(*inData, bufferSize, dataSize);
}

void HLAopaqueData::set(Octet const* inData, std::size_t dataSize)
{
   _implementation->copy(inData, dataSize);
}

Octet const* HLAopaqueData::get() const
{
   return _implementation->buffer;
}

} // namespace rti1516e
