// Arrays and records: what no bytes tell. Which element is whose, types, refusals, what stays
// alive, and a federate's own classes.
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/FederateElement.h"

#include <gtest/gtest.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>

using namespace rti1516e;

namespace {

std::wstring const WRONG_TYPE = L"Non-matching type";
std::wstring const NOT_MAPPED = L"Discriminant is not mapped to a value";

// Three integers holding 1.
HLAvariableArray threeIn(HLAvariableArray*)
{
   HLAvariableArray array((HLAinteger32BE(1)));
   for (int i = 0; i < 3; ++i) {
      array.addElement(HLAinteger32BE(1));
   }
   return array;
}

HLAfixedArray threeIn(HLAfixedArray*)
{
   return HLAfixedArray(HLAinteger32BE(1), 3);
}

HLAfixedRecord threeIn(HLAfixedRecord*)
{
   HLAfixedRecord record;
   for (int i = 0; i < 3; ++i) {
      record.appendElement(HLAinteger32BE(1));
   }
   return record;
}

template <class Composite>
class CompositeTest : public testing::Test {
};

typedef testing::Types<HLAfixedArray, HLAvariableArray, HLAfixedRecord> Composites;
TYPED_TEST_SUITE(CompositeTest, Composites, );

TYPED_TEST(CompositeTest, holdsTheCallersElement)
{
   TypeParam composite = threeIn(static_cast<TypeParam*>(nullptr));
   EXPECT_EQ(3U, composite.size());
   HLAinteger32BE mine(7);
   composite.setElementPointer(1, &mine);
   EXPECT_EQ(&mine, &composite.get(1));
   composite.set(0, composite.get(1)); // from within
   EXPECT_EQ(7, dynamic_cast<HLAinteger32BE const&>(composite.get(0)).get());
   composite.set(0, composite.get(0));
   TypeParam const copy(composite);
   VariableLengthData const bytes = composite.encode();
   mine = 9;
   composite.decode(bytes);
   EXPECT_EQ(7, mine.get()) << "decoding fills the caller's element";
   EXPECT_EQ(hex(bytes), hex(copy.encode()));
   composite.set(1, HLAinteger32BE(2));
   EXPECT_EQ(7, mine.get()) << "left alone";
   EXPECT_EQ(1, composite.hash());
   EXPECT_TRUE(composite.isSameTypeAs(TypeParam()));
   EXPECT_FALSE(composite.isSameTypeAs(mine));
}

TEST(CompositeTest, turnsIntoClonesByAssignment)
{
   HLAinteger32BE mine(7);
   HLAfixedArray array(mine, 1);
   array.setElementPointer(0, &mine);
   HLAfixedRecord record;
   record.appendElementPointer(&mine);
   HLAvariantRecord variant(mine);
   variant.addVariantPointer(mine, &mine);
   EXPECT_EQ(&mine, &variant.getVariant());
   HLAfixedArray const& sameArray = array;
   HLAfixedRecord const& sameRecord = record;
   HLAvariantRecord const& sameVariant = variant;
   EXPECT_EQ(&array, &(array = sameArray));
   EXPECT_EQ(&record, &(record = sameRecord));
   EXPECT_EQ(&variant, &(variant = sameVariant));
   EXPECT_NE(&mine, &array.get(0));
   EXPECT_NE(&mine, &record.get(0));
   EXPECT_NE(&mine, &variant.getVariant());
}

TEST(CompositeTest, tellsTypesAndIndices)
{
   HLAfixedArray octets(HLAoctet(), 3);
   HLAvariableArray variable((HLAoctet()));
   EXPECT_FALSE(octets.isSameTypeAs(variable));
   EXPECT_TRUE(octets.hasPrototypeSameTypeAs(HLAoctet()));
   EXPECT_FALSE(variable.hasPrototypeSameTypeAs(HLAbyte()));
   EXPECT_TRUE(variable.hasPrototypeSameTypeAs(HLAoctet()));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { octets.get(3); }));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { octets[3]; }));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { variable[0]; }));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { octets.set(3, HLAbyte()); })) << "the index comes first";
   EXPECT_EQ(&octets.get(2), &octets[2]);
   HLAfixedRecord record;
   VariableLengthData data("old", 3);
   record.encode(data);
   EXPECT_EQ(0U, data.size());
   record.appendElement(HLAoctet());
   EXPECT_TRUE(record.hasElementSameTypeAs(0, HLAoctet()));
   EXPECT_FALSE(record.hasElementSameTypeAs(0, HLAbyte()));
   // The prototype's boundary counts only while the array is empty.
   HLAvariableArray mixed((HLAinteger64BE()));
   EXPECT_EQ(8U, mixed.getOctetBoundary());
   mixed.addElement(HLAoctet('\x07'));
   EXPECT_EQ(4U, mixed.getOctetBoundary());
   // The count is looked for at a multiple of 4, whatever the elements' boundary.
   EXPECT_EQ(
         17U, mixed.decodeFrom({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 9, 0, 0, 0}, 9));
}

