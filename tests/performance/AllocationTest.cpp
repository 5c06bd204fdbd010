// Native heap allocations of services and callbacks, counted by replaced operators.
#include "tests/performance/Cases.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long allocations;

void* allocate(std::size_t size)
{
   ++allocations;
   void* const memory = std::malloc(size != 0 ? size : 1);
   if (memory == nullptr) {
      throw std::bad_alloc();
   }
   return memory;
}

} // namespace

void* operator new(std::size_t size)
{
   return allocate(size);
}

void* operator new[](std::size_t size)
{
   return allocate(size);
}

void operator delete(void* memory) noexcept
{
   std::free(memory);
}

void operator delete[](void* memory) noexcept
{
   std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
   std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
   std::free(memory);
}

using performance::Case;
using performance::cases;

// The operators above are those that the library uses.
TEST(Allocations, areCounted)
{
   long const before = allocations;
   rti1516e::VariableLengthData const data("x", 1);
   EXPECT_EQ(1, allocations - before);
}

TEST(Allocations, areOnlyWhatIsHeld)
{
   for (Case const& row : cases()) {
      row.call(); // once before, for what is made at the first call
      long const before = allocations;
      row.call();
      EXPECT_EQ(row.allocations, allocations - before) << row.name;
      EXPECT_EQ(row.expected, row.reached()) << row.name;
   }
}
