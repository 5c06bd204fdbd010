// Opaque data: who owns the bytes, and what decoding does with them.
#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"

#include <gtest/gtest.h>
#include <RTI/encoding/HLAopaqueData.h>

using namespace rti1516e;

namespace {

std::string dataOf(HLAopaqueData const& element)
{
   return std::string(element.get(), element.dataLength());
}

TEST(OpaqueDataTest, encoding)
{
   HLAopaqueData const empty;
   EXPECT_EQ(nullptr, empty.get());
   EXPECT_EQ("00 00 00 00", hex(empty.encode()));
   HLAopaqueData const element("AB", 2);
   EXPECT_EQ("00 00 00 02 41 42", hex(element.encode()));
   EXPECT_EQ(4U, element.getOctetBoundary());
   EXPECT_EQ(6U, element.getEncodedLength());
   EXPECT_EQ(1, element.hash());
   std::vector<Octet> buffer(5, '\x55');
   element.encodeInto(buffer);
   EXPECT_EQ("55 55 55 55 55 00 00 00 00 00 00 02 41 42", hex(buffer.data(), buffer.size()));
}

TEST(OpaqueDataTest, ownedBytes)
{
   char source[] = "ABC";
   HLAopaqueData element(source, 3);
   source[0] = 'x';
   EXPECT_EQ("ABC", dataOf(element));
   element.decode(fromHex("00 00 00 00"));
   EXPECT_EQ(0U, element.dataLength());
   EXPECT_EQ(0U, element.bufferLength());
   EXPECT_NE(nullptr, element.get());
   std::vector<Octet> const buffer = {9, 0, 0, 0, 2, 'D', 'E', 9};
   EXPECT_EQ(7U, element.decodeFrom(buffer, 1));
   EXPECT_EQ("DE", dataOf(element));
   EXPECT_EQ(2U, element.bufferLength());
}

TEST(OpaqueDataTest, externalBytes)
{
   char memory[] = "wxyz";
   char* pointer = memory;
   HLAopaqueData element(&pointer, 4, 2);
   pointer = nullptr; // has been read
   EXPECT_EQ(memory, element.get());
   EXPECT_EQ("00 00 00 02 77 78", hex(element.encode()));

   HLAopaqueData const copy(element);
   std::unique_ptr<DataElement> const clone(element.clone().release());
   element.decode(fromHex("00 00 00 03 41 42 43"));
   EXPECT_STREQ("ABCz", memory);
   EXPECT_EQ(3U, element.dataLength());
   EXPECT_EQ(4U, element.bufferLength());
   EXPECT_EQ("wx", dataOf(copy));
   EXPECT_EQ(2U, copy.bufferLength());
   EXPECT_EQ("00 00 00 02 77 78", hex(clone->encode()));

   EXPECT_EQ(L"Insufficient external storage",
         failureOf([&] { element.decode(fromHex("00 00 00 05 31 32 33 34 35")); }));
   EXPECT_EQ("ABC", dataOf(element));
   element.decode(fromHex("00 00 00 00"));
   EXPECT_EQ(0U, element.dataLength());
   EXPECT_EQ(memory, element.get());

   element.set("Q", 1);
   EXPECT_EQ("Q", dataOf(element));
   EXPECT_STREQ("ABCz", memory);
   pointer = memory;
   element.setDataPointer(&pointer, 4, 4);
   EXPECT_EQ(memory, element.get());
   element = copy;
   EXPECT_EQ("wx", dataOf(element));
   EXPECT_NE(copy.get(), element.get());
   EXPECT_STREQ("ABCz", memory);
}

// The sizes are the caller's word.
TEST(OpaqueDataTest, moreDataThanBuffer)
{
   char memory[] = "0123456789";
   char* pointer = memory;
   HLAopaqueData const element(&pointer, 4, 10);
   EXPECT_EQ("00 00 00 0A 30 31 32 33 34 35 36 37 38 39", hex(element.encode()));
}

TEST(OpaqueDataTest, failures)
{
   struct {
      char const* bytes;
      std::wstring failure;
   } const rows[] = {
         {"", L"HLAopaqueData cannot decode (indata too short)"},
         {"00 00", L"HLAopaqueData cannot decode (indata too short)"},
         {"00 00 00 05 01", ARRAY_BOUNDS},
         {"00 00 00 02 01", ARRAY_BOUNDS},
         {"FF FF FF FF 00", ARRAY_BOUNDS},
   };
   char memory[] = "wxyz";
   char* pointer = memory;
   HLAopaqueData external(&pointer, 4, 4);
   HLAopaqueData owned("old", 3);
   for (auto const& row : rows) {
      EXPECT_EQ(row.failure, failureOf([&] { owned.decode(fromHex(row.bytes)); })) << row.bytes;
      EXPECT_EQ(row.failure, failureOf([&] { external.decode(fromHex(row.bytes)); })) << row.bytes;
   }
   EXPECT_EQ("old", dataOf(owned));
   EXPECT_EQ("wxyz", dataOf(external));
}

} // namespace
