// Elements in elements: golden bytes at every alignment, and every truncation and corruption of
// them, against a plain second implementation.
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/FederateElement.h"
#include "tests/encoding/Scalars.h"
#include "tests/encoding/Shape.h"

#include <gtest/gtest.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>

using namespace rti1516e;

namespace {

std::string bytesOf(std::string const& text)
{
   VariableLengthData const data = fromHex(text);
   return std::string(static_cast<char const*>(data.data()), data.size());
}

Shape scalar(std::string const& name, std::string const& content)
{
   return scalarShape(scalarNamed(name), bytesOf(content));
}

Shape narrow(std::string const& content)
{
   return stringShape(Shape::NARROW, content);
}

struct Golden {
   std::string name;
   Shape shape;
   std::string bytes;
};

std::vector<Golden> goldenRows()
{
   Shape const pair = sequenceShape(
         Shape::RECORD, {scalar("HLAoctet", "41"), scalar("HLAinteger16BE", "01 02")});
   Shape const one = scalar("HLAfloat64BE", "3F F1 99 99 99 99 99 9A");
   Shape const blob = stringShape(Shape::OPAQUE, "ABC");
   Shape const alternatives = sequenceShape(Shape::VARIANT,
         {scalar("HLAoctet", "01"), scalar("HLAinteger64LE", "01 02 03 04 05 06 07 08"),
               arrayShape(pair, {pair, pair})});
   return {{"record in array in variant in record",
                 sequenceShape(Shape::RECORD,
                       {scalar("HLAoctet", "07"), alternatives, scalar("HLAoctet", "09")}),
                 "07 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 "
                 "00 00 00 02 41 00 01 02 41 00 01 02 09"},
         {"string and array of floats",
               sequenceShape(Shape::RECORD, {narrow("A"), arrayShape(one, {one})}),
               "00 00 00 01 41 00 00 00 00 00 00 01 00 00 00 00 3F F1 99 99 99 99 99 9A"},
         {"array of wide strings",
               sequenceShape(Shape::FIXED_ARRAY,
                     {stringShape(Shape::WIDE, bytesOf("00 41")), stringShape(Shape::WIDE, "")}),
               "00 00 00 01 00 41 00 00 00 00 00 00"},
         {"array of opaque data",
               arrayShape(stringShape(Shape::OPAQUE, ""), {blob, stringShape(Shape::OPAQUE, "D")}),
               "00 00 00 02 00 00 00 03 41 42 43 00 00 00 00 01 44"},
         {"array of arrays",
               arrayShape(arrayShape(one, {}), {arrayShape(one, {}), arrayShape(one, {one})}),
               "00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 00 "
               "00 00 00 01 00 00 00 00 3F F1 99 99 99 99 99 9A"},
         {"no variant for the discriminant",
               sequenceShape(Shape::VARIANT,
                     {scalar("HLAoctet", "05"), scalar("HLAboolean", "00 00 00 01")}),
               "05 00 00 00"},
         {"no variants",
               sequenceShape(Shape::RECORD,
                     {sequenceShape(Shape::VARIANT, {scalar("HLAoctet", "05")}),
                           scalar("HLAinteger16LE", "02 01")}),
               "05 00 02 01"},
         {"nothing in a record in an array",
               arrayShape(sequenceShape(Shape::RECORD, {}), {sequenceShape(Shape::RECORD, {})}),
               "00 00 00 01"},
#define ROW(Name, Value, value, bytes) {#Name, shapeOf(#Name, bytes), bytes},
#define shapeOf(name, bytes)                                                                       \
   std::string(name) == "HLAASCIIstring" ? narrow(bytesOf(bytes).substr(4))                        \
         : std::string(name) == "HLAunicodeString"                                                 \
         ? stringShape(Shape::WIDE, bytesOf(bytes).substr(4))                                      \
         : scalar(name, bytes)
         FOR_EACH_GOLDEN_VALUE(ROW)
#undef shapeOf
#undef ROW
   };
}

std::vector<Octet> toVector(std::string const& bytes)
{
   return std::vector<Octet>(bytes.begin(), bytes.end());
}

std::string encodedBy(DataElement const& element)
{
   return hex(element.encode());
}

std::string encodedBy(Shape const& shape)
{
   std::string bytes;
   encodeShape(shape, bytes);
   return hex(bytes.data(), bytes.size());
}

// Decodes the same bytes by shape and by element, and compares where they end, what they throw and
// what they hold afterwards.
void compareDecoding(
      Shape& shape, DataElement& element, std::string const& bytes, std::size_t index)
{
   SCOPED_TRACE(hex(bytes.data(), bytes.size()));
   std::wstring expected, failure;
   std::size_t expectedEnd = 0, end = 0;
   try {
      expectedEnd = decodeShape(shape, bytes, index);
   } catch (std::wstring const& message) {
      expected = message;
   }
   std::vector<Octet> const exactly = toVector(bytes);
   failure = failureOf([&] { end = element.decodeFrom(exactly, index); });
   EXPECT_EQ(expected, failure);
   EXPECT_EQ(expectedEnd, end);
   ASSERT_EQ(encodedBy(shape), encodedBy(element));
}

TEST(CompositionTest, goldenBytesAtEveryAlignment)
{
   for (Golden const& row : goldenRows()) {
      SCOPED_TRACE(row.name);
      std::string const golden = bytesOf(row.bytes);
      EXPECT_EQ(row.bytes, encodedBy(row.shape));
      for (bool const byPointer : {false, true}) {
         Kept kept;
         std::unique_ptr<DataElement> const element = elementOf(row.shape, byPointer, kept);
         EXPECT_EQ(row.bytes, encodedBy(*element));
         EXPECT_EQ(golden.size(), element->getEncodedLength());
         unsigned int const boundary = element->getOctetBoundary();
         EXPECT_EQ(boundaryOf(row.shape), boundary);
         for (std::size_t start = 0; start < 8; ++start) {
            std::vector<Octet> buffer(start, '\x55');
            element->encodeInto(buffer);
            std::size_t const first = (start + boundary - 1) / boundary * boundary;
            std::string const expected =
                  std::string(start, '\x55') + std::string(first - start, '\0') + golden;
            EXPECT_EQ(toVector(expected), buffer) << start;
            Shape shape = row.shape;
            compareDecoding(shape, *element, expected, first);
         }
         std::unique_ptr<DataElement> const clone(element->clone().release());
         EXPECT_EQ(row.bytes, encodedBy(*clone));
      }
   }
}

TEST(CompositionTest, everyTruncation)
{
   for (Golden const& row : goldenRows()) {
      SCOPED_TRACE(row.name);
      std::string const golden = bytesOf(row.bytes);
      for (std::size_t size = 0; size <= golden.size(); ++size) {
         Kept kept;
         Shape shape = row.shape;
         compareDecoding(shape, *elementOf(row.shape, true, kept), golden.substr(0, size), 0);
      }
   }
}

TEST(CompositionTest, everyCorruptedByte)
{
   for (Golden const& row : goldenRows()) {
      SCOPED_TRACE(row.name);
      for (std::size_t at = 0; at < bytesOf(row.bytes).size(); ++at) {
         for (int octet = 0; octet < 256; ++octet) {
            std::string corrupted = bytesOf(row.bytes);
            corrupted[at] = static_cast<char>(octet);
            Kept kept;
            Shape shape = row.shape;
            std::unique_ptr<DataElement> const element = elementOf(row.shape, false, kept);
            compareDecoding(shape, *element, corrupted, 0);
            std::unique_ptr<DataElement> const other = elementOf(row.shape, true, kept);
            failureOf(
                  [&] { other->decode(VariableLengthData(corrupted.data(), corrupted.size())); });
            ASSERT_EQ(encodedBy(shape), encodedBy(*other));
         }
      }
   }
}

// Random shapes, encoded at random places and decoded from their own bytes and from damaged ones.
TEST(CompositionTest, randomShapes)
{
   for (unsigned int seed = 0; seed < 400; ++seed) {
      SCOPED_TRACE("seed " + std::to_string(seed));
      std::mt19937 random(seed);
      Shape shape = randomShape(random, 3);
      Kept kept;
      std::unique_ptr<DataElement> const element = elementOf(shape, seed % 2 == 0, kept);
      std::string expected(random() % 8, '\x55');
      std::vector<Octet> buffer = toVector(expected);
      encodeShape(shape, expected);
      element->encodeInto(buffer);
      ASSERT_EQ(toVector(expected), buffer);
      for (int i = 0; i < 20; ++i) {
         std::string bytes;
         encodeShape(shape, bytes);
         if (!bytes.empty() && i > 0) {
            bytes[random() % bytes.size()] = static_cast<char>(random() % 4);
            bytes.resize(bytes.size() - random() % 2);
         }
         compareDecoding(shape, *element, bytes, 0);
         if (HasFatalFailure()) {
            return;
         }
      }
   }
}

// A federate's element whose clone() fails in a way that no list has.
class Uncloneable : public Triple {
public:
   std::auto_ptr<DataElement> clone() const override
   {
      throw std::bad_cast();
   }
};

TEST(CompositionTest, exceptionLists)
{
   Uncloneable const element;
   HLAoctet const octet('\x01');
   HLAfixedRecord record;
   Triple mine;
   HLAfixedArray fixed(Triple(), 1);
   HLAvariableArray variable((Triple()));
   HLAvariantRecord variant(octet);
   EXPECT_THROW(record.appendElement(element), std::bad_cast) << "has no list";
   std::wstring const unexpected = L"bad cast";
   EXPECT_EQ(unexpected, (textOfUnexpected<std::bad_cast const&, EncoderException>([&] {
      variable.addElement(element);
   })));
   EXPECT_EQ(unexpected, (textOfUnexpected<std::bad_cast const&, EncoderException>([&] {
      variant.addVariant(octet, element);
   })));
   EXPECT_EQ(unexpected, (textOfUnexpected<std::bad_cast const&, EncoderException>([&] {
      variant.setVariant(octet, element);
   })));
   EXPECT_EQ(unexpected, (textOfUnexpected<std::bad_cast const&, EncoderException>([&] {
      variant.setDiscriminant(element);
   })));
   EXPECT_EQ(0U, record.size());
   EXPECT_EQ(0U, variable.size());
   EXPECT_EQ("01", encodedBy(variant));
}

} // namespace
