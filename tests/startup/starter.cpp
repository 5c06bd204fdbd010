// A federate that does no more than start up, and tells how that went. Its arguments are steps,
// taken in order; what a step needs follows it.
#include <RTI/RTI1516.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <dlfcn.h>
#include <functional>
#include <jni.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

// As start-up narrows its own texts, which have no characters beyond 8 bits.
std::string narrow(std::wstring const& text)
{
   std::string result;
   for (wchar_t const character : text) {
      result += character < 0 || character > 0xFF ? '?' : static_cast<char>(character);
   }
   return result;
}

// The text ends with a mark, so that a line end in it is seen.
std::string create()
{
   try {
      std::auto_ptr<rti1516e::RTIambassador> const ambassador =
            rti1516e::RTIambassadorFactory().createRTIambassador();
      return "created\n";
   } catch (rti1516e::RTIinternalError const& e) {
      return "RTIinternalError: " + narrow(e.what()) + "|\n";
   }
}

void tell(std::string const& text)
{
   std::fwrite(text.data(), 1, text.size(), stdout);
   std::fflush(stdout);
}

void createOnTwoThreads()
{
   std::atomic<int> missing(2);
   std::string results[2];
   auto const createAtOnce = [&](std::string& result) {
      for (--missing; missing != 0;) {
      }
      result = create();
   };
   std::thread first(createAtOnce, std::ref(results[0]));
   std::thread second(createAtOnce, std::ref(results[1]));
   first.join();
   second.join();
   tell(results[0] + results[1]);
}

// Starts a VM before the library does.
void startVm(char const* library, std::vector<char*> const& texts)
{
   void* const handle = dlopen(library, RTLD_NOW | RTLD_GLOBAL);
   void* const entry = handle != nullptr ? dlsym(handle, "JNI_CreateJavaVM") : nullptr;
   if (entry == nullptr) {
      std::fprintf(stderr, "no VM in %s\n", library);
      std::exit(2);
   }
   std::vector<JavaVMOption> options;
   for (char* const text : texts) {
      options.push_back({text, nullptr});
   }
   JavaVMInitArgs arguments = {
         JNI_VERSION_1_8, static_cast<jint>(options.size()), options.data(), JNI_FALSE};
   JavaVM* vm = nullptr;
   void* env = nullptr;
   jint const result =
         reinterpret_cast<jint (*)(JavaVM**, void**, void*)>(entry)(&vm, &env, &arguments);
   tell("VM before: " + std::to_string(result) + "\n");
}

} // namespace

int main(int, char** argv)
{
   while (char const* const step = *++argv) {
      if (std::strcmp(step, "create") == 0) {
         tell(create());
      } else if (std::strcmp(step, "threads") == 0) {
         createOnTwoThreads();
      } else if (std::strcmp(step, "wide") == 0) {
         std::fputws(L"wide\n", stderr);
      } else if (std::strcmp(step, "names") == 0) {
         tell(narrow(rti1516e::rtiName() + L" " + rti1516e::rtiVersion()) + "\n");
      } else if (std::strcmp(step, "set") == 0) {
         char* const setting = *++argv; // NAME=value
         putenv(setting);
      } else if (std::strcmp(step, "unset") == 0) {
         unsetenv(*++argv);
      } else if (std::strcmp(step, "go") == 0) {
         if (chdir(*++argv) != 0) {
            std::perror(*argv);
         }
      } else if (std::strcmp(step, "vm") == 0) { // library, options, "then"
         char const* const library = *++argv;
         std::vector<char*> options;
         while (std::strcmp(*++argv, "then") != 0) {
            options.push_back(*argv);
         }
         startVm(library, options);
      } else {
         std::fprintf(stderr, "no such step: %s\n", step);
         return 2;
      }
   }
   if (std::getenv("VM_TELLS") != nullptr) {
      return 0;
   }
   // Not by way of a real VM's destructors: one that checks JNI calls goes on to watch over its
   // signal handlers, and warns when their record is destroyed before the process is.
   _exit(0);
}
