// A program with a Java VM of its own, which it starts with its own options and class loader before
// the library comes. The first argument says what to try, the second is the VM's library, the third
// the jar.
#include "tests/soak/Figures.h"
#include <RTI/RTIambassador.h>
#include <RTI/RTIambassadorFactory.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace rti1516e;

namespace {

void require(bool condition, char const* what)
{
   if (!condition) {
      std::fprintf(stderr, "host: %s\n", what);
      std::_Exit(1);
   }
}

JNIEnv* startVm(char const* library, std::vector<std::string> const& texts)
{
   void* const handle = dlopen(library, RTLD_NOW | RTLD_GLOBAL);
   require(handle != nullptr, "no VM library");
   typedef jint (*Create)(JavaVM**, void**, void*);
   Create const create = reinterpret_cast<Create>(dlsym(handle, "JNI_CreateJavaVM"));
   std::vector<JavaVMOption> options;
   for (std::string const& text : texts) {
      options.push_back({const_cast<char*>(text.c_str()), nullptr});
   }
   JavaVMInitArgs arguments;
   arguments.version = JNI_VERSION_1_8;
   arguments.nOptions = static_cast<jint>(options.size());
   arguments.options = options.data();
   arguments.ignoreUnrecognized = JNI_FALSE;
   JavaVM* vm = nullptr;
   void* env = nullptr;
   require(create(&vm, &env, &arguments) == JNI_OK, "the VM does not start");
   return static_cast<JNIEnv*>(env);
}

std::unique_ptr<RTIambassador> newAmbassador()
{
   return std::unique_ptr<RTIambassador>(RTIambassadorFactory().createRTIambassador().release());
}

// A connected ambassador has a federation service refused for the right reason.
void use(RTIambassador& rti)
{
   try {
      rti.getObjectClassHandle(L"A");
      require(false, "an unconnected ambassador looked up a class");
   } catch (NotConnected const&) {
   } catch (FederateNotExecutionMember const&) {
   }
}

std::string const quiet = "-Dtarn.standin.quiet";

// ---- Trials

int visibleClasses(char const* library, std::string const& jar)
{
   JNIEnv* const env =
         startVm(library, {"-Djava.class.path=" + jar, quiet, "-Dhost.own=option", "-Xmx48m"});
   auto const rti = newAmbassador();
   use(*rti);
   std::thread([&rti] { use(*rti); }).join();
   jclass const system = env->FindClass("java/lang/System");
   jobject const value = env->CallStaticObjectMethod(system,
         env->GetStaticMethodID(system, "getProperty", "(Ljava/lang/String;)Ljava/lang/String;"),
         env->NewStringUTF("host.own"));
   require(value != nullptr, "the host's option is gone");
   jobject const bundling = env->CallStaticObjectMethod(system,
         env->GetStaticMethodID(system, "getProperty", "(Ljava/lang/String;)Ljava/lang/String;"),
         env->NewStringUTF("Tarn.libraryName"));
   require(bundling == nullptr, "the library's options came into the host's VM");
   return 0;
}

jobject loaderOf(JNIEnv* env, std::string const& jar)
{
   jclass const urlClass = env->FindClass("java/net/URL");
   jobject const url =
         env->NewObject(urlClass, env->GetMethodID(urlClass, "<init>", "(Ljava/lang/String;)V"),
               env->NewStringUTF(("file:" + jar).c_str()));
   jobjectArray const urls = env->NewObjectArray(1, urlClass, url);
   jclass const loader = env->FindClass("java/net/URLClassLoader");
   return env->NewObject(loader, env->GetMethodID(loader, "<init>", "([Ljava/net/URL;)V"), urls);
}

// The classes are in the VM, but not for the system's loader.
int invisibleClasses(char const* library, std::string const& jar)
{
   JNIEnv* const env = startVm(library, {quiet});
   require(loaderOf(env, jar) != nullptr, "no loader");
   for (int attempt = 0; attempt < 2; ++attempt) {
      try {
         newAmbassador();
         return 1;
      } catch (RTIinternalError const& e) {
         require(e.what()
                     == L"Tarn failed to load core classes in existing JVM.\nCLASSPATH: (unknown)",
               "another text");
      }
   }
   return 0;
}

void JNICALL createInside(JNIEnv*, jobject, jbyteArray)
{
   use(*newAmbassador());
   std::puts("created below the host's class");
   std::fflush(stdout);
}

// A thread inside a method of a class that the host's loader has loaded sees that loader's classes.
int ownLoader(char const* library, std::string const& jar)
{
   JNIEnv* const env = startVm(library, {quiet});
   jobject const loader = loaderOf(env, jar);
   jclass const loaderClass = env->GetObjectClass(loader);
   jclass const hosted = static_cast<jclass>(env->CallObjectMethod(loader,
         env->GetMethodID(loaderClass, "loadClass", "(Ljava/lang/String;)Ljava/lang/Class;"),
         env->NewStringUTF("skerry.tarn1516e.FederateAmbassadorC2007")));
   require(hosted != nullptr, "the jar has no such class");
   char name[] = "federationSaved_Native";
   char signature[] = "([B)V";
   JNINativeMethod const method{name, signature, reinterpret_cast<void*>(createInside)};
   require(env->RegisterNatives(hosted, &method, 1) == JNI_OK, "natives refused");
   jmethodID const constructor = env->GetMethodID(hosted, "<init>", "()V");
   jobject const object = env->NewObject(hosted, constructor);
   env->CallVoidMethod(object, env->GetMethodID(hosted, name, signature), nullptr);
   require(!env->ExceptionCheck(), "an exception in Java");
   return 0;
}

// Ends the VM. `detached`: the threads that used the library left the VM before they ended.
int endVm(char const* library, std::string const& jar, bool detached)
{
   startVm(library, {"-Djava.class.path=" + jar, quiet});
   JavaVM* vm = nullptr;
   soak::environment()->GetJavaVM(&vm);
   {
      auto const rti = newAmbassador();
      std::thread([&] {
         use(*rti);
         if (detached) {
            vm->DetachCurrentThread();
         }
      }).join();
   }
   if (!detached) { // for the test, which waits for this line
      std::puts("waiting");
      std::fflush(stdout);
   }
   require(vm->DestroyJavaVM() == JNI_OK, "the VM does not end");
   return 0;
}

} // namespace

int main(int count, char** arguments)
{
   require(count == 4, "trial, VM library, jar");
   std::string const trial = arguments[1];
   if (trial == "visible") {
      return visibleClasses(arguments[2], arguments[3]);
   }
   if (trial == "invisible") {
      return invisibleClasses(arguments[2], arguments[3]);
   }
   if (trial == "loader") {
      return ownLoader(arguments[2], arguments[3]);
   }
   return endVm(arguments[2], arguments[3], trial == "end");
}
