// A library that looks like a Java VM to start-up. It tells what it is called with on the standard
// output, and answers as these variables have it:
//
//    VM_CHECK, VM_COUNT   status and number of VMs of JNI_GetCreatedJavaVMs
//    VM_CREATE            status of JNI_CreateJavaVM
//    VM_ATTACH            status of AttachCurrentThread
//    VM_LACKS             part of the names of the classes that it does not find
//    VM_REGISTER          status of RegisterNatives
//    VM_THROWS            if set, there is always an exception, of no class that has a name
//
// Built with ENTRY_POINTS 0 it is a library and no VM, with 1 it has JNI_GetCreatedJavaVMs alone.
#include <jni.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#if ENTRY_POINTS > 0

namespace {

int answer(char const* variable)
{
   char const* const value = std::getenv(variable);
   return value != nullptr ? std::atoi(value) : 0;
}

void tell(char const* what, long value)
{
   std::printf("%s %ld\n", what, value);
   std::fflush(stdout);
}

_jobject thing;
char array[4];

jclass findClass(JNIEnv*, char const* name)
{
   char const* const lacking = std::getenv("VM_LACKS");
   bool const isThere = lacking == nullptr || std::strstr(name, lacking) == nullptr;
   return isThere ? static_cast<jclass>(&thing) : nullptr;
}

jmethodID getMethodId(JNIEnv*, jclass, char const*, char const*)
{
   return reinterpret_cast<jmethodID>(&thing);
}

jint registerNatives(JNIEnv*, jclass, JNINativeMethod const*, jint count)
{
   tell("RegisterNatives", count);
   return answer("VM_REGISTER");
}

jbyteArray newByteArray(JNIEnv*, jsize length)
{
   tell("NewByteArray", length);
   return static_cast<jbyteArray>(&thing);
}

void* pin(JNIEnv*, jarray, jboolean*)
{
   std::memset(array, 0x55, sizeof array);
   return array;
}

void unpin(JNIEnv*, jarray, void*, jint)
{
   std::printf("array %d %d %d %d\n", array[0], array[1], array[2], array[3]);
}

jobject newObject(JNIEnv*, jclass, jmethodID, va_list)
{
   return nullptr;
}

jthrowable exceptionOccurred(JNIEnv*)
{
   return std::getenv("VM_THROWS") != nullptr ? static_cast<jthrowable>(&thing) : nullptr;
}

void onException(JNIEnv*) {}

jboolean isInstanceOf(JNIEnv*, jobject, jclass)
{
   return JNI_FALSE;
}

void deleteLocalRef(JNIEnv*, jobject) {}

JNINativeInterface_ functionsOfEnv()
{
   JNINativeInterface_ functions = {};
   functions.FindClass = findClass;
   functions.GetMethodID = getMethodId;
   functions.RegisterNatives = registerNatives;
   functions.NewByteArray = newByteArray;
   functions.GetPrimitiveArrayCritical = pin;
   functions.ReleasePrimitiveArrayCritical = unpin;
   functions.NewObjectV = newObject;
   functions.ExceptionOccurred = exceptionOccurred;
   functions.ExceptionDescribe = onException;
   functions.ExceptionClear = onException;
   functions.IsInstanceOf = isInstanceOf;
   functions.DeleteLocalRef = deleteLocalRef;
   return functions;
}

JNINativeInterface_ const envFunctions = functionsOfEnv();
JNIEnv env = {&envFunctions};

jint attach(JavaVM*, void** result, void* arguments)
{
   tell(arguments == nullptr ? "AttachCurrentThread" : "AttachCurrentThread with arguments", 0);
   *result = &env;
   return answer("VM_ATTACH");
}

jint detach(JavaVM*)
{
   tell("DetachCurrentThread", 0);
   return 0;
}

jint destroy(JavaVM*)
{
   tell("DestroyJavaVM", 0);
   return 0;
}

JNIInvokeInterface_ const vmFunctions = {
      nullptr, nullptr, nullptr, destroy, attach, detach, nullptr, nullptr};
JavaVM vm = {&vmFunctions};

} // namespace

extern "C" {

JNIEXPORT jint JNICALL JNI_GetCreatedJavaVMs(JavaVM** vms, jsize size, jsize* count)
{
   tell("JNI_GetCreatedJavaVMs", size);
   *vms = &vm;
   *count = answer("VM_COUNT");
   return answer("VM_CHECK");
}

#if ENTRY_POINTS > 1

// Takes its time, so that a second thread can come.
JNIEXPORT jint JNICALL JNI_CreateJavaVM(JavaVM** result, void** resultEnv, void* arguments)
{
   JavaVMInitArgs const& init = *static_cast<JavaVMInitArgs const*>(arguments);
   std::printf("JNI_CreateJavaVM version %x, ignoring what it does not know: %d\n",
         static_cast<unsigned>(init.version), init.ignoreUnrecognized);
   for (jint i = 0; i < init.nOptions; ++i) {
      std::printf("[%s]\n", init.options[i].optionString);
   }
   std::fflush(stdout);
   std::this_thread::sleep_for(std::chrono::milliseconds(20));
   *result = &vm;
   *resultEnv = &env;
   return answer("VM_CREATE");
}

#endif

} // extern "C"

#endif
