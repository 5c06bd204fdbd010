// Start-up: finds installation and VM library, joins the VM that is there or creates one.
#include "jvm/JVM.h"

#include "jvm/FpuGuards.h"
#include "jvm/Installation.h"
#include "jvm/Platform.h"
#include "jvm/Report.h"
#include "jvm/StartTexts.h"
#include "jvm/Text.h"
#include <tarn1516e/mutex.h>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <unistd.h>

void tarn1516e_exported_symbol_for_dlsym() {}

namespace tarn1516e {

JavaVM* JVM::_jvm;
JNIEnv* JVM::_instance;
bool JVM::_isShared;

namespace {

mutex _jvmMutex; // held through all of JVM::instance()

Trace trace; // set at each start-up

jint (*getCreatedJavaVMs_FPtr)(JavaVM**, jsize, jsize*);
jint (*createJavaVM_Fptr)(JavaVM**, void**, void*);

std::wstring jniResult(long status)
{
   switch (status) {
   case 0:
      return L"OK";
   case -1:
      return L"Unknown error (-1)";
   case -2:
      return L"JVM Detached (-2)";
   case -3:
      return L"JNI Version Error (-3)";
   case -4:
      return L"Not enough JVM memory allocated (-4)";
   case -5:
      return L"VM already created (-5)";
   case -6:
      return L"Invalid JVM arguments (-6)";
   default:
      return wformat(L"Unknown JVM error %ld", status);
   }
}

void failIfNegative(jint status, char const* pattern)
{
   if (status < 0) {
      fail(filled(pattern, {wstring2string(jniResult(status))}));
   }
}

bool isSet(char const* variable)
{
   return std::getenv(variable) != nullptr;
}

std::string get_current_path()
{
   char path[512];
   return getcwd(path, sizeof path) != nullptr ? path : "<error retrieving current directory>";
}

// ---- The installation, and the VM library ----------------------------------------------------

std::string findTarnHome()
{
   char const* const path = libraryFile();
   if (path == nullptr) {
      fail(text::noLibraryFile);
   }
   if (*path != '\0') {
      trace("Loaded tarn1516e library from '" + std::string(path) + "'");
   }
   for (std::string const& candidate : homeCandidates(path)) {
      if (isTarnHome(candidate)) {
         return candidate;
      }
   }
   return std::string();
}

std::string findJvm(std::string const& home)
{
   std::string path = home + vmBelowHome;
   trace("Looking for JVM at '" + path + "'");
   if (!fileExists(path)) {
      return std::string();
   }
   trace("Found JVM at '" + path + "'");
   return path;
}

[[noreturn]] void reportJvmLoadingError(char const* variable)
{
   char const* const value = std::getenv(variable);
   std::string const text =
         format(text::noVm, variable, variable, value != nullptr ? value : "(unknown)");
   trace(text);
   fail(text);
}

// A VM on the library path comes before the installation's own.
void* openJvm(std::string const& home)
{
   int const mode = RTLD_NOW | RTLD_GLOBAL;
   if (void* const handle = dlopen(vmLibraryName, mode)) {
      trace(text::vmOnLibraryPath);
      return handle;
   }
   if (home.empty()) {
      reportJvmLoadingError("LD_LIBRARY_PATH");
   }
   std::string const path = findJvm(home);
   if (path.empty()) {
      fail(text::noVmInHome);
   }
   void* const handle = dlopen(path.c_str(), mode);
   if (handle == nullptr) {
      fail(filled(text::vmNotLoaded, {path, dlerror()}));
   }
   trace(filled(text::vmOfHome, {path}));
   return handle;
}

template <class Function>
void findEntryPoint(void* handle, char const* name, Function& function)
{
   function = reinterpret_cast<Function>(dlsym(handle, name));
   if (function == nullptr) {
      char const* const error = dlerror();
      fail(filled(text::noEntryPoint, {name, error != nullptr ? error : ""}));
   }
}

void loadJvm(std::string const& home)
{
   void* const handle = openJvm(home);
   findEntryPoint(handle, "JNI_GetCreatedJavaVMs", getCreatedJavaVMs_FPtr);
   findEntryPoint(handle, "JNI_CreateJavaVM", createJavaVM_Fptr);
}

// ---- The options of a new VM -----------------------------------------------------------------

char* allocString(std::string const& text)
{
   char* const copy = new char[text.size() + 1];
   std::memcpy(copy, text.c_str(), text.size() + 1);
   return copy;
}

std::string classPathOption(std::string const& home)
{
   std::string const jar = home + jarBelowHome;
   trace((fileExists(jar) ? "Tarn java libs found in '" : "No Tarn java libs found in '") + jar
         + "'");
   std::string option = classPathProperty + classPath(home);
   trace("Setting classpath to '" + option + "'");
   return option;
}

bool hasOption(JavaVMOption const* options, int count, char const* prefix)
{
   for (int i = 0; i < count; ++i) {
      if (std::strncmp(options[i].optionString, prefix, std::strlen(prefix)) == 0) {
         return true;
      }
   }
   return false;
}

// One that is not wanted stays as an empty text, so that these entries are always the same.
void loadOptions(JavaVMOption* options, int& optionCount, std::string const& home)
{
   auto const append = [&](std::string const& text) {
      options[optionCount++].optionString = allocString(text);
   };
   std::string const own[ownOptions] = {
         classPathOption(home),
         "-DTarn.libraryName=rti1516",
         isSet("TARN_ENABLEBUNDLING") ? "-DenableBundling=true" : "",
         isSet("TARN_SINGLETHREAD") ? "-Dsinglethread=true" : "",
         isSet("TARN_VERBOSEJNI") ? "-verbose:jni" : "",
   };
   for (std::string const& text : own) {
      append(text);
   }
   for (GivenOption const& option : givenOptions()) {
      append(option.text);
   }
   if (!hasOption(options, optionCount, "-Xss")) {
      options[optionCount].extraInfo = nullptr;
      append("-Xss1024k");
   }
}

} // namespace

JNIEnv* JVM::instance()
{
   lock_guard<mutex> guard(_jvmMutex);
   if (_instance == nullptr) {
      start();
   }
   JNIEnv* env = nullptr;
   _jvm->AttachCurrentThread(reinterpret_cast<void**>(&env), nullptr);
   return env;
}

bool JVM::isShared()
{
   return _isShared;
}

void JVM::start()
{
   trace.readEnvironment();
   trace("Starting tarn1516e library");
   DefaultFPU defaultFPU;
   trace("Current directory '" + get_current_path() + "'");

   std::string const home = findTarnHome();
   if (home.empty()) {
      trace("Tarn home not found. Will use PATH/CLASSPATH");
   } else {
      trace("Tarn home found at  '" + home + "'");
   }
   loadJvm(home);

   trace("Checking for existing JVM");
   jsize count = 0;
   jint const result = getCreatedJavaVMs_FPtr(&_jvm, 1, &count);
   trace(format("getCreatedJavaVMs: %ls nVMcount = %d\n", jniResult(result).c_str(), count));
   failIfNegative(result, text::notChecked);

   if (count < 1) {
      create(home);
   } else {
      attach();
   }
}

void JVM::create(std::string const& home)
{
   JavaVMOption options[optionLimit + 1] = {}; // one more for the stack size
   int optionCount = 0;
   loadOptions(options, optionCount, home);

   JavaVMInitArgs args;
   args.version = JNI_VERSION_1_2;
   args.nOptions = optionCount;
   args.options = options;
   args.ignoreUnrecognized = JNI_TRUE;

   trace(text::creating);
   JNIEnv* env = nullptr;
   jint const result = createJavaVM_Fptr(&_jvm, reinterpret_cast<void**>(&env), &args);
   for (int i = 0; i < optionCount; ++i) {
      delete[] options[i].optionString;
   }
   failIfNegative(result, text::notCreated);
   _instance = env;
   _isShared = false;
   trace(text::created);
}

void JVM::attach()
{
   trace(text::attaching);
   JNIEnv* env = nullptr;
   jint const result = _jvm->AttachCurrentThread(reinterpret_cast<void**>(&env), nullptr);
   trace(format("AttachCurrentThread return value: %ls", jniResult(result).c_str()));
   failIfNegative(result, text::notAttached);
   _instance = env;
   _isShared = true;
   trace(text::attached);
}

} // namespace tarn1516e
