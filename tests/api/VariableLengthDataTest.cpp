// Blocks of bytes: who owns them, and in what order they sort.
#include "tests/api/Bytes.h"

#include <gtest/gtest.h>

using namespace rti1516e;

namespace {

std::string freedBytes;

// Notes the first byte of what it frees.
void freeNoting(void* bytes)
{
   freedBytes += *static_cast<char*>(bytes);
   delete[] static_cast<char*>(bytes);
}

char* newBytes(char first)
{
   return new char[3]{first, 'y', 'z'};
}

TEST(VariableLengthDataTest, emptyBlocksDifferInTheirPointer)
{
   VariableLengthData const fresh;
   EXPECT_EQ(nullptr, fresh.data());
   EXPECT_EQ(0u, fresh.size());
   VariableLengthData const ofNothing(nullptr, 0);
   EXPECT_NE(nullptr, ofNothing.data());
   EXPECT_EQ(0u, ofNothing.size());
   VariableLengthData const copyOfFresh(fresh);
   EXPECT_NE(nullptr, copyOfFresh.data());
}

TEST(VariableLengthDataTest, ownsCopies)
{
   char bytes[] = {1, 2, 3};
   VariableLengthData const constructed(bytes, 3);
   VariableLengthData set;
   set.setData(bytes, 2);
   VariableLengthData pointing;
   pointing.setDataPointer(bytes, 3);
   VariableLengthData const copied(pointing);
   VariableLengthData assigned;
   EXPECT_EQ(&assigned, &(assigned = pointing));
   bytes[0] = 9;
   EXPECT_EQ("01 02 03", hex(constructed));
   EXPECT_EQ("01 02", hex(set));
   EXPECT_EQ("01 02 03", hex(copied));
   EXPECT_EQ("01 02 03", hex(assigned));
   EXPECT_EQ("09 02 03", hex(pointing));
   EXPECT_EQ(bytes, pointing.data());
}

TEST(VariableLengthDataTest, freesWhatItTookOnce)
{
   freedBytes.clear();
   {
      VariableLengthData data;
      char* const taken = newBytes('a');
      data.takeDataPointer(taken, 3, freeNoting);
      EXPECT_EQ(taken, data.data());
      EXPECT_EQ(3u, data.size());
      VariableLengthData const copy(data);
      EXPECT_NE(data.data(), copy.data());
      EXPECT_EQ(hex(data), hex(copy));
   }
   EXPECT_EQ("a", freedBytes);
}

TEST(VariableLengthDataTest, everyReplacementFreesWhatWasThere)
{
   char bytes[] = {1};
   VariableLengthData const other(bytes, 1);
   freedBytes.clear();
   VariableLengthData data;
   data.takeDataPointer(newBytes('a'), 3, freeNoting);
   data.takeDataPointer(newBytes('b'), 3, freeNoting);
   EXPECT_EQ("a", freedBytes);
   data.setData(bytes, 1);
   EXPECT_EQ("ab", freedBytes);
   data.takeDataPointer(newBytes('c'), 3, freeNoting);
   data.setDataPointer(bytes, 1);
   EXPECT_EQ("abc", freedBytes);
   data.takeDataPointer(newBytes('d'), 3, freeNoting);
   data = other;
   EXPECT_EQ("abcd", freedBytes);
   data.takeDataPointer(newBytes('e'), 3); // without a function: an array of char
   EXPECT_EQ("65 79 7A", hex(data));
}

// Whether the old record serves again or not, what is held is what was set last.
TEST(VariableLengthDataTest, holdsWhatWasSetLast)
{
   std::string bytes(1000, '\0');
   VariableLengthData data;
   VariableLengthData copy(data);
   EXPECT_NE(nullptr, copy.data()) << "a copy of nothing";
   for (std::size_t const size : {0, 8, 3, 1000, 600, 400, 90, 0, 1, 65, 66}) {
      std::string const before = hex(data);
      copy = data;
      bytes[0] = static_cast<char>(size);
      data.setData(bytes.data(), size);
      EXPECT_EQ(hex(bytes.data(), size), hex(data));
      EXPECT_NE(nullptr, data.data());
      EXPECT_EQ(before, hex(copy));
   }
}

TEST(VariableLengthDataTest, sortsBySignedBytes)
{
   char const* const ascending[] = {"", "80", "80 00", "FF", "00", "00 FF", "00 00", "01", "7F"};
   for (char const* const& left : ascending) {
      for (char const* const& right : ascending) {
         EXPECT_EQ(&left < &right, fromHex(left) < fromHex(right)) << left << ", " << right;
      }
   }
   EXPECT_FALSE(VariableLengthData() < VariableLengthData(nullptr, 0));
}

} // namespace
