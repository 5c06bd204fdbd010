// What every native does around its own decoders: it takes the frame apart that Java made, lets the
// array go, and only then calls the federate.
//
//    4 bytes   PRE_MAGIC
//    4 bytes   handle of the ambassador, as connect sent it
//              the callback's fields
//    4 bytes   POST_MAGIC
#ifndef gen_CallbackFrame_h
#define gen_CallbackFrame_h

#include "gen/cpp/ByteWrapper.h"
#include "gen/cpp/FederateAmbassadorHelper.h"
#include "gen/cpp/JavaExceptions.h"
#include "jvm/Assert.h"
#include "jvm/FpuGuards.h"

#include <exception>
#include <jni.h>
#include <string>

// Whether callbacks also catch exceptions that are of no known kind.
RTI_EXPORT void setCatchAll(bool catchAll);

// Binds the 60 natives to their Java class. What fails is told on the standard error stream.
RTI_EXPORT void registerNatives(JNIEnv* env);

namespace tarn1516e {

int const PRE_MAGIC = 0x63626160;
int const POST_MAGIC = 0x59585756;

extern int catchAll;
extern char const* const javaFederateInternalErrorClass;

// The array of one callback. From construction to close it is pinned and the VM must not be called;
// a failure in between leaves it so.
class CallbackFrame {
public:
   CallbackFrame(JNIEnv* env, jbyteArray array)
         : _env(env),
           _array(array),
           _pinned(env->GetPrimitiveArrayCritical(array, nullptr)),
           _buffer(static_cast<char*>(_pinned))
   {
   }

   // `native` is the place to name if Java and this library disagree on the frame.
   FederateAmbassadorHelper* open(Place native)
   {
      int const preMagic = _buffer.getInt();
      if (preMagic != PRE_MAGIC) {
         assertionFailed("preMagic == PRE_MAGIC", native);
      }
      return decodeHelper(_buffer.getInt());
   }

   void close(Place native)
   {
      int const postMagic = _buffer.getInt();
      if (postMagic != POST_MAGIC) {
         assertionFailed("postMagic == POST_MAGIC", native);
      }
      _env->ReleasePrimitiveArrayCritical(_array, _pinned, 0);
   }

   operator rti1516e::ByteWrapper&()
   {
      return _buffer;
   }

private:
   CallbackFrame(CallbackFrame const&) = delete;
   CallbackFrame& operator=(CallbackFrame const&) = delete;

   JNIEnv* _env;
   jbyteArray _array;
   void* _pinned;
   rti1516e::ByteWrapper _buffer;
};

// Calls the federate. What it throws of the kinds that have a text becomes a pending Java
// FederateInternalError with that text. `hasText` is set before the text is asked for: what fails
// from there on is not the federate's exception any more.
template <class Operation>
inline __attribute__((always_inline)) void callFederate(
      JNIEnv* env, FederateAmbassadorHelper* helper, Operation const& operation, bool& hasText)
{
   char const* const type = javaFederateInternalErrorClass;
   try {
      EnsureFPU ensureFPU(helper->fpuState);
      operation(*helper->federateAmbassador);
   } catch (rti1516e::Exception const& e) {
      hasText = true;
      throwJava(env, type, e.what());
   } catch (std::exception const& e) {
      hasText = true;
      throwJava(env, type, e.what());
   } catch (std::string const& e) {
      hasText = true;
      throwJava(env, type, e.c_str());
   }
}

// Anything without a text is caught only when catchAll is set; otherwise it must find no handler
// here, leaves the native and enters the VM's frames.
template <class Operation>
void deliver(JNIEnv* env, FederateAmbassadorHelper* helper, Operation const& operation)
{
   bool hasText = false;
   if (!catchAll) {
      callFederate(env, helper, operation, hasText);
      return;
   }
   try {
      callFederate(env, helper, operation, hasText);
   } catch (...) {
      if (hasText) {
         throw;
      }
      throwJava(env, javaFederateInternalErrorClass, "Unknown C++ exception");
   }
}

} // namespace tarn1516e

#endif
