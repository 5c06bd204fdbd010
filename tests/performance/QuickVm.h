// A Java VM without Java: what the library asks of one, answered at once and without a native
// allocation, so that what is counted around a call is the library's own. It bears the real one's
// name, and the library finds it in the program that is linked with it.
#ifndef tests_performance_QuickVm_h
#define tests_performance_QuickVm_h

#include <RTI/SpecificConfig.h>

#include <jni.h>
#include <string>

namespace quickvm {

// What the last method was called with.
RTI_EXPORT std::string lastBody();

// A native as the library registered it, and a frame for it, which stays.
typedef void (*Native)(JNIEnv*, jobject, jbyteArray);
RTI_EXPORT Native findNative(std::string const& name);
RTI_EXPORT jbyteArray makeArray(std::string const& bytes);
RTI_EXPORT JNIEnv* environment();

} // namespace quickvm

#endif
