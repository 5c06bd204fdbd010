// What a callback's frame must come to, told from the wire format alone: a second reader, with
// bounds, beside the library's own, which has none.
#ifndef tests_reliability_FrameModel_h
#define tests_reliability_FrameModel_h

#include "tests/contract/Federate.h"

#include <string>
#include <vector>

namespace reliability {

enum class Ending {
   DELIVERED, // the federate gets the arguments
   ASSERTION, // `detail` is the condition, and where it is "false" the function behind it
   EXCEPTION, // memory that no allocator gives
   // What the wire format leaves open:
   NULL_POINTER,  // of a handle that is nobody's, or of a time before there is a factory
   OUTSIDE_TABLE, // the handle is not in the table
   PAST_THE_END,  // a read beyond the array
   SHORT_COPY     // a retraction's size that its last byte turns negative
};

char const* name(Ending ending);

struct Prediction {
   Ending ending;
   std::string detail;
   contract::Texts arguments;
};

enum class Time {
   NONE,
   INTEGER,
   FLOAT
};

std::size_t const allocationLimit = 1 << 20; // bytes that one allocation may have

int const knownHandle = 1; // the only one that is somebody's

// `operation` is a native's name without the ending.
Prediction predict(std::string const& operation, std::string const& frame, Time time);

// A well-formed frame with a small value in every field.
std::string sampleFrame(std::string const& operation, int handle);

// The names of the 60 natives, without the ending.
std::vector<std::string> const& operations();

} // namespace reliability

#endif
