// The scalars and strings as elements: values, bindings, failures, hashes.
#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/Scalars.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace rti1516e;

namespace {

// Everything that the classes have in common, on one value of one class.
template <class Element, class Value>
void checkElement(Value const original, std::string const& bytes)
{
   VariableLengthData const golden = fromHex(bytes);
   std::size_t const size = golden.size();
   Element element(original);
   EXPECT_EQ(original, element.get());
   EXPECT_EQ(original, static_cast<Value>(element));
   EXPECT_EQ(bytes, hex(element.encode()));
   VariableLengthData replaced("old contents", 12);
   element.encode(replaced);
   EXPECT_EQ(bytes, hex(replaced));
   EXPECT_EQ(size, element.getEncodedLength());

   Element decoded;
   EXPECT_EQ(Value(), decoded.get());
   decoded.decode(golden);
   EXPECT_EQ(original, decoded.get());
   EXPECT_EQ(element.hash(), decoded.hash());

   // Bytes in front of the value and behind it play no part.
   std::vector<Octet> buffer(8, '\x55');
   element.encodeInto(buffer);
   buffer.push_back('\x55');
   Element from;
   EXPECT_EQ(8 + size, from.decodeFrom(buffer, 8));
   EXPECT_EQ(original, from.get());

   std::unique_ptr<DataElement> const clone(element.clone().release());
   EXPECT_TRUE(element.isSameTypeAs(*clone));
   EXPECT_EQ(bytes, hex(clone->encode()));
}

// The caller's variable: read at any time, written by decoding only.
template <class Element, class Value>
void checkBinding(Value const original, std::string const& bytes)
{
   Value variable = original;
   Element bound(&variable);
   EXPECT_EQ(bytes, hex(bound.encode()));
   variable = Value();
   EXPECT_EQ(Value(), bound.get());
   bound.decode(fromHex(bytes));
   EXPECT_EQ(original, variable);

   Element const copy(bound);
   variable = Value();
   EXPECT_EQ(original, copy.get()) << "a copy is not bound";

   variable = original;
   bound.set(Value());
   EXPECT_EQ(Value(), bound.get());
   EXPECT_EQ(original, variable) << "set() leaves the variable alone";
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
   EXPECT_EQ(original, variable) << "assignment leaves the variable alone";

   Element assigned(original);
   Element const& itself = assigned;
   assigned = itself;
   EXPECT_EQ(Value(), assigned.get()) << "assigned to itself";
   assigned.setDataPointer(&variable);
   assigned = itself;
   EXPECT_EQ(Value(), assigned.get()) << "assigned to itself while bound";
   EXPECT_EQ(original, variable);
}

// Fewer bytes than the boundary.
template <class Element, class Value>
void checkFailures(Value const original)
{
   Element element(original);
   unsigned int const boundary = element.getOctetBoundary();
   for (unsigned int size = 0; size < boundary; ++size) {
      VariableLengthData const data("\0\0\0\0\0\0\0", size);
      EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { element.decode(data); })) << size;
   }
   std::vector<Octet> const buffer(12);
   for (std::size_t const index : {13 - boundary, 12U, 13U, 100U}) {
      EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { element.decodeFrom(buffer, index); })) << index;
   }
   EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { element.decodeFrom(std::vector<Octet>(), 0); }));
   EXPECT_EQ(original, element.get()) << "unchanged";
   EXPECT_EQ(12U, element.decodeFrom(buffer, 12 - boundary));
}

TEST(BasicDataElementTest, everyClass){
#define ROW(Name, Value, value, bytes)                                                             \
   {                                                                                               \
      SCOPED_TRACE(#Name " " bytes);                                                               \
      checkElement<Name, Value>(value, bytes);                                                     \
      checkBinding<Name, Value>(value, bytes);                                                     \
      checkFailures<Name, Value>(value);                                                           \
   }
      FOR_EACH_GOLDEN_VALUE(ROW)
#undef ROW
}

TEST(BasicDataElementTest, paddingIsAbsolute)
{
   std::vector<Octet> buffer(5, '\x55');
   HLAinteger32BE(0x01020304).encodeInto(buffer);
   EXPECT_EQ("55 55 55 55 55 00 00 00 01 02 03 04", hex(buffer.data(), buffer.size()));
   // Reading takes the index as it is.
   HLAinteger32BE element;
   EXPECT_EQ(10U, element.decodeFrom(buffer, 6));
   EXPECT_EQ(0x00000102, element.get());
}

TEST(BasicDataElementTest, nullPointerAndWideValue)
{
   HLAinteger32BE unbound(static_cast<int*>(nullptr));
   EXPECT_EQ(0, unbound.get());
   HLAunicodeChar const wide(static_cast<wchar_t>(0x1F600));
   EXPECT_EQ("F6 00", hex(wide.encode()));
   EXPECT_EQ(0x1F600 ^ 0xDEADBEEFLL, wide.hash());
   EXPECT_FALSE(HLAbyte().isSameTypeAs(HLAoctet()));
}

TEST(BasicDataElementTest, stringFailures)
{
   HLAASCIIstring narrow("old");
   HLAunicodeString wide(L"old");
   for (char const* const bytes : {"00 00 00 09 41", "FF FF FF FF 00"}) {
      EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { narrow.decode(fromHex(bytes)); })) << bytes;
      EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { wide.decode(fromHex(bytes)); })) << bytes;
   }
   EXPECT_EQ("old", narrow.get());
   EXPECT_EQ(L"old", wide.get());
   // Reaches behind the data: the index returned follows the count all the same.
   std::vector<Octet> const buffer = {0, 0, 0, 0, 0, 0, 0, 4};
   EXPECT_EQ(12U, narrow.decodeFrom(buffer, 4));
   EXPECT_EQ(16U, wide.decodeFrom(buffer, 4));
   EXPECT_EQ(std::string(4, '\0'), narrow.get());
}

