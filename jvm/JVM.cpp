#include "jvm/JVM.h"

#include "jvm/FpuGuards.h"
#include "jvm/Platform.h"
#include "jvm/Text.h"
#include <RTI/Exception.h>
#include <tarn1516e/mutex.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <unistd.h>

void tarn1516e_exported_symbol_for_dlsym() {}

namespace tarn1516e {

JavaVM* JVM::_jvm;
JNIEnv* JVM::_instance;
bool JVM::_isShared;

namespace {

mutex _jvmMutex; // held through all of JVM::instance()

bool trace; // set at each start-up

jint (*getCreatedJavaVMs_FPtr)(JavaVM**, jsize, jsize*);
jint (*createJavaVM_Fptr)(JavaVM**, void**, void*);

int const optionLimit = 50; // entries that the option file may fill

void traceLine(std::string const& text)
{
   if (trace) {
      std::fprintf(stderr, "TARN1516E_TRACE_LOAD: %s\n", text.c_str());
   }
}

[[noreturn]] void fail(std::wstring const& text)
{
   std::fprintf(stderr, "%s", wstring2string(text).c_str());
   throw rti1516e::RTIinternalError(text);
}

[[noreturn]] void fail(std::string const& text)
{
   fail(string2wstring(text));
}

// `pattern` has one %ls, for the status.
void failIfNegative(jint status, wchar_t const* pattern)
{
   if (status < 0) {
      fail(wformat(pattern, jniResult(status).c_str()));
   }
}

bool isSet(char const* variable)
{
   return std::getenv(variable) != nullptr;
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
   trace = isSet("TARN1516E_TRACE_LOAD");
   traceLine("Starting tarn1516e library");
   DefaultFPU defaultFPU;
   traceLine("Current directory '" + get_current_path() + "'");

   std::string const home = findTarnHome();
   if (home.empty()) {
      traceLine("Tarn home not found. Will use PATH/CLASSPATH");
   } else {
      traceLine("Tarn home found at  '" + home + "'");
   }
   loadJvm(home);

   traceLine("Checking for existing JVM");
   jsize count = 0;
   jint const result = getCreatedJavaVMs_FPtr(&_jvm, 1, &count);
   traceLine(format("getCreatedJavaVMs: %ls nVMcount = %d\n", jniResult(result).c_str(), count));
   failIfNegative(result, L"Cannot check for existing JVM. Error: %ls\n");

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
   loadOptions(options, optionCount, optionLimit, home);

   JavaVMInitArgs args;
   args.version = JNI_VERSION_1_2;
   args.nOptions = optionCount;
   args.options = options;
   args.ignoreUnrecognized = JNI_TRUE;

   traceLine("Attempting to create new JVM");
   JNIEnv* env = nullptr;
   jint const result = createJavaVM_Fptr(&_jvm, reinterpret_cast<void**>(&env), &args);
   for (int i = 0; i < optionCount; ++i) {
      delete[] options[i].optionString;
   }
   failIfNegative(result, L"Cannot create JVM. Error: %ls\n");
   _instance = env;
   _isShared = false;
   traceLine("Created new JVM");
}

void JVM::attach()
{
   traceLine("Attempting to attach to existing JVM");
   JNIEnv* env = nullptr;
   jint const result = _jvm->AttachCurrentThread(reinterpret_cast<void**>(&env), nullptr);
   traceLine(format("AttachCurrentThread return value: %ls", jniResult(result).c_str()));
   failIfNegative(result, L"Cannot attach to existing JVM. Error: %ls\n");
   _instance = env;
   _isShared = true;
   traceLine("Attached to existing JVM");
}

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

std::string get_current_path()
{
   char path[512];
   return getcwd(path, sizeof path) != nullptr ? path : "<error retrieving current directory>";
}

// ---- The installation, and the VM library ----------------------------------------------------

std::string findTarnHome()
{
   Dl_info library;
   if (dladdr(reinterpret_cast<void*>(&tarn1516e_exported_symbol_for_dlsym), &library) == 0) {
      fail("Failed to find path to tarn1516e library\n");
   }
   std::string const path = library.dli_fname;
   if (!path.empty()) {
      traceLine("Loaded tarn1516e library from '" + path + "'");
      std::string candidate = getDirName(path) + "../../";
      if (isTarnHome(candidate)) {
         return candidate;
      }
   }
   if (char const* const value = std::getenv("TARN1516E_HOME")) {
      std::string candidate = std::string(value) + "/";
      if (isTarnHome(candidate)) {
         return candidate;
      }
   }
   return std::string();
}

bool isTarnHome(std::string const& directory)
{
   return fileExists(directory + "versioninfo.txt");
}

bool fileExists(std::string const& path)
{
   return access(path.c_str(), F_OK) == 0;
}

std::string getDirName(std::string const& path)
{
   std::string::size_type const slash = path.rfind('/');
   return slash == std::string::npos ? path : path.substr(0, slash + 1);
}

namespace {

// A VM on the library path comes before the installation's own.
void* openJvm(std::string const& home)
{
   int const mode = RTLD_NOW | RTLD_GLOBAL;
   if (void* const handle = dlopen(vmLibraryName, mode)) {
      traceLine("JVM was available on library path");
      return handle;
   }
   if (home.empty()) {
      reportJvmLoadingError("LD_LIBRARY_PATH");
   }
   std::string const path = findJvm(home);
   if (path.empty()) {
      fail("Failed to find JVM in Tarn installation\n");
   }
   void* const handle = dlopen(path.c_str(), mode);
   if (handle == nullptr) {
      fail("Failed to dlopen JVM at '" + path + "', dlerror: " + dlerror() + "\n");
   }
   traceLine("Using bundled JVM in '" + path + "'");
   return handle;
}

template <class Function>
void findEntryPoint(void* handle, char const* name, Function& function)
{
   function = reinterpret_cast<Function>(dlsym(handle, name));
   if (function == nullptr) {
      char const* const error = dlerror();
      fail(std::string("Failed to find ") + name + ", dlerror: " + (error ? error : "") + "\n");
   }
}

} // namespace

void loadJvm(std::string const& home)
{
   void* const handle = openJvm(home);
   findEntryPoint(handle, "JNI_GetCreatedJavaVMs", getCreatedJavaVMs_FPtr);
   findEntryPoint(handle, "JNI_CreateJavaVM", createJavaVM_Fptr);
}

std::string findJvm(std::string const& home)
{
   std::string path = home + vmBelowHome;
   traceLine("Looking for JVM at '" + path + "'");
   if (!fileExists(path)) {
      return std::string();
   }
   traceLine("Found JVM at '" + path + "'");
   return path;
}

void reportJvmLoadingError(char const* variable)
{
   char const* const value = std::getenv(variable);
   std::wstring const name = string2wstring(variable);
   std::wstring const pattern = L"Failed to find JVM on " + name
         + L" and unable to locate Tarn installation\n" + name + L": %ls";
   std::wstring const text =
         wformat(pattern.c_str(), string2wstring(value ? value : "(unknown)").c_str());
   traceLine(wstring2string(text));
   fail(text);
}

// ---- The options of a new VM -----------------------------------------------------------------

namespace {

char* allocString(std::string const& text)
{
   char* const copy = new char[text.size() + 1];
   std::memcpy(copy, text.c_str(), text.size() + 1);
   return copy;
}

std::string classPathOption(std::string const& home)
{
   std::string option = "-Djava.class.path=";
   if (char const* const value = std::getenv("CLASSPATH")) {
      option += value;
   }
   std::string const jar = home + "lib/tarn1516e.jar";
   if (fileExists(jar)) {
      option += ":" + jar;
      traceLine("Tarn java libs found in '" + jar + "'");
   } else {
      traceLine("No Tarn java libs found in '" + jar + "'");
   }
   traceLine("Setting classpath to '" + option + "'");
   return option;
}

} // namespace

// An option that is not wanted stays as an empty text, so that the first five entries are always
// the same five.
void loadOptions(JavaVMOption* options, int& optionCount, int maxOptions, std::string const& home)
{
   auto const append = [&](std::string const& text) {
      options[optionCount++].optionString = allocString(text);
   };
   append(classPathOption(home));
   append("-DTarn.libraryName=rti1516");
   append(isSet("TARN_ENABLEBUNDLING") ? "-DenableBundling=true" : "");
   append(isSet("TARN_SINGLETHREAD") ? "-Dsinglethread=true" : "");
   append(isSet("TARN_VERBOSEJNI") ? "-verbose:jni" : "");
   for (int i = 1; i <= 19; ++i) {
      if (char const* const value = std::getenv(format("TARN1516_OPTION%d", i).c_str())) {
         append(value);
      }
   }
   std::ifstream file("tarn.vmoptions");
   std::string line;
   while (file.good() && optionCount < maxOptions) {
      std::getline(file, line);
      if (!line.empty() && line[0] != '#') {
         append(line);
      }
   }
   if (!hasOption(optionCount, options, "-Xss")) {
      options[optionCount].extraInfo = nullptr;
      append("-Xss1024k");
   }
}

bool hasOption(int& optionCount, JavaVMOption* options, char const* prefix)
{
   for (int i = 0; i < optionCount; ++i) {
      if (std::strncmp(options[i].optionString, prefix, std::strlen(prefix)) == 0) {
         return true;
      }
   }
   return false;
}

} // namespace tarn1516e
