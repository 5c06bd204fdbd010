// Arrays: ownership of elements, checks, counts and boundaries.
#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/FederateElement.h"

#include <gtest/gtest.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAvariableArray.h>

using namespace rti1516e;

int Triple::alive = 0;
Triple* Triple::newestClone = nullptr;

namespace {

std::wstring const WRONG_TYPE = L"Element doesn't match prototype";
std::wstring const TOO_SHORT = L"HLAvariableArray cannot decode (indata too short)";

int intAt(HLAfixedArray const& array, std::size_t index)
{
   return dynamic_cast<HLAinteger32BE const&>(array[index]).get();
}

int intAt(HLAvariableArray const& array, std::size_t index)
{
   return dynamic_cast<HLAinteger32BE const&>(array[index]).get();
}

TEST(ArrayTest, encodingAndBoundaries)
{
   HLAfixedArray const fixed(HLAoctet('\x01'), 3);
   EXPECT_EQ("01 01 01", hex(fixed.encode()));
   EXPECT_EQ(1U, fixed.getOctetBoundary());
   EXPECT_EQ(1U, HLAfixedArray().getOctetBoundary());
   EXPECT_EQ("", hex(HLAfixedArray().encode()));

   HLAvariableArray octets((HLAoctet()));
   EXPECT_EQ(4U, octets.getOctetBoundary());
   EXPECT_EQ(4U, octets.getEncodedLength());
   octets.addElement(HLAoctet('\x01'));
   EXPECT_EQ("00 00 00 01 01", hex(octets.encode()));

   HLAvariableArray longs((HLAinteger64BE()));
   EXPECT_EQ(8U, longs.getOctetBoundary());
   EXPECT_EQ("00 00 00 00", hex(longs.encode()));
   longs.addElement(HLAinteger64BE(1LL));
   longs.addElement(HLAinteger64BE(2LL));
   EXPECT_EQ("00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 02",
         hex(longs.encode()));
   EXPECT_EQ(24U, longs.getEncodedLength());

   HLAfixedArray strings(HLAASCIIstring("A"), 2);
   strings.set(1, HLAASCIIstring("BC"));
   EXPECT_EQ("00 00 00 01 41 00 00 00 00 00 00 02 42 43", hex(strings.encode()));
   EXPECT_EQ(4U, strings.getOctetBoundary());

   // The prototype's boundary counts only while the array is empty.
   HLAvariableArray mixed((HLAinteger64BE()));
   mixed.addElement(HLAoctet('\x07'));
   EXPECT_EQ(4U, mixed.getOctetBoundary());
}

// What made the boundary greater is replaced, or cut off.
TEST(ArrayTest, boundariesThatShrink)
{
   HLAvariableArray array((HLAinteger32BE()));
   array.addElement(HLAinteger64BE(1LL));
   array.addElement(HLAinteger64BE(2LL));
   EXPECT_EQ(8U, array.getOctetBoundary());
   array.set(0, HLAinteger32BE(1));
   EXPECT_EQ(8U, array.getOctetBoundary());
   array.decode(fromHex("00 00 00 01 00 00 00 05"));
   EXPECT_EQ(4U, array.getOctetBoundary());
   array.addElement(Triple());
   EXPECT_EQ(4U, array.getOctetBoundary());
   array.addElement(WideInteger());
   EXPECT_EQ(8U, array.getOctetBoundary());
   array.set(2, HLAinteger32BE(3));
   EXPECT_EQ(4U, array.getOctetBoundary());
   HLAvariableArray replaced((HLAinteger32BE()));
   replaced.addElement(HLAinteger64BE(1LL));
   replaced.set(0, HLAinteger32BE(1));
   EXPECT_EQ(4U, replaced.getOctetBoundary());
}

TEST(ArrayTest, typesAndHash)
{
   HLAfixedArray const octets(HLAoctet(), 3);
   HLAfixedArray const ints(HLAinteger32BE(), 1);
   HLAvariableArray const variable((HLAoctet()));
   EXPECT_TRUE(octets.isSameTypeAs(ints));
   EXPECT_FALSE(octets.isSameTypeAs(variable));
   EXPECT_EQ(1, octets.hash());
   EXPECT_EQ(1, variable.hash());
   EXPECT_TRUE(octets.hasPrototypeSameTypeAs(HLAoctet()));
   EXPECT_FALSE(variable.hasPrototypeSameTypeAs(HLAbyte()));
}

// What both classes share, on arrays of three integers holding 0.
template <class Array>
void checkElements(Array& array)
{
   HLAinteger32BE mine(7);
   array.setElementPointer(1, &mine);
   mine = 8;
   EXPECT_EQ(8, intAt(array, 1));
   Array const copy(array);
   std::unique_ptr<DataElement> const clone(array.clone().release());
   mine = 9;
   EXPECT_EQ(8, intAt(copy, 1));
   EXPECT_EQ(8, intAt(static_cast<Array const&>(*clone), 1));

   array.set(2, HLAinteger32BE(3));
   array.set(0, array[2]);
   EXPECT_EQ(3, intAt(array, 0));
   array.decode(copy.encode());
   EXPECT_EQ(8, mine.get()) << "decoding fills the caller's element";
   EXPECT_EQ(&mine, &array.get(1));
   EXPECT_EQ(3U, array.size());

   EXPECT_EQ(WRONG_TYPE, failureOf([&] { array.set(0, HLAoctet()); }));
   HLAoctet octet;
   EXPECT_EQ(WRONG_TYPE, failureOf([&] { array.setElementPointer(0, &octet); }));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { array.set(3, HLAoctet()); })) << "the index comes first";
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { array.setElementPointer(3, &octet); }));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { array[3]; }));
   EXPECT_EQ(copy.encode().size(), array.getEncodedLength());
   array.set(1, HLAinteger32BE(1));
   EXPECT_EQ(8, mine.get()) << "left alone";
}

