#include "tools/tarn1516e-check/HostVm.h"

#include "jvm/Platform.h"

#include <dlfcn.h>
#include <jni.h>

namespace check {

std::string startHostVm(std::string const& home, std::string const& classPath)
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
   std::string text = "-Djava.class.path=" + classPath;
   JavaVMOption option = {&text[0], nullptr};
   JavaVMInitArgs args = {JNI_VERSION_1_2, 1, &option, JNI_TRUE};
   JavaVM* vm = nullptr;
   JNIEnv* env = nullptr;
   jint const status = create(&vm, reinterpret_cast<void**>(&env), &args);
   return status == JNI_OK ? "" : "JNI_CreateJavaVM answered " + std::to_string(status);
}

} // namespace check