// Many scalars may be encoded in pieces.
TEST(CompositeTest, holdsThousands)
{
   HLAvariableArray array((HLAinteger16BE()));
   std::string expected("\0\0\x07\xD0", 4);
   for (int i = 0; i < 2000; ++i) {
      array.addElement(HLAinteger16BE(static_cast<Integer16>(i)));
      expected += {static_cast<char>(i >> 8), static_cast<char>(i)};
   }
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(array.encode()));
   HLAvariableArray decoded((HLAinteger16BE()));
   decoded.decode(array.encode());
   EXPECT_EQ(hex(array.encode()), hex(decoded.encode()));
   // Every second one the caller's, so that no row of scalars is left.
   std::vector<HLAinteger16BE> mine(1000, HLAinteger16BE(7));
   for (std::size_t i = 0; i < 1000; ++i) {
      decoded.setElementPointer(2 * i, &mine[i]);
      expected.replace(4 + 4 * i, 2, std::string("\0\x07", 2));
   }
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(decoded.encode()));
   // Two fewer, and two others: they take no other one's place in memory.
   expected[3] = '\xCE';
   decoded.decode(VariableLengthData(expected.data(), expected.size() - 4));
   decoded.addElement(HLAinteger16BE(4));
   decoded.addElement(HLAinteger16BE(5));
   expected.replace(expected.size() - 4, 4, std::string("\0\x04\0\x05", 4));
   expected[3] = '\xD0';
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(decoded.encode()));
}

// A place in the caller's memory is not looked at before the element is used.
TEST(CompositeTest, findsWhatTheCallerHasMadeSince)
{
   alignas(8) char place[sizeof(HLAoctet)] = {};
   HLAfixedRecord record;
   record.appendElementPointer(reinterpret_cast<DataElement*>(place));
   new (place) HLAinteger16BE(1);
   EXPECT_EQ("00 01", hex(record.encode()));
   reinterpret_cast<HLAinteger16BE*>(place)->~HLAinteger16BE();
   HLAoctet* const octet = new (place) HLAoctet;
   EXPECT_EQ(1U, record.decodeFrom({2}, 0));
   EXPECT_EQ("02", hex(record.encode()));
   octet->~HLAoctet();
}

TEST(CompositeTest, takesFederatesOwnClasses)
{
   HLAfixedArray triples(Triple("abc"), 2);
   std::vector<Octet> buffer(4, '\x55');
   triples.encodeInto(buffer);
   EXPECT_EQ("55 55 55 55 00 00 61 62 63 61 62 63", hex(buffer.data(), buffer.size()));
   EXPECT_EQ(12U, triples.decodeFrom(buffer, 4));
   HLAvariableArray array((WideInteger()));
   array.addElement(HLAoctet('\x01'));
   array.addElement(WideInteger(2));
   array.addElement(HLAinteger32BE(9));
   EXPECT_EQ("00 00 00 03 01 00 00 00 00 00 00 02 00 00 00 09", hex(array.encode()));
   HLAfixedArray packed(Packed(5), 2);
   EXPECT_EQ("00 05 00 00 05 00", hex(packed.encode()));
   EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { packed.decodeFrom({0, 5, 0, 1}, 0); }));
}

