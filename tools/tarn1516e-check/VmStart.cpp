#include "tools/tarn1516e-check/VmStart.h"

#include "jvm/Installation.h"
#include "jvm/Platform.h"

#include <dlfcn.h>
#include <jni.h>

namespace check {

std::string startVm(
      std::string const& home, std::vector<std::string> const& options, bool ignoringUnknown)
{
   int const mode = RTLD_NOW | RTLD_GLOBAL;
   void* library = dlopen(tarn1516e::vmLibraryName, mode);
   if (library == nullptr && !home.empty()) {
      library = dlopen((home + "/" + tarn1516e::vmBelowHome).c_str(), mode);
   }
   if (library == nullptr) {
      return dlerror();
   }
   auto const create =
         reinterpret_cast<decltype(&JNI_CreateJavaVM)>(dlsym(library, "JNI_CreateJavaVM"));
   if (create == nullptr) {
      return dlerror();
   }
   std::vector<JavaVMOption> entries;
   entries.reserve(options.size());
   for (std::string const& option : options) {
      entries.push_back({const_cast<char*>(option.c_str()), nullptr}); // the VM only reads it
   }
   JavaVMInitArgs args = {JNI_VERSION_1_2, static_cast<jint>(entries.size()), entries.data(),
         static_cast<jboolean>(ignoringUnknown)};
   JavaVM* vm = nullptr;
   JNIEnv* env = nullptr;
   jint const status = create(&vm, reinterpret_cast<void**>(&env), &args);
   return status == JNI_OK ? "" : "JNI_CreateJavaVM answered " + std::to_string(status);
}

namespace {

// This thread's environment of the VM that is in the process; null if there is none.
JNIEnv* environment()
{
   auto const created = reinterpret_cast<decltype(&JNI_GetCreatedJavaVMs)>(
         dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"));
   JavaVM* vm = nullptr;
   jsize count = 0;
   void* env = nullptr;
   if (created == nullptr || created(&vm, 1, &count) != JNI_OK || count == 0
         || vm->GetEnv(&env, JNI_VERSION_1_2) != JNI_OK) {
      return nullptr;
   }
   return static_cast<JNIEnv*>(env);
}

// Whatever failed on the way here leaves an exception and a null.
std::string textOf(JNIEnv* env, jobject string)
{
   std::string text;
   if (!env->ExceptionCheck() && string != nullptr) {
      char const* const bytes = env->GetStringUTFChars(static_cast<jstring>(string), nullptr);
      text = bytes;
      env->ReleaseStringUTFChars(static_cast<jstring>(string), bytes);
   }
   env->ExceptionClear();
   return text;
}

} // namespace

std::string versionOfRunningVm()
{
   JNIEnv* const env = environment();
   if (env == nullptr) {
      return std::string();
   }
   jclass const system = env->FindClass("java/lang/System");
   jmethodID const get =
         env->GetStaticMethodID(system, "getProperty", "(Ljava/lang/String;)Ljava/lang/String;");
   return textOf(env, env->CallStaticObjectMethod(system, get, env->NewStringUTF("java.version")));
}

std::string versionOfCoreJar()
{
   JNIEnv* const env = environment();
   jclass const core = env != nullptr ? env->FindClass(tarn1516e::coreClass) : nullptr;
   if (core == nullptr) {
      if (env != nullptr) {
         env->ExceptionClear();
      }
      return std::string();
   }
   jmethodID const package =
         env->GetMethodID(env->FindClass("java/lang/Class"), "getPackage", "()Ljava/lang/Package;");
   jmethodID const version = env->GetMethodID(
         env->FindClass("java/lang/Package"), "getImplementationVersion", "()Ljava/lang/String;");
   jobject const own = env->CallObjectMethod(core, package);
   return own != nullptr ? textOf(env, env->CallObjectMethod(own, version)) : std::string();
}

} // namespace check
