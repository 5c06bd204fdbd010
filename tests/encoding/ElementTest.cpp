// Scalars, strings and opaque data: values and bytes, what they are bound to, hashes.
#include "encoding/Encoder.h"
#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAopaqueData.h>

using namespace rti1516e;

namespace {

double const TWO_63 = 9223372036854775808.0;
double const INFINITE = std::numeric_limits<double>::infinity();

// The caller's variable is read at any time, and written by decoding only.
template <class Element, class Value>
void checkBinding(Value const original, VariableLengthData const& bytes)
{
   Value variable = original;
   Element bound(&variable);
   EXPECT_EQ(hex(bytes), hex(bound.encode()));
   variable = Value();
   EXPECT_EQ(Value(), bound.get());
   bound.decode(bytes);
   EXPECT_EQ(original, variable);

   Element const copy(bound);
   variable = Value();
   EXPECT_EQ(original, copy.get()) << "a copy is not bound";

   variable = original;
   bound.set(Value());
   EXPECT_EQ(Value(), bound.get());
   bound.setDataPointer(&variable);
   EXPECT_EQ(original, bound.get());
   bound.setDataPointer(nullptr);
   EXPECT_EQ(Value(), bound.get()) << "what was held inside before";
   bound.setDataPointer(&variable);
   bound = Element();
   EXPECT_EQ(Value(), bound.get());
   bound.setDataPointer(&variable);
   bound = Value();
   EXPECT_EQ(Value(), bound.get());
   EXPECT_EQ(original, variable) << "set() and assignments leave the variable alone";

   Element assigned(original);
   Element const& itself = assigned;
   assigned = itself;
   EXPECT_EQ(Value(), assigned.get()) << "assigned to itself";
   assigned.setDataPointer(&variable);
   assigned = itself;
   EXPECT_EQ(Value(), assigned.get()) << "assigned to itself while bound";
   EXPECT_EQ(original, variable);
}

template <class Element, class Value>
void check(char const* name, Value const original, char const* bytes, Integer64 hash)
{
   SCOPED_TRACE(std::string(name) + " " + bytes);
   Element const element(original);
   EXPECT_EQ(original, element.get());
   EXPECT_EQ(original, static_cast<Value>(element));
   EXPECT_EQ(hash, element.hash());
   VariableLengthData replaced("old contents", 12);
   element.encode(replaced);
   EXPECT_EQ(bytes, hex(replaced));
   Element decoded;
   EXPECT_EQ(Value(), decoded.get());
   decoded.decode(replaced);
   EXPECT_EQ(original, decoded.get());
   EXPECT_TRUE(element.isSameTypeAs(decoded));
   checkBinding<Element>(original, replaced);
}

#define ROW(Name, Value, value, bytes, hash) check<Name, Value>(#Name, value, bytes, hash)

// Each class with a value whose bytes all differ, and a negative one where there are such. Hashes
// go by the value, widened to 64 bits.
TEST(ElementTest, hasValueBytesAndHash)
{
   ROW(HLAASCIIchar, char, 'A', "41", 0x41 ^ 0xDEADBEEFLL);
   ROW(HLAASCIIchar, char, '\xFF', "FF", -3735928560);
   ROW(HLAbyte, char, '\x7F', "7F", 0x7F ^ 0xDEADBEEFLL);
   ROW(HLAoctet, char, '\xFE', "FE", -2 ^ 0xDEADBEEFLL);
   ROW(HLAboolean, bool, true, "00 00 00 01", 3735928558);
   ROW(HLAboolean, bool, false, "00 00 00 00", 3735928559);
   ROW(HLAunicodeChar, wchar_t, L'\x20AC', "20 AC", 0x20AC ^ 0xDEADBEEFLL);
   ROW(HLAinteger16BE, short, 0x0102, "01 02", 0x0102 ^ 0xDEADBEEFLL);
   ROW(HLAinteger16LE, short, 0x0102, "02 01", 0x0102 ^ 0xDEADBEEFLL);
   ROW(HLAinteger16BE, short, -2, "FF FE", -2 ^ 0xDEADBEEFLL);
   ROW(HLAinteger16LE, short, -2, "FE FF", -2 ^ 0xDEADBEEFLL);
   ROW(HLAinteger32BE, int, 0x01020304, "01 02 03 04", 0x01020304 ^ 0xDEADBEEFLL);
   ROW(HLAinteger32LE, int, 0x01020304, "04 03 02 01", 0x01020304 ^ 0xDEADBEEFLL);
   ROW(HLAinteger32BE, int, -1, "FF FF FF FF", -3735928560);
   ROW(HLAinteger32LE, int, -2, "FE FF FF FF", -2 ^ 0xDEADBEEFLL);
   ROW(HLAinteger64BE, Integer64, 0x0102030405060708, "01 02 03 04 05 06 07 08",
         0x0102030405060708 ^ 0xDEADBEEFLL);
   ROW(HLAinteger64LE, Integer64, 0x0102030405060708, "08 07 06 05 04 03 02 01",
         0x0102030405060708 ^ 0xDEADBEEFLL);
   ROW(HLAinteger64BE, Integer64, -2, "FF FF FF FF FF FF FF FE", -2 ^ 0xDEADBEEFLL);
   ROW(HLAfloat32BE, float, 1.1F, "3F 8C CC CD", 3735928558);
   ROW(HLAfloat32LE, float, -1.1F, "CD CC 8C BF", -3735928560);
   ROW(HLAfloat64BE, double, 1.1, "3F F1 99 99 99 99 99 9A", 3735928558);
   ROW(HLAfloat64LE, double, -1.1, "9A 99 99 99 99 99 F1 BF", -3735928560);
   // Where no integer of 64 bits holds the value.
   ROW(HLAfloat64BE, double, -TWO_63, "C3 E0 00 00 00 00 00 00", INT64_MIN ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, std::nextafter(TWO_63, 0), "43 DF FF FF FF FF FF FF",
         0x7FFFFFFFFFFFFC00 ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, TWO_63, "43 E0 00 00 00 00 00 00", INT64_MIN ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, TWO_63 + 2048, "43 E0 00 00 00 00 00 01",
         (INT64_MIN + 2048) ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, std::nextafter(2 * TWO_63, 0), "43 EF FF FF FF FF FF FF",
         -2048 ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, 2 * TWO_63, "43 F0 00 00 00 00 00 00", -1 ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, INFINITE, "7F F0 00 00 00 00 00 00", -1 ^ 0xDEADBEEFLL);
   ROW(HLAfloat64BE, double, -INFINITE, "FF F0 00 00 00 00 00 00", INT64_MIN ^ 0xDEADBEEFLL);
   ROW(HLAoctetPairBE, OctetPair, OctetPair('\x41', '\x42'), "41 42", 3735945133);
   ROW(HLAoctetPairLE, OctetPair, OctetPair('\x41', '\xFF'), "FF 41",
         (0x41 * 256 - 1) ^ 0xDEADBEEFLL);
   ROW(HLAASCIIstring, std::string, "AB", "00 00 00 02 41 42", 3766795652629461688);
   ROW(HLAASCIIstring, std::string, "\xFF", "00 00 00 01 FF", 2166136261LL * 16777619 ^ -1);
   ROW(HLAASCIIstring, std::string, std::string(), "00 00 00 00", 2166136261);
   ROW(HLAunicodeString, std::wstring, L"AB", "00 00 00 02 00 41 00 42", 3766795652629461688);
   ROW(HLAunicodeString, std::wstring, L"\x20AC", "00 00 00 01 20 AC",
         2166136261LL * 16777619 ^ 0x20AC);
}

TEST(ElementTest, edges)
{
   EXPECT_EQ(0, HLAinteger32BE(static_cast<int*>(nullptr)).get());
   EXPECT_EQ(0xDEADBEEFLL, HLAfloat64BE(std::nan("")).hash());
   HLAunicodeChar const wide(static_cast<wchar_t>(0x1F600));
   EXPECT_EQ("F6 00", hex(wide.encode()));
   EXPECT_EQ(0x1F600 ^ 0xDEADBEEFLL, wide.hash());
   EXPECT_EQ(-3735928560, HLAunicodeChar(static_cast<wchar_t>(-1)).hash());
   EXPECT_FALSE(HLAbyte().isSameTypeAs(HLAoctet()));
   HLAboolean flag;
   for (char const* const bytes : {"00 00 00 02", "01 00 00 00", "00 00 01 01"}) {
      flag.decode(fromHex("00 00 00 01"));
      EXPECT_TRUE(flag);
      flag.decode(fromHex(bytes));
      EXPECT_FALSE(flag) << bytes;
   }
   // A string reaches behind the data: the index follows the count all the same.
   HLAASCIIstring string;
   EXPECT_EQ(12U, string.decodeFrom({0, 0, 0, 0, 0, 0, 0, 4}, 4));
   EXPECT_EQ(std::string(4, '\0'), string.get());
   EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { string.decodeFrom(std::vector<Octet>(), 0); }));
}

