// The encoder's functions: bytes of every type, growing and padding of vectors.
#include "encoding/Encoder.h"
#include "tests/api/Bytes.h"
#include "tests/encoding/Scalars.h"

#include <gtest/gtest.h>

using namespace rti1516e;

namespace {

std::string hexOf(std::vector<char> const& bytes)
{
   return hex(bytes.data(), bytes.size());
}

TEST(EncoderTest, everyFunctionOfEveryType){
#define ROW(Name, Value, value, bytes)                                                             \
   {                                                                                               \
      SCOPED_TRACE(#Name " " bytes);                                                               \
      VariableLengthData const golden = fromHex(bytes);                                            \
      Value const original = value;                                                                \
      int length = -1;                                                                             \
      std::unique_ptr<char[]> made(Encoder::encode##Name(original, length));                       \
      EXPECT_EQ(bytes, hex(made.get(), static_cast<unsigned long>(length)));                       \
      EXPECT_EQ(length, Encoder::sizeof##Name(original));                                          \
      std::vector<char> room(golden.size(), '\x55');                                               \
      Encoder::encode##Name(original, room.data());                                                \
      EXPECT_EQ(bytes, hexOf(room));                                                               \
      std::vector<char> appended(3, '\x55');                                                       \
      Encoder::append##Name(appended, 2, original);                                                \
      EXPECT_EQ("55 55 55 00 " bytes, hexOf(appended));                                            \
      EXPECT_EQ(original, Encoder::decode##Name(golden.data(), golden.size()));                    \
      Value decoded = Value();                                                                     \
      Encoder::decode##Name(golden.data(), golden.size(), decoded);                                \
      EXPECT_EQ(original, decoded);                                                                \
   }
      FOR_EACH_GOLDEN_VALUE(ROW)
#undef ROW
}

TEST(EncoderTest, boundaries)
{
#define ROW(Name, Value, Order, Bytes)                                                             \
   EXPECT_EQ(static_cast<int>(Encoder::boundaryof##Name()), Encoder::sizeof##Name(Value()))        \
         << #Name;
   ENCODER_FOR_EACH_SCALAR(ROW)
#undef ROW
   EXPECT_EQ(4U, Encoder::boundaryofHLAASCIIstring());
   EXPECT_EQ(4U, Encoder::boundaryofHLAunicodeString());
}

TEST(EncoderTest, whatBytesMean)
{
   struct {
      char const* bytes;
      bool value;
   } const booleans[] = {{"00 00 00 02", false}, {"01 00 00 00", false}, {"00 00 01 01", false},
         {"FF FF FF FF", false}, {"00 00 00 01", true}};
   for (auto const& row : booleans) {
      EXPECT_EQ(row.value, Encoder::decodeHLAboolean(fromHex(row.bytes).data(), 4)) << row.bytes;
   }
   char bytes[2] = {};
   Encoder::encodeHLAunicodeChar(static_cast<wchar_t>(0x1F600), bytes);
   EXPECT_EQ("F6 00", hex(bytes, 2));
   EXPECT_EQ(static_cast<wchar_t>(0xF600), Encoder::decodeHLAunicodeChar(bytes, 2));
}

TEST(EncoderTest, padding)
{
   struct {
      unsigned long size, boundary, padding;
   } const rows[] = {{0, 8, 0}, {5, 4, 3}, {7, 1, 0}, {8, 8, 0}, {9, 8, 7}, {10, 3, 2}, {12, 3, 0}};
   for (auto const& row : rows) {
      EXPECT_EQ(row.padding, Encoder::paddingSizeInBytes(row.size, row.boundary))
            << row.size << " " << row.boundary;
   }
}

TEST(EncoderTest, growingVectors)
{
   std::vector<char> buffer(1, '\x55');
   Encoder::appendBytes(buffer, nullptr, 0);
   EXPECT_EQ("55", hexOf(buffer));
   Encoder::insertBytes(buffer, 2);
   Encoder::appendInt(buffer, -2);
   Encoder::appendBytes(buffer, "AB", 2);
   EXPECT_EQ("55 00 00 FF FF FF FE 41 42", hexOf(buffer));
   EXPECT_EQ(-2, Encoder::decodeInt(buffer, 3));
}

// A long string crosses the pieces in which its characters are encoded.
TEST(EncoderTest, longStrings)
{
   for (std::size_t const size : {511U, 512U, 513U, 2000U}) {
      std::wstring value;
      for (std::size_t i = 0; i < size; ++i) {
         value += static_cast<wchar_t>(i * 77 & 0xFFFF);
      }
      std::vector<char> appended;
      Encoder::appendHLAunicodeString(appended, 4, value);
      int length;
      std::unique_ptr<char[]> whole(Encoder::encodeHLAunicodeString(value, length));
      EXPECT_EQ(hex(whole.get(), static_cast<unsigned long>(length)), hexOf(appended));
      EXPECT_EQ(value, Encoder::decodeHLAunicodeString(appended.data(), appended.size()));
   }
}

// The count may say more than the data hold, up to the number of all bytes.
TEST(EncoderTest, stringsLongerThanTheirData)
{
   struct {
      char const* bytes;
      std::string narrow;
      std::wstring wide;
   } const rows[] = {
         {"00 00 00 03 41 42", std::string("AB\0", 3), std::wstring(L"\x4142\0\0", 3)},
         {"00 00 00 04", std::string(4, '\0'), std::wstring(4, L'\0')},
         {"00 00 00 05 41", std::string("A\0\0\0\0", 5), std::wstring(L"\x4100\0\0\0\0", 5)},
         {"00 00 00 03 00 41 00", std::string("\0A\0", 3), std::wstring(L"A\0\0", 3)},
   };
   for (auto const& row : rows) {
      VariableLengthData const data = fromHex(row.bytes);
      EXPECT_EQ(row.narrow, Encoder::decodeHLAASCIIstring(data.data(), data.size())) << row.bytes;
      EXPECT_EQ(row.wide, Encoder::decodeHLAunicodeString(data.data(), data.size())) << row.bytes;
   }
   for (char const* const bytes : {"00 00 00 09 41", "FF FF FF FF 00 00", "80 00 00 00"}) {
      VariableLengthData const data = fromHex(bytes);
      EXPECT_THROW(Encoder::decodeHLAASCIIstring(data.data(), data.size()), EncoderException);
      EXPECT_THROW(Encoder::decodeHLAunicodeString(data.data(), data.size()), EncoderException);
   }
}

} // namespace