// Characters may be encoded in pieces; and a count may promise more than the data hold.
TEST(BasicDataElementTest, longAndMissingCharacters)
{
   for (std::size_t const size : {511U, 512U, 513U, 2000U}) {
      std::wstring value;
      std::string units;
      for (std::size_t i = 0; i < size; ++i) {
         value += static_cast<wchar_t>(i * 77 & 0xFFFF);
         units += {static_cast<char>(value[i] >> 8), static_cast<char>(value[i])};
      }
      HLAunicodeString element(value);
      VariableLengthData const data = element.encode();
      EXPECT_EQ(hex(units.data(), units.size()), hex(data).substr(12)) << size;
      element.set(L"");
      element.decode(data);
      EXPECT_EQ(value, element.get()) << size;
   }
   struct {
      char const* bytes;
      std::string narrow;
      std::wstring wide;
   } const rows[] = {
         {"00 00 00 03 41 42", std::string("AB\0", 3), std::wstring(L"\x4142\0\0", 3)},
         {"00 00 00 05 41", std::string("A\0\0\0\0", 5), std::wstring(L"\x4100\0\0\0\0", 5)},
         {"00 00 00 03 00 41 00", std::string("\0A\0", 3), std::wstring(L"A\0\0", 3)},
   };
   for (auto const& row : rows) {
      HLAASCIIstring narrow;
      narrow.decode(fromHex(row.bytes));
      EXPECT_EQ(row.narrow, narrow.get()) << row.bytes;
      HLAunicodeString wide;
      wide.decode(fromHex(row.bytes));
      EXPECT_EQ(row.wide, wide.get()) << row.bytes;
   }
}

TEST(BasicDataElementTest, hashes)
{
   struct {
      Integer64 expected, hash;
   } const rows[] = {
         {3735928559, HLAinteger32BE(0).hash()},
         {-3735928560, HLAinteger32BE(-1).hash()},
         {-3735928560, HLAinteger32LE(-1).hash()},
         {-3735928560, HLAinteger16BE(static_cast<Integer16>(-1)).hash()},
         {-3735928560, HLAoctet('\xFF').hash()},
         {-3735928560, HLAASCIIchar('\xFF').hash()},
         {-3735928560, HLAunicodeChar(static_cast<wchar_t>(-1)).hash()},
         {3735928558, HLAboolean(true).hash()},
         {3735945133, HLAoctetPairBE(OctetPair(0x41, 0x42)).hash()},
         {(0x41 * 256 - 1) ^ 0xDEADBEEFLL, HLAoctetPairLE(OctetPair('\x41', '\xFF')).hash()},
         {3735928558, HLAfloat64BE(1.5).hash()},
         {3735928558, HLAfloat64BE(1.25).hash()},
         {3735928558, HLAfloat32LE(1.75F).hash()},
         {-3735928560, HLAfloat64BE(-1.75).hash()},
         {2166136261, HLAASCIIstring("").hash()},
         {3766795652629461688, HLAASCIIstring("AB").hash()},
         {3766795652629461688, HLAunicodeString(L"AB").hash()},
         {2166136261LL * 16777619 ^ -1, HLAASCIIstring("\xFF").hash()},
   };
   for (auto const& row : rows) {
      EXPECT_EQ(row.expected, row.hash) << &row - rows;
   }
}

// Where no integer of 64 bits holds the value.
TEST(BasicDataElementTest, floatHashesAtTheEdges)
{
   double const two63 = 9223372036854775808.0;
   double const infinity = std::numeric_limits<double>::infinity();
   Integer64 const lowest = std::numeric_limits<Integer64>::min();
   struct {
      double value;
      Integer64 widened;
   } const rows[] = {
         {-two63, lowest},
         {std::nextafter(two63, 0), 0x7FFFFFFFFFFFFC00},
         {two63, lowest},
         {two63 + 2048, lowest + 2048},
         {std::nextafter(2 * two63, 0), -2048},
         {2 * two63, -1},
         {infinity, -1},
         {std::nextafter(-two63, -infinity), lowest},
         {-infinity, lowest},
         {std::nan(""), 0},
   };
   for (auto const& row : rows) {
      EXPECT_EQ(row.widened ^ 0xDEADBEEFLL, HLAfloat64BE(row.value).hash()) << row.value;
   }
   EXPECT_EQ(lowest ^ 0xDEADBEEFLL, HLAfloat32BE(static_cast<float>(two63)).hash());
}

} // namespace
