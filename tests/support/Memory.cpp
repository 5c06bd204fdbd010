#include "tests/support/Memory.h"

#include <cstdlib>
#include <new>

std::size_t memory::limit = memory::noLimit;
std::atomic<long> memory::allocations;
std::atomic<long> memory::held;

void* operator new(std::size_t size)
{
   ++memory::allocations;
   void* const place = size > memory::limit ? nullptr : std::malloc(size != 0 ? size : 1);
   if (place == nullptr) {
      throw std::bad_alloc();
   }
   ++memory::held;
   return place;
}

void* operator new[](std::size_t size)
{
   return operator new(size);
}

void operator delete(void* place) noexcept
{
   memory::held -= place != nullptr;
   std::free(place);
}

void operator delete[](void* place) noexcept
{
   operator delete(place);
}

void operator delete(void* place, std::size_t) noexcept
{
   operator delete(place);
}

void operator delete[](void* place, std::size_t) noexcept
{
   operator delete(place);
}