TEST(VariantRecordTest, goesByTheDiscriminantsHash)
{
   HLAvariantRecord record(HLAinteger32BE(5));
   EXPECT_EQ(NOT_MAPPED, failureOf([&] { record.getVariant(); }));
   record.addVariant(HLAinteger32BE(5), HLAoctet('\x77'));
   EXPECT_EQ(1, record.hash());
   EXPECT_TRUE(record.hasMatchingDiscriminantTypeAs(HLAinteger32BE()));
   EXPECT_FALSE(record.hasMatchingDiscriminantTypeAs(HLAinteger32LE()));
   HLAinteger32LE const little(5);
   HLAoctet const octet('\x05');
   HLAinteger64BE const wide(5LL);
   HLAfloat64BE const real(5.5);
   for (DataElement const* const same :
         std::initializer_list<DataElement const*>{&little, &octet, &wide, &real}) {
      record.setDiscriminant(*same);
      EXPECT_TRUE(record.getDiscriminant().isSameTypeAs(*same));
      EXPECT_EQ(L"", failureOf([&] { record.getVariant(); }));
   }
   HLAvariantRecord named(HLAASCIIstring("A"));
   named.addVariant(HLAASCIIstring("A"), HLAoctet());
   EXPECT_TRUE(named.isSameTypeAs(HLAASCIIstring("anything"), HLAoctet()));
   named.setDiscriminant(HLAASCIIstring("B"));
   EXPECT_FALSE(named.isSameTypeAs(HLAASCIIstring("A"), HLAoctet()));
   HLAvariantRecord opaque(HLAopaqueData("x", 1));
   opaque.addVariant(HLAopaqueData("y", 1), HLAoctet());
   EXPECT_TRUE(opaque.isSameTypeAs(HLAopaqueData(), HLAoctet()));
   EXPECT_TRUE(opaque.isSameTypeAs(named));
   EXPECT_FALSE(opaque.isSameTypeAs(HLAoctet()));
}

// Alignment is to the discriminant's boundary; the padding before a variant that there is not is
// not consumed.
TEST(VariantRecordTest, decodesAtAnIndex)
{
   HLAvariantRecord record(HLAinteger32BE(1));
   record.addVariant(HLAinteger32BE(1), HLAinteger64BE());
   record.addVariant(HLAinteger32BE(2), HLAoctet());
   EXPECT_EQ(4U, record.decodeFrom({0, 0, 0, 9, 0, 0, 0, 0}, 0));
   EXPECT_EQ(9, dynamic_cast<HLAinteger32BE const&>(record.getDiscriminant()).get());
   EXPECT_EQ(9U, record.decodeFrom({0, 0, 0, 0, 0, 0, 0, 2, 0x44}, 1));
   EXPECT_EQ(0x44, dynamic_cast<HLAoctet const&>(record.getVariant()).get());
}

// Clones that no one releases any more: what addVariant() overwrites stays, since references to it
// may be about, and so does what setVariant() refuses.
TEST(VariantRecordTest, leavesClonesAlive)
{
   int const before = Triple::alive();
   static Triple const* volatile overwritten; // so that a leak checker knows them
   static Triple const* volatile refused;
   {
      HLAvariantRecord record(HLAoctet('\x01'));
      HLAoctet const one('\x01');
      record.addVariant(one, Triple("old"));
      overwritten = dynamic_cast<Triple const*>(&record.getVariant());
      record.addVariant(one, HLAoctet('\x02'));
      EXPECT_EQ(before + 1, Triple::alive());
      EXPECT_EQ("old", overwritten->value);
      EXPECT_EQ(WRONG_TYPE, failureOf([&] { record.setVariant(one, Triple("new")); }));
      EXPECT_EQ(before + 2, Triple::alive());
      refused = Triple::newestClone();
      EXPECT_EQ("new", refused->value);
      EXPECT_EQ("01 02", hex(record.encode()));
      record.setVariant(HLAoctet('\x02'), Triple());
      record.setVariant(HLAoctet('\x02'), Triple());
      EXPECT_EQ(before + 3, Triple::alive()) << "setVariant() deletes what it replaces";
   }
   EXPECT_EQ(before + 2, Triple::alive());
}

// A federate's element whose clone() fails in a way that no list has.
class Uncloneable : public Triple {
public:
   std::auto_ptr<DataElement> clone() const override
   {
      throw std::bad_cast();
   }
};

TEST(CompositeTest, keepsToItsExceptionLists)
{
   Uncloneable const element;
   HLAoctet const octet('\x01');
   HLAfixedRecord record;
   HLAvariableArray variable((Triple()));
   HLAvariantRecord variant(octet);
   EXPECT_THROW(record.appendElement(element), std::bad_cast) << "has no list";
   auto const expectListed = [](auto operation) {
      EXPECT_EQ(L"bad cast", (textOfUnexpected<std::bad_cast const&, EncoderException>(operation)));
   };
   expectListed([&] { variable.addElement(element); });
   expectListed([&] { variant.addVariant(octet, element); });
   expectListed([&] { variant.setVariant(octet, element); });
   expectListed([&] { variant.setDiscriminant(element); });
   EXPECT_EQ(0U, record.size() + variable.size());
   EXPECT_EQ("01", hex(variant.encode()));
}

} // namespace
