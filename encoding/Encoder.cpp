// The strings and the growing of byte vectors. The scalars are in the header.
#include "encoding/Encoder.h"

#include <algorithm>
#include <RTI/encoding/EncodingExceptions.h>
#include <stdexcept>

namespace Encoder {

namespace {

unsigned long const COUNT_BYTES = 4;

// The number of characters, tested against all of the data, the count itself included.
unsigned long decodeCount(void const* buffer, unsigned long length)
{
   long const count = decodeHLAinteger32BE(buffer, length);
   if (static_cast<unsigned long>(count) > length) {
      fail(L"Array index out of bounds");
   }
   return static_cast<unsigned long>(count);
}

// What one character takes.
unsigned long bytesEach(std::string const&)
{
   return 1;
}

unsigned long bytesEach(std::wstring const&)
{
   return 2;
}

void encodeCharacters(char const* characters, unsigned long count, char* out)
{
   std::copy(characters, characters + count, out);
}

void encodeCharacters(wchar_t const* characters, unsigned long count, char* out)
{
   for (unsigned long i = 0; i < count; ++i) {
      encodeHLAunicodeChar(characters[i], out + 2 * i);
   }
}

// Characters from as many bytes as there are; the value has its length afterwards.
void decodeCharacters(char const* in, unsigned long bytes, unsigned long count, std::string& value)
{
   value.assign(in, std::min(count, bytes));
   value.resize(count);
}

void decodeCharacters(char const* in, unsigned long bytes, unsigned long count, std::wstring& value)
{
   unsigned long const whole = std::min(count, bytes / 2);
   value.resize(whole);
   wchar_t* const out = &value[0];
   for (unsigned long i = 0; i < whole; ++i) {
      out[i] = decodeHLAunicodeChar(in + 2 * i, 2);
   }
   value.resize(count);
   if (whole < count && bytes % 2 != 0) {
      // The data end in the middle of a character.
      char const half[2] = {in[2 * whole], 0};
      value[whole] = decodeHLAunicodeChar(half, 2);
   }
}

void appendCharacters(std::vector<char>& buffer, std::string const& value)
{
   appendBytes(buffer, value.data(), value.size());
}

// Piece by piece, so that a long string's bytes are written once, and not first as zeros.
void appendCharacters(std::vector<char>& buffer, std::wstring const& value)
{
   unsigned long const atMost = 512;
   char piece[2 * atMost];
   for (unsigned long first = 0; first < value.size(); first += atMost) {
      unsigned long const count = std::min(atMost, value.size() - first);
      encodeCharacters(value.data() + first, count, piece);
      appendBytes(buffer, piece, 2 * count);
   }
}

} // namespace

void fail(wchar_t const* message)
{
   throw rti1516e::EncoderException(message);
}

int sizeAsInt(unsigned long size)
{
   unsigned int const low = static_cast<unsigned int>(size);
   return low == size ? static_cast<int>(low) : -1;
}

template <class Text>
int StringCoding<Text>::size(Text const& value)
{
   return sizeAsInt(COUNT_BYTES + value.size() * bytesEach(value));
}

template <class Text>
void StringCoding<Text>::encode(Text const& value, void* buffer)
{
   encodeHLAinteger32BE(static_cast<int>(value.size()), buffer);
   encodeCharacters(value.data(), value.size(), static_cast<char*>(buffer) + COUNT_BYTES);
}

template <class Text>
void StringCoding<Text>::decode(void const* buffer, unsigned long length, Text& value)
{
   unsigned long const count = decodeCount(buffer, length);
   char const* const in = static_cast<char const*>(buffer) + COUNT_BYTES;
   decodeCharacters(in, length - COUNT_BYTES, count, value);
}

template <class Text>
void StringCoding<Text>::append(std::vector<char>& buffer, unsigned long at, Text const& value)
{
   if (size(value) < 0) {
      throw std::length_error("string too long to encode");
   }
   insertBytes(buffer, paddingSizeInBytes(buffer.size(), at));
   appendInt(buffer, static_cast<int>(value.size()));
   appendCharacters(buffer, value);
}

template class StringCoding<std::string>;
template class StringCoding<std::wstring>;

void appendBytes(std::vector<char>& buffer, char const* bytes, unsigned long count)
{
   if (count != 0) {
      buffer.insert(buffer.end(), bytes, bytes + count);
   }
}

void appendInt(std::vector<char>& buffer, int value)
{
   HLAinteger32BECoding::append(buffer, 1, value);
}

} // namespace Encoder
