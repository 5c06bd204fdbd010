// A free piece of each size, for each thread.
#include "api/SpareMemory.h"

#include "api/ThreadEnd.h"

#include <new>

#ifndef __APPLE__
// There in a process with the address sanitizer, whatever else was built with it.
extern "C" void __asan_poison_memory_region(void const volatile*, std::size_t)
      __attribute__((weak));
#endif

namespace rti1516e {

namespace {

std::size_t const SIZES = 5;

// Pieces have the sizes that allocators have anyhow.
constexpr std::size_t sizeOf(std::size_t index)
{
   return 16 * index + 8;
}

// The smallest that is large enough, or SIZES.
constexpr std::size_t indexOf(std::size_t size)
{
   return size <= sizeOf(SIZES - 1) ? (size + 7) / 16 : SIZES;
}

static_assert(sizeOf(indexOf(24)) == 24 && sizeOf(indexOf(25)) == 40, "smallest piece");
static_assert(indexOf(72) == SIZES - 1 && indexOf(73) == SIZES, "largest piece");

// Without a destructor: federates' objects come here also after the thread's own are gone.
struct Spares {
   void* pieces[SIZES];
   bool areKept;
   bool areGone;
};

thread_local Spares spares;

void freeAtEnd(void*)
{
   for (void* const piece : spares.pieces) {
      ::operator delete(piece);
   }
   spares = Spares();
   spares.areGone = true;
}

bool isWatched()
{
#ifdef __APPLE__
   return false;
#else
   return &__asan_poison_memory_region != nullptr;
#endif
}

// Not where the address sanitizer looks for uses of freed memory, the federate's among them.
bool startKeeping()
{
   static ThreadEnd const threadEnd(freeAtEnd);
   spares.areKept = !isWatched() && !spares.areGone && threadEnd.await(&spares);
   return spares.areKept;
}

} // namespace

void* SpareMemory::allocate(std::size_t size)
{
   std::size_t const index = indexOf(size);
   if (index == SIZES) {
      return ::operator new(size);
   }
   void* const piece = spares.pieces[index];
   if (piece == nullptr) {
      return ::operator new(sizeOf(index));
   }
   spares.pieces[index] = nullptr;
   return piece;
}

void SpareMemory::free(void* memory, std::size_t size)
{
   std::size_t const index = indexOf(size);
   if (index != SIZES && spares.pieces[index] == nullptr && (spares.areKept || startKeeping())) {
      spares.pieces[index] = memory;
   } else {
      ::operator delete(memory);
   }
}

} // namespace rti1516e
