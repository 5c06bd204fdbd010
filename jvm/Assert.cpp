// A failed assertion ends as the platform's own does, also where that one is compiled out.
#include "jvm/Assert.h"

#include <cassert>

#if defined(NDEBUG) && defined(__GLIBC__)
extern "C" void __assert_fail(char const*, char const*, unsigned int, char const*);
#elif defined(NDEBUG) && defined(__APPLE__)
extern "C" void __assert_rtn(char const*, char const*, int, char const*);
#endif

namespace tarn1516e {

void assertionFailed(char const* condition, Place place)
{
#if defined(__APPLE__)
   __assert_rtn(place.function, place.file, place.line, condition);
#else
   __assert_fail(condition, place.file, static_cast<unsigned int>(place.line), place.function);
#endif
   __builtin_unreachable();
}

} // namespace tarn1516e
