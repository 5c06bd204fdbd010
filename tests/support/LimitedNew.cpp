#include "tests/support/LimitedNew.h"

#include <cstdlib>
#include <new>

std::size_t support::allocationLimit = support::largeAllocation;

void* operator new(std::size_t size)
{
   void* const memory =
         size > support::allocationLimit ? nullptr : std::malloc(size != 0 ? size : 1);
   if (memory == nullptr) {
      throw std::bad_alloc();
   }
   return memory;
}

void* operator new[](std::size_t size)
{
   return operator new(size);
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
