#include "tests/soak/Fire.h"

#include "tests/soak/Figures.h"

#include <stdexcept>

namespace soak {

std::wstring fire(std::string const& native, std::string const& frame, int times)
{
   JNIEnv* const env = environment();
   env->PushLocalFrame(8);
   jsize const size = static_cast<jsize>(frame.size());
   jbyteArray const array = env->NewByteArray(size);
   env->SetByteArrayRegion(array, 0, size, reinterpret_cast<jbyte const*>(frame.data()));
   jclass const script = env->FindClass("skerry/tarn1516e/standin/Script");
   jmethodID const fireMany =
         env->GetStaticMethodID(script, "fireMany", "(Ljava/lang/String;[BI)Ljava/lang/String;");
   jobject const thrown = env->CallStaticObjectMethod(
         script, fireMany, env->NewStringUTF(native.c_str()), array, times);
   if (env->ExceptionCheck()) {
      env->ExceptionDescribe();
      throw std::runtime_error("firing " + native);
   }
   std::wstring text;
   if (thrown != nullptr) {
      jstring const string = static_cast<jstring>(thrown);
      jchar const* const units = env->GetStringChars(string, nullptr);
      text.assign(units, units + env->GetStringLength(string));
      env->ReleaseStringChars(string, units);
   }
   env->PopLocalFrame(nullptr);
   return text;
}

} // namespace soak
