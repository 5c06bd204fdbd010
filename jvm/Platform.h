// What differs from one platform to the next, all of it.
#ifndef TARN1516E_JVM_PLATFORM_H
#define TARN1516E_JVM_PLATFORM_H

namespace tarn1516e {

#if defined(__APPLE__)
char const vmLibraryName[] = "libjvm.dylib";
char const vmBelowHome[] = "jre/lib/server/libjvm.dylib";
#else
char const vmLibraryName[] = "libjvm.so";
char const vmBelowHome[] = "jre/lib/server/libjvm.so";
#endif

} // namespace tarn1516e

#endif