std::string dataOf(HLAopaqueData const& element)
{
   return std::string(element.get(), element.dataLength());
}

// What says that a string is too long to encode, without such a string.
TEST(ElementTest, sizesThatNoIntHolds)
{
   EXPECT_EQ(2147483647, Encoder::sizeAsInt(2147483647));
   for (unsigned long const size : {1UL << 31, (1UL << 32) - 1, 1UL << 32, (1UL << 32) + 4}) {
      EXPECT_GT(0, Encoder::sizeAsInt(size)) << size;
   }
}

TEST(OpaqueDataTest, isOwned)
{
   HLAopaqueData const empty;
   EXPECT_EQ(nullptr, empty.get());
   EXPECT_EQ("00 00 00 00", hex(empty.encode()));
   EXPECT_EQ(1, empty.hash());
   char source[] = "ABC";
   HLAopaqueData element(source, 3);
   source[0] = 'x';
   EXPECT_EQ("00 00 00 03 41 42 43", hex(element.encode()));
   element.decode(empty.encode());
   EXPECT_EQ(0U, element.dataLength() + element.bufferLength());
   EXPECT_NE(nullptr, element.get());
   EXPECT_EQ(7U, element.decodeFrom({9, 0, 0, 0, 2, 'D', 'E', 9}, 1));
   EXPECT_EQ("DE", dataOf(element));
   EXPECT_EQ(2U, element.bufferLength());
}

TEST(OpaqueDataTest, isTheCallersMemory)
{
   char memory[] = "wxyz";
   char* pointer = memory;
   HLAopaqueData element(&pointer, 4, 2);
   pointer = nullptr; // has been read
   EXPECT_EQ(memory, element.get());
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

   element.set("Q", 1);
   EXPECT_EQ("Q", dataOf(element));
   pointer = memory;
   element.setDataPointer(&pointer, 4, 4);
   EXPECT_EQ(memory, element.get());
   element.set("", 0);
   EXPECT_NE(memory, element.get());
   element = copy;
   EXPECT_EQ("wx", dataOf(element));
   EXPECT_NE(copy.get(), element.get());
   EXPECT_STREQ("ABCz", memory);
   // The sizes are the caller's word.
   EXPECT_EQ("00 00 00 04 41 42 43 7A", hex(HLAopaqueData(&pointer, 1, 4).encode()));
}

} // namespace
