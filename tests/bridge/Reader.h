// What a callback's frame must come to, told from the wire format alone: a second reader, with
// bounds, beside the library's own, which has none.
#ifndef tests_bridge_Reader_h
#define tests_bridge_Reader_h

#include "tests/bridge/Samples.h"

namespace net {

enum class Ending {
   DELIVERED, // the federate gets the arguments
   ASSERTION, // `detail` is the condition, and where it is "false" the function behind it
   EXCEPTION, // memory that no allocator gives
   // What the wire format leaves open:
   NULL_POINTER, // of a handle that is nobody's, or of a time before there is a factory
   ELSEWHERE,    // the handle is outside the table, or of another ambassador, which may be gone
   PAST_THE_END  // a read beyond the array
};

struct Prediction {
   Ending ending;
   std::string detail;
   std::vector<std::string> arguments; // as wire(), once more, has them
};

// Bytes that one allocation may have. No size that differs from a small one by a bit comes near it.
std::size_t const allocationLimit = 3 << 19;

// `native` is a native's name, `handle` the last that was given out.
Prediction predict(std::string const& native, std::string const& frame, Time time, int handle);

} // namespace net

#endif
