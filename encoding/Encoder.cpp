// The strings and the growing of byte vectors. The scalars are in the header.
#include "encoding/Encoder.h"

#include <algorithm>
#include <RTI/encoding/EncodingExceptions.h>
#include <stdexcept>

namespace Encoder {

namespace {

unsigned long const COUNT_BYTES = 4;

// Both strings: the size of n characters and their count. Computed without a sign: a string of more
// than 2^31 bytes has a negative size, which no allocator grants.
int sizeofString(unsigned long characters, unsigned long bytesEach)
{
   return static_cast<int>(static_cast<unsigned int>(COUNT_BYTES + characters * bytesEach));
}

// The number of characters, tested against all of the data, the count itself included.
unsigned long decodeCount(void const* buffer, unsigned long length)
{
   long const count = decodeHLAinteger32BE(buffer, length);
   if (static_cast<unsigned long>(count) > length) {
      throw rti1516e::EncoderException(L"Array index out of bounds");
   }
   return static_cast<unsigned long>(count);
}

// Padding and the count, before characters that take the rest of size bytes.
void appendCount(
      std::vector<char>& buffer, unsigned long boundary, unsigned long characters, int size)
{
   if (size < 0) {
      throw std::length_error("string too long to encode");
   }
   insertBytes(buffer, paddingSizeInBytes(buffer.size(), boundary));
   appendInt(buffer, static_cast<int>(characters));
}

char* charactersIn(void const* buffer)
{
   return static_cast<char*>(const_cast<void*>(buffer)) + COUNT_BYTES;
}

void encodeCharacters(wchar_t const* characters, unsigned long count, char* out)
{
   for (unsigned long i = 0; i < count; ++i) {
      encodeHLAunicodeChar(characters[i], out + 2 * i);
   }
}

} // namespace

unsigned int boundaryofHLAASCIIstring()
{
   return 4;
}

int sizeofHLAASCIIstring(std::string const& value)
{
   return sizeofString(value.size(), 1);
}

char* encodeHLAASCIIstring(std::string const& value, int& length)
{
   length = sizeofHLAASCIIstring(value);
   char* const buffer = new char[static_cast<std::size_t>(length)];
   encodeHLAASCIIstring(value, buffer);
   return buffer;
}

void encodeHLAASCIIstring(std::string const& value, void const* buffer)
{
   encodeHLAinteger32BE(static_cast<int>(value.size()), buffer);
   std::copy(value.begin(), value.end(), charactersIn(buffer));
}

std::string decodeHLAASCIIstring(void const* buffer, unsigned long length)
{
   std::string value;
   decodeHLAASCIIstring(buffer, length, value);
   return value;
}

void decodeHLAASCIIstring(void const* buffer, unsigned long length, std::string& value)
{
   unsigned long const count = decodeCount(buffer, length);
   value.assign(charactersIn(buffer), std::min(count, length - COUNT_BYTES));
   value.resize(count);
}

void appendHLAASCIIstring(
      std::vector<char>& buffer, unsigned long boundary, std::string const& value)
{
   appendCount(buffer, boundary, value.size(), sizeofHLAASCIIstring(value));
   appendBytes(buffer, value.data(), value.size());
}

unsigned int boundaryofHLAunicodeString()
{
   return 4;
}

int sizeofHLAunicodeString(std::wstring const& value)
{
   return sizeofString(value.size(), 2);
}

char* encodeHLAunicodeString(std::wstring const& value, int& length)
{
   length = sizeofHLAunicodeString(value);
   char* const buffer = new char[static_cast<std::size_t>(length)];
   encodeHLAunicodeString(value, buffer);
   return buffer;
}

void encodeHLAunicodeString(std::wstring const& value, void const* buffer)
{
   encodeHLAinteger32BE(static_cast<int>(value.size()), buffer);
   encodeCharacters(value.data(), value.size(), charactersIn(buffer));
}

std::wstring decodeHLAunicodeString(void const* buffer, unsigned long length)
{
   std::wstring value;
   decodeHLAunicodeString(buffer, length, value);
   return value;
}

void decodeHLAunicodeString(void const* buffer, unsigned long length, std::wstring& value)
{
   unsigned long const count = decodeCount(buffer, length);
   unsigned long const bytes = length - COUNT_BYTES;
   unsigned long const whole = std::min(count, bytes / 2);
   char const* const in = charactersIn(buffer);
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

// Piece by piece, so that a long string's bytes are written once, and not first as zeros.
void appendHLAunicodeString(
      std::vector<char>& buffer, unsigned long boundary, std::wstring const& value)
{
   appendCount(buffer, boundary, value.size(), sizeofHLAunicodeString(value));
   unsigned long const atMost = 512;
   char piece[2 * atMost];
   for (unsigned long first = 0; first < value.size(); first += atMost) {
      unsigned long const count = std::min(atMost, value.size() - first);
      encodeCharacters(value.data() + first, count, piece);
      appendBytes(buffer, piece, 2 * count);
   }
}

void appendBytes(std::vector<char>& buffer, char const* bytes, unsigned long count)
{
   if (count != 0) {
      buffer.insert(buffer.end(), bytes, bytes + count);
   }
}

void appendInt(std::vector<char>& buffer, int value)
{
   appendHLAinteger32BE(buffer, 1, value);
}

int decodeInt(std::vector<char> const& buffer, unsigned long index)
{
   return decodeHLAinteger32BE(&buffer[index], 4);
}

} // namespace Encoder
