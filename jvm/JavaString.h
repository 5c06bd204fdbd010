// Java strings as wide strings.
#ifndef jvm_JavaString_h
#define jvm_JavaString_h

#include <jni.h>
#include <string>

namespace tarn1516e {

// One wide character for each 16-bit unit: surrogates stay two. Keeps the reference.
inline std::wstring copyString(JNIEnv* env, jstring text)
{
   jsize const length = env->GetStringLength(text);
   jchar const* const units = env->GetStringCritical(text, nullptr);
   std::wstring copy(units, units + length);
   env->ReleaseStringCritical(text, units);
   return copy;
}

} // namespace tarn1516e

#endif
