// The library's assertions: live in every build, told in the platform's own words.
#ifndef jvm_Assert_h
#define jvm_Assert_h

namespace tarn1516e {

// A place in the source, for a check that is made elsewhere on its behalf.
struct Place {
   char const* file;
   int line;
   char const* function;
};

// Reports the condition as the platform's assert does and ends the process.
[[noreturn]] void assertionFailed(char const* condition, Place place);

} // namespace tarn1516e

#define TARN_HERE (tarn1516e::Place{__FILE__, __LINE__, __func__})
#define TARN_ASSERT(condition)                                                                     \
   ((condition) ? static_cast<void>(0) : tarn1516e::assertionFailed(#condition, TARN_HERE))

#endif
