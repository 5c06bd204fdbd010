// The cursor over a byte array: what it reads and writes, and where it stands afterwards.
#include "gen/cpp/ByteWrapper.h"
#include "tests/api/Bytes.h"

#include <gtest/gtest.h>
#include <limits>

using rti1516e::ByteWrapper;

namespace {

TEST(ByteWrapper, PutsIntegersMostSignificantByteFirst)
{
   struct Row {
      int value;
      char const* bytes;
   };
   Row const rows[] = {
         {0, "00 00 00 00"},
         {1, "00 00 00 01"},
         {0x01020304, "01 02 03 04"},
         {0x63626160, "63 62 61 60"},
         {-1, "FF FF FF FF"},
         {-2, "FF FF FF FE"},
         {128, "00 00 00 80"},
         {std::numeric_limits<int>::max(), "7F FF FF FF"},
         {std::numeric_limits<int>::min(), "80 00 00 00"},
   };
   for (Row const& row : rows) {
      char bytes[5] = {0, 0, 0, 0, 0x55};
      ByteWrapper writer(bytes);
      writer.putInt(row.value);
      EXPECT_EQ(row.bytes + std::string(" 55"), hex(bytes, 5));
      EXPECT_EQ(bytes + 4, writer.getPtr());
      ByteWrapper reader(bytes);
      EXPECT_EQ(row.value, reader.getInt());
      EXPECT_EQ(bytes + 4, reader.getPtr());
   }
}

TEST(ByteWrapper, MovesItsCursorWithEveryOperation)
{
   char bytes[32] = {};
   ByteWrapper buffer(bytes);
   EXPECT_EQ(bytes, buffer.getPtr());
   buffer.put("abc", 3);
   EXPECT_EQ(bytes + 3, buffer.getPtr());
   buffer.put(nullptr, 0);
   EXPECT_EQ(bytes + 3, buffer.getPtr());
   EXPECT_EQ(bytes + 3, buffer.reserve(2));
   EXPECT_EQ(bytes + 5, buffer.getPtr());
   buffer.putInt(0x10203040); // not on a boundary
   buffer.advance(1);
   EXPECT_EQ(bytes + 10, buffer.getPtr());
   EXPECT_EQ(bytes, buffer.array());
   EXPECT_EQ("61 62 63 00 00 10 20 30 40 00", hex(bytes, 10));

   ByteWrapper reader(bytes);
   char text[4] = {'x', 'x', 'x', 'x'};
   reader.get(text, 3);
   EXPECT_EQ("abcx", std::string(text, 4));
   reader.get(nullptr, 0);
   reader.advance(2);
   EXPECT_EQ(0x10203040, reader.getInt());
   EXPECT_EQ(bytes + 9, reader.getPtr());
}

TEST(ByteWrapper, AlignsUpwards)
{
   struct Row {
      unsigned long from;
      int alignment;
      unsigned long to;
   };
   Row const rows[] = {
         {0, 4, 0}, {5, 4, 8}, {8, 4, 8}, {7, 8, 8}, {9, 8, 16}, {3, 1, 3}, {1, 3, 3}, {4, 3, 6}};
   char bytes[32] = {};
   for (Row const& row : rows) {
      ByteWrapper buffer(bytes + 1); // counted from the buffer's begin, whatever its address
      buffer.advance(row.from);
      buffer.align(row.alignment);
      EXPECT_EQ(bytes + 1 + row.to, buffer.getPtr()) << row.from << " by " << row.alignment;
   }
}

TEST(ByteWrapper, HasNoBound)
{
   char bytes[8] = {};
   ByteWrapper buffer(bytes, 0);
   buffer.putInt(1);
   buffer.putInt(2);
   EXPECT_EQ("00 00 00 01 00 00 00 02", hex(bytes, 8));
   EXPECT_EQ(bytes, buffer.array());
}

} // namespace
