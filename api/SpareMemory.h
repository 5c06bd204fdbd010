// Memory for what is made and dropped by the thousand: values of scalars, records of short blocks.
// A thread keeps one free piece of each size for the next one, and frees them at its end.
#ifndef api_SpareMemory_h
#define api_SpareMemory_h

#include <cstddef>

namespace rti1516e {

class SpareMemory {
public:
   // As ::operator new.
   static void* allocate(std::size_t size);

   // As ::operator delete, on any thread. The size is the one that was asked for.
   static void free(void* memory, std::size_t size);
};

} // namespace rti1516e

#endif
