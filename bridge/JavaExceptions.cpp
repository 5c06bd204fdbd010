// How an exception of one side is raised on the other; the two frames below know only what is
// declared with them.
#include "gen/cpp/JavaExceptions.h"

#include "jvm/JavaString.h"
#include "jvm/Text.h"

#include <algorithm>
#include <iostream>

namespace tarn1516e {

bool checkEx(JNIEnv* env, jobject exception, char const* className, std::wstring& message)
{
   jclass const type = env->FindClass(className);
   if (type == nullptr || !env->IsInstanceOf(exception, type)) {
      env->DeleteLocalRef(type);
      return false;
   }
   jmethodID const getMessage = env->GetMethodID(type, "getMessage", "()Ljava/lang/String;");
   jmethodID const toString = env->GetMethodID(type, "toString", "()Ljava/lang/String;");
   jobject text = env->CallObjectMethod(exception, getMessage);
   if (text == nullptr) {
      text = env->CallObjectMethod(exception, toString);
   }
   message = copyString(env, static_cast<jstring>(text));
   env->DeleteLocalRef(text);
   env->DeleteLocalRef(type);
   env->DeleteLocalRef(exception);
   return true;
}

void unhandledException(JNIEnv* env, jobject exception)
{
   std::cerr << "Unhandled exception" << std::endl;
   jclass const type = env->FindClass("java/lang/Exception");
   env->CallVoidMethod(exception, env->GetMethodID(type, "printStackTrace", "()V"));
   jobject const text = env->CallObjectMethod(
         exception, env->GetMethodID(type, "toString", "()Ljava/lang/String;"));
   std::wstring const message = copyString(env, static_cast<jstring>(text));
   env->DeleteLocalRef(text);
   env->DeleteLocalRef(type);
   env->DeleteLocalRef(exception);
   throw rti1516e::RTIinternalError(message);
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