TEST(ArrayTest, elements)
{
   HLAfixedArray fixed(HLAinteger32BE(), 3);
   checkElements(fixed);
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { fixed.get(3); }));
   HLAvariableArray variable((HLAinteger32BE()));
   HLAinteger32BE mine;
   variable.addElement(HLAinteger32BE());
   variable.addElementPointer(&mine);
   variable.addElement(HLAinteger32BE());
   checkElements(variable);
}

TEST(ArrayTest, assignmentOfFixedArrays)
{
   HLAfixedArray array(HLAinteger32BE(5), 2);
   HLAinteger32BE mine(6);
   array.setElementPointer(1, &mine);
   HLAfixedArray const& itself = array;
   array = itself;
   EXPECT_EQ(6, intAt(array, 1));
   EXPECT_NE(&mine, &array[1]) << "has become a clone";
   HLAfixedArray other;
   other = array;
   EXPECT_EQ("00 00 00 05 00 00 00 06", hex(other.encode()));
}

TEST(ArrayTest, elementsAreReleased)
{
   int const before = Triple::alive;
   Triple mine("mine");
   {
      HLAfixedArray fixed(Triple(), 3);
      fixed.setElementPointer(0, &mine);
      HLAvariableArray variable((Triple()));
      variable.addElement(Triple("abc"));
      variable.addElementPointer(&mine);
      variable.addElement(Triple("xyz"));
      EXPECT_EQ(before + 1 + 2 + 1 + 2, Triple::alive);
      // Count, 4 bytes that are no multiple of three, and one element.
      variable.decode(VariableLengthData("\0\0\0\1\0\0DEF", 9));
      EXPECT_EQ("DEF", dynamic_cast<Triple const&>(variable[0]).value);
      EXPECT_EQ(before + 1 + 2 + 1 + 1, Triple::alive);
      variable.decode(VariableLengthData("\0\0\0\0", 4));
      EXPECT_EQ(0U, variable.size());
      fixed = HLAfixedArray(Triple(), 3);
      fixed.setElementPointer(0, &mine);
      EXPECT_EQ(before + 1 + 2 + 1, Triple::alive);
   }
   EXPECT_EQ(before + 1, Triple::alive);
}

TEST(ArrayTest, federatesOwnClasses)
{
   HLAvariableArray array((WideInteger()));
   array.addElement(HLAoctet('\x01'));
   array.addElement(WideInteger(2));
   array.addElement(HLAinteger32BE(9));
   EXPECT_EQ(8U, array.getOctetBoundary());
   EXPECT_EQ("00 00 00 03 01 00 00 00 00 00 00 02 00 00 00 09", hex(array.encode()));
   array.decode(array.encode());
   EXPECT_EQ(3, intAt(array, 1)) << "its own decodeFrom()";

   HLAfixedArray triples(Triple("abc"), 2);
   EXPECT_EQ(3U, triples.getOctetBoundary());
   std::vector<Octet> buffer(4, '\x55');
   triples.encodeInto(buffer);
   EXPECT_EQ("55 55 55 55 00 00 61 62 63 61 62 63", hex(buffer.data(), buffer.size()));
   EXPECT_EQ(12U, triples.decodeFrom(buffer, 4));

   VariableLengthData const padded = HLAfixedArray(Braggart(), 1).encode();
   std::string const expected = "..." + std::string(97, '\0');
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(padded)) << "zeros, and no stray bytes";
   EXPECT_EQ(L"no triple", failureOf([&] { triples.decodeFrom(buffer, 7); }));
}

TEST(ArrayTest, decodingVariableArrays)
{
   HLAvariableArray array((HLAinteger32BE()));
   HLAinteger32BE mine;
   array.addElementPointer(&mine);
   struct {
      char const* bytes;
      std::wstring failure;
      std::size_t sizeAfter;
   } const rows[] = {
         {"", TOO_SHORT, 1},
         {"00 00", TOO_SHORT, 1},
         {"00 00 00 05 01 02", TOO_SHORT, 1},
         {"FF FF FF FF 00 00", TOO_SHORT, 1},
         {"00 00 00 02 00 00 00 07 00", OUT_OF_BOUNDS, 2},
         {"00 00 00 03 00 00 00 01 00 00 00 02 00 00 00 03 FF", L"", 3},
         {"00 00 00 00", L"", 0},
   };
   for (auto const& row : rows) {
      EXPECT_EQ(row.failure, failureOf([&] { array.decode(fromHex(row.bytes)); })) << row.bytes;
      EXPECT_EQ(row.sizeAfter, array.size()) << row.bytes;
   }
   EXPECT_EQ(1, mine.get()) << "filled before the failure, and again after it";
}

// The count is looked for at a multiple of 4, whatever the elements' boundary.
TEST(ArrayTest, decodingAtAnIndex)
{
   HLAvariableArray array((HLAinteger64BE()));
   std::vector<Octet> const buffer = {
         0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 9};
   EXPECT_EQ(24U, array.decodeFrom(buffer, 9));
   EXPECT_EQ(9, dynamic_cast<HLAinteger64BE const&>(array[0]).get());
   EXPECT_EQ(TOO_SHORT, failureOf([&] { array.decodeFrom(buffer, 21); }));
   EXPECT_EQ(TOO_SHORT, failureOf([&] { array.decodeFrom(buffer, 100); }));
}

} // namespace
