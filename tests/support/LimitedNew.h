// An operator new for test programs that gives out no more than a limit at once: beyond it there is
// std::bad_alloc, also where a sanitizer would end the process.
#ifndef tests_support_LimitedNew_h
#define tests_support_LimitedNew_h

#include <cstddef>

namespace support {

std::size_t const largeAllocation = static_cast<std::size_t>(1) << 38;

// In bytes; a program with one thread may change it.
extern std::size_t allocationLimit;

} // namespace support

#endif
