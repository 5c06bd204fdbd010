// The table of ambassadors. It belongs to the process, so that each test has a process of its own.
#include "gen/cpp/HandleTable.h"
#include "gen/cpp/FederateAmbassadorHelper.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

int const SLOTS = 4096;
char things[SLOTS + 2];

// Ends a child with a word about the first thing that is not as it should be.
void expect(bool isSo, char const* what, int handle)
{
   if (!isSo) {
      std::fprintf(stderr, "%s is wrong at %d\n", what, handle);
      std::exit(1);
   }
}

void fillTable()
{
   for (int i = 1; i <= SLOTS; ++i) {
      expect(makeHandle(things + i) == i % SLOTS, "the handle", i);
   }
}

TEST(HandleTableDeathTest, HandsOutOneToTheLastThenZero)
{
   EXPECT_EXIT(
         {
            expect(lookupPtr(1) == nullptr, "an unused slot", 1);
            fillTable();
            for (int i = 1; i <= SLOTS; ++i) {
               expect(lookupPtr(i % SLOTS) == things + i, "the pointer", i);
               expect(static_cast<void*>(decodeHelper(i % SLOTS)) == things + i, "the helper", i);
            }
            std::exit(0);
         },
         testing::ExitedWithCode(0), "^$");
}

TEST(HandleTableDeathTest, TellsThatItIsFullAndAnswersZero)
{
   EXPECT_EXIT(
         {
            fillTable();
            expect(makeHandle(things) == 0, "the handle", SLOTS + 1);
            expect(lookupPtr(0) == things + SLOTS, "the pointer", 0); // it stays
            std::exit(0);
         },
         testing::ExitedWithCode(0), "^No more FederateAmbassador handles\n$");
}

// The search goes on behind the last handle; when all are taken it ends one further on.
TEST(HandleTableDeathTest, SearchesFromTheLastHandleOn)
{
   EXPECT_EXIT(
         {
            expect(makeHandle(things) == 1, "the first handle", 1);
            releaseHandle(1);
            expect(lookupPtr(1) == nullptr, "a released slot", 1);
            expect(makeHandle(things) == 2, "the handle behind", 2);
            for (int i = 3; i <= SLOTS + 1; ++i) {
               expect(makeHandle(things) == i % SLOTS, "the handle", i);
            }
            makeHandle(things); // in vain, and the last handle now is 2
            releaseHandle(2);
            releaseHandle(3);
            expect(makeHandle(things) == 3, "the handle behind", 3);
            expect(makeHandle(things) == 2, "the handle after a round", 2);
            std::exit(0);
         },
         testing::ExitedWithCode(0), "^No more FederateAmbassador handles\n$");
}

} // namespace
