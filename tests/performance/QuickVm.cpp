#include "tests/performance/QuickVm.h"

#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

namespace quickvm {

namespace {

class Array : public _jbyteArray {
public:
   std::vector<char> bytes;
};

Array body; // the array of every call; it keeps the room of the longest
jsize bodySize;
_jclass thing; // every other object
jchar const noText = 0;

std::map<std::string, Native>& natives()
{
   static std::map<std::string, Native> all;
   return all;
}

jbyteArray JNICALL newByteArray(JNIEnv*, jsize size)
{
   bodySize = size;
   if (body.bytes.size() < static_cast<std::size_t>(size)) {
      body.bytes.resize(static_cast<std::size_t>(size));
   }
   return &body;
}

void* JNICALL pin(JNIEnv*, jarray array, jboolean*)
{
   return static_cast<Array*>(static_cast<jbyteArray>(array))->bytes.data();
}

jint JNICALL registerNatives(JNIEnv*, jclass, JNINativeMethod const* methods, jint count)
{
   for (jint i = 0; i != count; ++i) {
      natives()[methods[i].name] = reinterpret_cast<Native>(methods[i].fnPtr);
   }
   return JNI_OK;
}

jint JNICALL attach(JavaVM*, void** env, void*)
{
   *env = environment();
   return JNI_OK;
}

JNINativeInterface_ makeFunctions()
{
   JNINativeInterface_ functions = {};
   functions.FindClass = [](JNIEnv*, char const*) -> jclass { return &thing; };
   functions.GetMethodID = [](JNIEnv*, jclass, char const*, char const*) {
      return reinterpret_cast<jmethodID>(&thing);
   };
   functions.NewObjectV = [](JNIEnv*, jclass, jmethodID, va_list) -> jobject { return &thing; };
   functions.NewGlobalRef = [](JNIEnv*, jobject object) { return object; };
   functions.DeleteGlobalRef = [](JNIEnv*, jobject) {};
   functions.DeleteLocalRef = [](JNIEnv*, jobject) {};
   functions.NewByteArray = newByteArray;
   functions.GetPrimitiveArrayCritical = pin;
   functions.ReleasePrimitiveArrayCritical = [](JNIEnv*, jarray, void*, jint) {};
   functions.RegisterNatives = registerNatives;
   functions.ExceptionOccurred = [](JNIEnv*) -> jthrowable { return nullptr; };
   functions.ExceptionClear = [](JNIEnv*) {};

   // Methods answer nothing; the name of a time implementation, for one, is empty.
   functions.CallVoidMethodV = [](JNIEnv*, jobject, jmethodID, va_list) {};
   functions.CallIntMethodV = [](JNIEnv*, jobject, jmethodID, va_list) { return 1; };
   functions.CallBooleanMethodV = [](JNIEnv*, jobject, jmethodID, va_list) -> jboolean {
      return JNI_FALSE;
   };
   functions.CallObjectMethodV = [](JNIEnv*, jobject, jmethodID, va_list) -> jobject {
      return nullptr;
   };
   functions.GetStringLength = [](JNIEnv*, jstring) { return 0; };
   functions.GetStringCritical = [](JNIEnv*, jstring, jboolean*) { return &noText; };
   functions.ReleaseStringCritical = [](JNIEnv*, jstring, jchar const*) {};
   return functions;
}

JavaVM* machine()
{
   static JNIInvokeInterface_ const functions = [] {
      JNIInvokeInterface_ made = {};
      made.AttachCurrentThread = attach;
      return made;
   }();
   static JavaVM vm = {&functions};
   return &vm;
}

} // namespace

std::string lastBody()
{
   return std::string(body.bytes.data(), static_cast<std::size_t>(bodySize));
}

Native findNative(std::string const& name)
{
   return natives().at(name);
}

jbyteArray makeArray(std::string const& bytes)
{
   Array* const array = new Array; // stays
   array->bytes.assign(bytes.begin(), bytes.end());
   return array;
}

JNIEnv* environment()
{
   static JNINativeInterface_ const functions = makeFunctions();
   static JNIEnv env = {&functions};
   return &env;
}

} // namespace quickvm

// The library joins the VM that is there already, so that none is ever created.

extern "C" JNIEXPORT jint JNICALL JNI_GetCreatedJavaVMs(JavaVM** vms, jsize, jsize* count)
{
   *vms = quickvm::machine();
   *count = 1;
   return JNI_OK;
}

extern "C" JNIEXPORT jint JNICALL JNI_CreateJavaVM(JavaVM**, void**, void*)
{
   return JNI_ERR;
}
