#include "tests/soak/Figures.h"

#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <jvmti.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <stdexcept>
#include <unistd.h>

namespace soak {

namespace {

JavaVM* machine()
{
   typedef jint (*GetCreated)(JavaVM**, jsize, jsize*);
   GetCreated const getCreated =
         reinterpret_cast<GetCreated>(dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"));
   JavaVM* vm = nullptr;
   jsize count = 0;
   if (getCreated == nullptr || getCreated(&vm, 1, &count) != JNI_OK || count != 1) {
      throw std::runtime_error("no Java VM in this process");
   }
   return vm;
}

void check(jvmtiError error)
{
   if (error != JVMTI_ERROR_NONE) {
      throw std::runtime_error("JVMTI error " + std::to_string(error));
   }
}

// The VM's tool interface, for as long as it is needed.
class Tools {
public:
   Tools()
   {
      if (machine()->GetEnv(reinterpret_cast<void**>(&_tools), JVMTI_VERSION_1_2) != JNI_OK) {
         throw std::runtime_error("no JVMTI in this VM");
      }
      jvmtiCapabilities wanted;
      std::memset(&wanted, 0, sizeof wanted);
      wanted.can_tag_objects = 1; // for the walk over the roots
      check(_tools->AddCapabilities(&wanted));
   }

   ~Tools()
   {
      _tools->DisposeEnvironment();
   }

   jvmtiEnv* operator->() const
   {
      return _tools;
   }

private:
   Tools(Tools const&) = delete;
   Tools& operator=(Tools const&) = delete;

   jvmtiEnv* _tools;
};

struct References {
   long local;
   long global;
};

// Visits the roots and goes no further. Local references below a Java method go with it; those that
// stay are a native thread's.
jint JNICALL countRoot(jvmtiHeapReferenceKind kind, jvmtiHeapReferenceInfo const* info, jlong,
      jlong, jlong, jlong*, jlong*, jint, void* user)
{
   References* const references = static_cast<References*>(user);
   references->local += kind == JVMTI_HEAP_REFERENCE_JNI_LOCAL && info->jni_local.method == nullptr;
   references->global += kind == JVMTI_HEAP_REFERENCE_JNI_GLOBAL;
   return 0;
}

References countReferences(Tools const& tools)
{
   jvmtiHeapCallbacks callbacks;
   std::memset(&callbacks, 0, sizeof callbacks);
   callbacks.heap_reference_callback = countRoot;
   References references{0, 0};
   check(tools->FollowReferences(0, nullptr, nullptr, &callbacks, &references));
   return references;
}

long countJavaThreads(Tools const& tools, JNIEnv* env)
{
   jint count = 0;
   jthread* threads = nullptr;
   check(tools->GetAllThreads(&count, &threads));
   for (jint i = 0; i < count; ++i) {
      env->DeleteLocalRef(threads[i]);
   }
   check(tools->Deallocate(reinterpret_cast<unsigned char*>(threads)));
   return count;
}

long usedHeap(JNIEnv* env)
{
   env->PushLocalFrame(8);
   jclass const type = env->FindClass("java/lang/Runtime");
   jobject const runtime = env->CallStaticObjectMethod(
         type, env->GetStaticMethodID(type, "getRuntime", "()Ljava/lang/Runtime;"));
   jlong const total = env->CallLongMethod(runtime, env->GetMethodID(type, "totalMemory", "()J"));
   jlong const free = env->CallLongMethod(runtime, env->GetMethodID(type, "freeMemory", "()J"));
   env->PopLocalFrame(nullptr);
   return static_cast<long>((total - free) / 1024);
}

// A line of /proc/self/status, 0 where there is none.
long status(std::string const& key)
{
   std::ifstream file("/proc/self/status");
   std::string word;
   long value = 0;
   while (file >> word) {
      if (word == key + ":") {
         file >> value;
         break;
      }
   }
   return value;
}

long allocated()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
   struct mallinfo2 const info = mallinfo2();
   return static_cast<long>((info.uordblks + info.hblkhd) / 1024);
#else
   return 0;
#endif
}

} // namespace

JNIEnv* environment()
{
   void* env = nullptr;
   machine()->AttachCurrentThread(&env, nullptr);
   return static_cast<JNIEnv*>(env);
}

Figures measure()
{
   JNIEnv* const env = environment();
   Tools const tools;
   check(tools->ForceGarbageCollection());
   check(tools->ForceGarbageCollection()); // what had to be finished first
   References const references = countReferences(tools);
   return {status("VmRSS"), allocated(), usedHeap(env), references.local, references.global,
         countJavaThreads(tools, env), status("Threads")};
}

void print(std::string const& title, Figures const& figures)
{
   std::printf("%-24s resident %7ld KB, malloc %6ld KB, Java heap %6ld KB, references %ld local "
               "%ld global, threads %ld Java %ld native\n",
         title.c_str(), figures.residentKilobytes, figures.allocatedKilobytes,
         figures.heapKilobytes, figures.localReferences, figures.globalReferences,
         figures.javaThreads, figures.nativeThreads);
   std::fflush(stdout);
}

} // namespace soak
