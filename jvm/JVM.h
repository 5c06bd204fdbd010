// The Java VM of the process: found, loaded, started or joined at first use, and never let go.
#ifndef jvm_JVM_h
#define jvm_JVM_h

#include <jni.h>
#include <string>

namespace tarn1516e {

class JVM {
public:
   // The calling thread's environment. The first call brings the VM up, under a lock. A failure is
   // an RTIinternalError, and the next call starts over, with the environment as it is then; a VM
   // library that was loaded stays and comes first.
   static JNIEnv* instance();

   // Whether the VM was in the process before this library.
   static bool isShared();

private:
   friend class MyEnv;

   static void start();
   static void create(std::string const& home);
   static void attach();

   static JavaVM* _jvm;
   static JNIEnv* _instance; // of the thread that brought the VM up; null before
   static bool _isShared;
};

// The calling thread's environment, for the length of a service. A thread is attached by its first
// service and stays so: to the VM an attached thread's request is a look-up.
class MyEnv {
public:
   MyEnv() : _env(nullptr)
   {
      JVM::_jvm->AttachCurrentThread(reinterpret_cast<void**>(&_env), nullptr);
   }

   JNIEnv* operator->() const
   {
      return _env;
   }

   operator JNIEnv*() const
   {
      return _env;
   }

private:
   JNIEnv* _env;
};

} // namespace tarn1516e

#endif
