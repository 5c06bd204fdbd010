// What differs from one platform to the next, all of it.
#ifndef jvm_Platform_h
#define jvm_Platform_h

namespace tarn1516e {

#if defined(__APPLE__)
char const vmLibraryName[] = "libjvm.dylib";
char const vmBelowHome[] = "jre/lib/server/libjvm.dylib";
char const libraryPathVariable[] =
      "DYLD_LIBRARY_PATH"; // the folders that the loader looks in first
#else
char const vmLibraryName[] = "libjvm.so";
char const vmBelowHome[] = "jre/lib/server/libjvm.so";
char const libraryPathVariable[] = "LD_LIBRARY_PATH"; // the folders that the loader looks in first
#endif

} // namespace tarn1516e

#endif
