// An operator new for test programs that counts, and gives out no more than a limit at once: beyond
// it there is std::bad_alloc, also where a sanitizer would end the process.
#ifndef tests_support_Memory_h
#define tests_support_Memory_h

#include <atomic>
#include <cstddef>

namespace memory {

std::size_t const noLimit = static_cast<std::size_t>(1) << 38;

// A program with one thread may change the limit, in bytes.
extern std::size_t limit;
extern std::atomic<long> allocations;
extern std::atomic<long> held; // and not freed yet

} // namespace memory

#endif
