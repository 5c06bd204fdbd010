// How the identifiers of Java methods are found.
#ifndef gen_JavaMethod_h
#define gen_JavaMethod_h

#include <jni.h>

namespace tarn1516e {

// The identifier of a Java method. A class without it does not belong to this library: the process
// ends.
jmethodID bind(JNIEnv* env, jclass type, char const* name, char const* signature);

} // namespace tarn1516e

#endif
