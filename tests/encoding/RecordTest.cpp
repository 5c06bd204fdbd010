// Records: ownership of fields and variants, checks, discriminants.
#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/FederateElement.h"

#include <gtest/gtest.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariantRecord.h>

using namespace rti1516e;

namespace {

std::wstring const WRONG_TYPE = L"Non-matching type";
std::wstring const NOT_MAPPED = L"Discriminant is not mapped to a value";

TEST(FixedRecordTest, encoding)
{
   HLAfixedRecord record;
   EXPECT_EQ(1U, record.getOctetBoundary());
   EXPECT_EQ("", hex(record.encode()));
   VariableLengthData data("old", 3);
   record.encode(data);
   EXPECT_EQ(0U, data.size());
   record.appendElement(HLAoctet('\x01'));
   record.appendElement(HLAinteger32BE(0x02030405));
   EXPECT_EQ("01 00 00 00 02 03 04 05", hex(record.encode()));
   EXPECT_EQ(8U, record.getEncodedLength());
   EXPECT_EQ(4U, record.getOctetBoundary());
   EXPECT_EQ(2U, record.size());
   EXPECT_EQ(1, record.hash());
   EXPECT_TRUE(record.isSameTypeAs(HLAfixedRecord()));
}

TEST(FixedRecordTest, fields)
{
   HLAinteger32BE mine(7);
   HLAfixedRecord record;
   record.appendElement(HLAoctet('\x01'));
   record.appendElementPointer(&mine);
   EXPECT_EQ(&mine, &record.get(1));
   HLAfixedRecord copy(record);
   std::unique_ptr<DataElement> const clone(record.clone().release());
   record.decode(fromHex("02 00 00 00 00 00 00 09"));
   EXPECT_EQ(9, mine.get());
   EXPECT_EQ("01 00 00 00 00 00 00 07", hex(copy.encode()));
   EXPECT_EQ("01 00 00 00 00 00 00 07", hex(clone->encode()));

   HLAfixedRecord const& itself = record;
   record = itself;
   EXPECT_NE(&mine, &record.get(1)) << "has become a clone";
   EXPECT_EQ("02 00 00 00 00 00 00 09", hex(record.encode()));
   record = copy;
   EXPECT_EQ("01 00 00 00 00 00 00 07", hex(record.encode()));

   EXPECT_TRUE(record.hasElementSameTypeAs(0, HLAoctet()));
   EXPECT_FALSE(record.hasElementSameTypeAs(0, HLAbyte()));
   EXPECT_EQ(WRONG_TYPE, failureOf([&] { record.set(0, HLAbyte()); }));
   HLAoctet octet('\x05');
   EXPECT_EQ(WRONG_TYPE, failureOf([&] { record.setElementPointer(1, &octet); }));
   EXPECT_EQ("01 00 00 00 00 00 00 07", hex(record.encode()));
   record.setElementPointer(0, &octet);
   record.set(1, HLAinteger32BE(8));
   octet = '\x06';
   EXPECT_EQ("06 00 00 00 00 00 00 08", hex(record.encode()));
}

TEST(FixedRecordTest, fieldsBeforeAFailureAreDecoded)
{
   HLAfixedRecord record;
   record.appendElement(HLAoctet('\x01'));
   record.appendElement(HLAASCIIstring("A"));
   record.appendElement(HLAinteger32BE(2));
   std::string const before = "01 00 00 00 00 00 00 01 41 00 00 00 00 00 00 02";
   EXPECT_EQ(before, hex(record.encode()));
   EXPECT_EQ(ARRAY_BOUNDS, failureOf([&] { record.decode(fromHex("07 00 00 00 00 00 00 09")); }));
   EXPECT_EQ("07" + before.substr(2), hex(record.encode()));
}

TEST(FixedRecordTest, fieldsAreReleased)
{
   int const before = Triple::alive;
   Triple mine("abc");
   {
      HLAfixedRecord record;
      record.appendElement(mine);
      record.appendElementPointer(&mine);
      record.set(0, Triple("xyz"));
      record.setElementPointer(0, &mine);
      record.set(1, mine);
      EXPECT_EQ(before + 2, Triple::alive);
      EXPECT_EQ("61 62 63 61 62 63", hex(record.encode()));
   }
   EXPECT_EQ(before + 1, Triple::alive);
}

TEST(VariantRecordTest, encoding)
{
   HLAvariantRecord record(HLAinteger32BE(1));
   EXPECT_EQ(4U, record.getOctetBoundary());
   EXPECT_EQ("00 00 00 01", hex(record.encode()));
   record.addVariant(HLAinteger32BE(1), HLAinteger64BE(0x0A0B0C0DLL));
   EXPECT_EQ(8U, record.getOctetBoundary());
   EXPECT_EQ("00 00 00 01 00 00 00 00 00 00 00 00 0A 0B 0C 0D", hex(record.encode()));
   EXPECT_EQ(16U, record.getEncodedLength());

   // The boundary is over all variants, and its padding is written without a variant, too.
   record.addVariant(HLAinteger32BE(3), HLAoctet('\x33'));
   record.setDiscriminant(HLAinteger32BE(3));
   EXPECT_EQ("00 00 00 03 00 00 00 00 33", hex(record.encode()));
   record.setDiscriminant(HLAinteger32BE(2));
   EXPECT_EQ("00 00 00 02 00 00 00 00", hex(record.encode()));
   EXPECT_EQ(8U, record.getEncodedLength());
   EXPECT_EQ(NOT_MAPPED, failureOf([&] { record.getVariant(); }));
   EXPECT_EQ(1, record.hash());
}

TEST(VariantRecordTest, decoding)
{
   HLAvariantRecord record(HLAinteger32BE(1));
   HLAinteger64BE mine;
   record.addVariantPointer(HLAinteger32BE(1), &mine);
   record.addVariant(HLAinteger32BE(2), HLAoctet());
   record.decode(fromHex("00 00 00 01 00 00 00 00 00 00 00 00 00 00 00 05"));
   EXPECT_EQ(5, mine.get());
   EXPECT_EQ(&mine, &record.getVariant());

   std::vector<Octet> const unknown = {0, 0, 0, 9, 0, 0, 0, 0};
   EXPECT_EQ(4U, record.decodeFrom(unknown, 0)) << "the padding is not consumed";
   EXPECT_EQ(9, dynamic_cast<HLAinteger32BE const&>(record.getDiscriminant()).get());
   EXPECT_EQ(NOT_MAPPED, failureOf([&] { record.getVariant(); }));

   EXPECT_EQ(OUT_OF_BOUNDS, failureOf([&] { record.decode(fromHex("00 00 00 02 00 00 00 00")); }));
   EXPECT_EQ(2, dynamic_cast<HLAinteger32BE const&>(record.getDiscriminant()).get());
   // Alignment is to the discriminant's boundary.
   std::vector<Octet> const late = {0, 0, 0, 0, 0, 0, 0, 2, 0x44};
   EXPECT_EQ(9U, record.decodeFrom(late, 1));
   EXPECT_EQ(0x44, dynamic_cast<HLAoctet const&>(record.getVariant()).get());
}

TEST(VariantRecordTest, discriminantsAreTheirHashes)
{
   HLAvariantRecord record(HLAinteger32BE(5));
   record.addVariant(HLAinteger32BE(5), HLAoctet('\x77'));
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
}

TEST(VariantRecordTest, variants)
{
   HLAvariantRecord record(HLAoctet('\x01'));
   HLAoctet const one('\x01');
   record.setVariant(one, HLAoctet('\x11'));
   record.setVariant(one, HLAoctet('\x12'));
   HLAoctet mine('\x13');
   record.setVariantPointer(one, &mine);
   HLAvariantRecord const copy(record);
   mine = '\x14';
   EXPECT_EQ("01 14", hex(record.encode()));
   EXPECT_EQ("01 13", hex(copy.encode()));
   std::unique_ptr<DataElement> const clone(copy.clone().release());
   EXPECT_EQ("01 13", hex(clone->encode()));

   HLAbyte byte;
   EXPECT_EQ(WRONG_TYPE, failureOf([&] { record.setVariantPointer(one, &byte); }));
   record.setVariant(HLAoctet('\x02'), HLAinteger16BE(static_cast<Integer16>(3)));
   EXPECT_EQ("01 00 14", hex(record.encode())) << "the discriminant stays";
   HLAvariantRecord const& itself = record;
   record = itself;
   EXPECT_NE(&mine, &record.getVariant()) << "has become a clone";
   record = copy;
   EXPECT_EQ("01 13", hex(record.encode()));
}

// Clones that no one releases any more: what addVariant() overwrites stays, since references to it
// may be about, and so does what setVariant() refuses.
TEST(VariantRecordTest, whatStaysAlive)
{
   int const before = Triple::alive;
   static Triple const* overwritten; // static, so that a leak checker knows them
   static Triple const* refused;
   {
      HLAvariantRecord record(HLAoctet('\x01'));
      HLAoctet const one('\x01');
      record.addVariant(one, Triple("old"));
      overwritten = dynamic_cast<Triple const*>(&record.getVariant());
      record.addVariant(one, HLAoctet('\x02'));
      EXPECT_EQ(before + 1, Triple::alive);
      EXPECT_EQ("old", overwritten->value);
      EXPECT_EQ(WRONG_TYPE, failureOf([&] { record.setVariant(one, Triple("new")); }));
      EXPECT_EQ(before + 2, Triple::alive);
      refused = Triple::newestClone;
      EXPECT_EQ("new", refused->value);
      EXPECT_EQ("01 02", hex(record.encode()));

      record.setVariant(HLAoctet('\x02'), Triple());
      record.setVariant(HLAoctet('\x02'), Triple());
      EXPECT_EQ(before + 3, Triple::alive) << "setVariant() deletes what it replaces";
   }
   EXPECT_EQ(before + 2, Triple::alive);
}

} // namespace
