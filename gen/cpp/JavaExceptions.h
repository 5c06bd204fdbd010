// Exceptions across the border, both ways: what Java raised becomes the rti1516e exception of the
// same name, what a federate's callback raised becomes a Java exception.
#ifndef gen_JavaExceptions_h
#define gen_JavaExceptions_h

#include <RTI/Exception.h>

#include <jni.h>
#include <string>

namespace tarn1516e {

// The Java class that stands for an exception class.
template <class E>
struct JavaClassName;

#define TARN_JAVA_CLASS_NAME(A)                                                                    \
   template <>                                                                                     \
   struct JavaClassName<rti1516e::A> {                                                             \
      static char const* text()                                                                    \
      {                                                                                            \
         return "hla/rti1516e/exceptions/" #A;                                                     \
      }                                                                                            \
   };

RTI_FOR_EACH_EXCEPTION(TARN_JAVA_CLASS_NAME)
#undef TARN_JAVA_CLASS_NAME

// Whether the exception is of the class or a subclass. If so, takes its getMessage text, or without
// one its toString text, or an empty one, releases the local reference to the exception and leaves
// nothing pending. A class that can't be found is no match, and what the VM says of it is pending.
bool checkEx(JNIEnv* env, jobject exception, char const* className, std::wstring& message);

// For an exception that no rung names: tells of it on the error streams, releases the reference and
// throws RTIinternalError with its toString text, or an empty one. Nothing is pending afterwards.
[[noreturn]] void unhandledException(JNIEnv* env, jobject exception);

// Lets Java describe what is pending, if anything is, and ends it.
void describePending(JNIEnv* env);

// Raises a Java exception in env. The class name is dotted or slashed. A wide message loses all
// but the low 8 bits of each character.
void throwJava(JNIEnv* env, char const* className, char const* message);
void throwJava(JNIEnv* env, char const* className, wchar_t const* message);
void throwJava(JNIEnv* env, char const* className, std::wstring const& message);

// The exceptions that a service tries, first to last; one of them may be a ladder itself.
template <class... Rungs>
struct Ladder {
};

template <class Rung>
struct Climb {
   static __attribute__((noinline)) void up(JNIEnv* env, jobject exception)
   {
      std::wstring message;
      if (checkEx(env, exception, JavaClassName<Rung>::text(), message)) {
         throw Rung(message);
      }
      env->ExceptionClear(); // there may be no class of that name
   }
};

template <class... Rungs>
struct Climb<Ladder<Rungs...>> {
   static void up(JNIEnv* env, jobject exception)
   {
      int const inOrder[] = {0, (Climb<Rungs>::up(env, exception), 0)...};
      static_cast<void>(inOrder);
      static_cast<void>(env);
      static_cast<void>(exception);
   }
};

template <class Rungs>
[[noreturn]] __attribute__((noinline, cold)) void translate(JNIEnv* env, jobject exception)
{
   env->ExceptionClear();
   Climb<Rungs>::up(env, exception);
   unhandledException(env, exception);
}

// Throws what the last Java call raised, if it raised something, as the ladder has it.
template <class Rungs>
void throwPending(JNIEnv* env)
{
   if (jthrowable const exception = env->ExceptionOccurred()) {
      translate<Rungs>(env, exception);
   }
}

} // namespace tarn1516e

#endif
