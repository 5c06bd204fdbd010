// Frames of callbacks that are fired to be measured.
#ifndef tests_performance_Frames_h
#define tests_performance_Frames_h

#include "tests/contract/Wire.h"

#include <cstring>

namespace performance {

// Attributes `first` and on with values of `size` bytes each, a tag of 4 bytes, and the producer.
inline std::string makeReflection(int handle, int count, std::size_t size, int first = 1)
{
   using namespace contract;
   std::vector<Wire> values;
   for (int attribute = first; attribute < first + count; ++attribute) {
      values.push_back(integer(attribute) + block(std::string(size, 'v')));
   }
   Wire const receiveOrder = integer(0);
   Wire const reliable = integer(1);
   Wire const producer = integer(1) + integer(0) + integer(2); // two flags, and the federate
   return frame(
         handle, integer(1) + counted(values) + block("tag!") + receiveOrder + reliable + producer);
}

// A callback whose only field is a time of the floating-point kind.
inline std::string makeGrant(int handle, double time)
{
   std::uint64_t bits;
   std::memcpy(&bits, &time, sizeof bits);
   return contract::frame(handle, contract::longInteger(bits));
}

} // namespace performance

#endif
