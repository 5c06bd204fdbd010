// How an exception of one side is raised on the other; the two frames below know only what is
// declared with them.
#include "gen/cpp/JavaExceptions.h"

#include "jvm/JavaString.h"
#include "jvm/Text.h"
#include "runtime/StandardError.h"

#include <algorithm>

namespace tarn1516e {

namespace {

// What a method of the exception without arguments answers, or null: what it raises is dropped, for
// nothing may be pending when the caller goes on.
jstring askText(JNIEnv* env, jobject exception, jmethodID method)
{
   jobject const text = env->CallObjectMethod(exception, method);
   env->ExceptionClear();
   return static_cast<jstring>(text);
}

// The text is released; without one the copy is empty.
std::wstring takeText(JNIEnv* env, jstring text)
{
   if (text == nullptr) {
      return std::wstring();
   }
   std::wstring copy = copyString(env, text);
   env->DeleteLocalRef(text);
   return copy;
}

} // namespace

bool checkEx(JNIEnv* env, jobject exception, char const* className, std::wstring& message)
{
   jclass const type = env->FindClass(className);
   if (type == nullptr || !env->IsInstanceOf(exception, type)) {
      env->DeleteLocalRef(type);
      return false;
   }
   jmethodID const getMessage = env->GetMethodID(type, "getMessage", "()Ljava/lang/String;");
   jmethodID const toString = env->GetMethodID(type, "toString", "()Ljava/lang/String;");
   jstring text = askText(env, exception, getMessage);
   if (text == nullptr) {
      text = askText(env, exception, toString);
   }
   message = takeText(env, text);
   env->DeleteLocalRef(type);
   env->DeleteLocalRef(exception);
   return true;
}

void unhandledException(JNIEnv* env, jobject exception)
{
   tarn1516e::writeError("Unhandled exception\n");
   jclass const type = env->FindClass("java/lang/Exception");
   env->CallVoidMethod(exception, env->GetMethodID(type, "printStackTrace", "()V"));
   env->ExceptionClear();
   std::wstring const message = takeText(
         env, askText(env, exception, env->GetMethodID(type, "toString", "()Ljava/lang/String;")));
   env->DeleteLocalRef(type);
   env->DeleteLocalRef(exception);
   throw rti1516e::RTIinternalError(message);
}

void describePending(JNIEnv* env)
{
   if (jthrowable const exception = env->ExceptionOccurred()) {
      env->ExceptionDescribe();
      env->ExceptionClear();
      env->DeleteLocalRef(exception);
   }
}

void throwJava(JNIEnv* env, char const* className, char const* message)
{
   std::string name = className;
   std::replace(name.begin(), name.end(), '.', '/');
   env->ThrowNew(env->FindClass(name.c_str()), message);
}

void throwJava(JNIEnv* env, char const* className, wchar_t const* message)
{
   throwJava(env, className, std::wstring(message));
}

void throwJava(JNIEnv* env, char const* className, std::wstring const& message)
{
   throwJava(env, className, wstring2string(message).c_str());
}

} // namespace tarn1516e
