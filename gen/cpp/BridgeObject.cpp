// The life of the bridge object, and the results that need its time factory. The services are
// generated.
#include "gen/cpp/CallbackFrame.h"
#include "gen/cpp/Encoder.h"
#include "gen/cpp/JavaExceptions.h"
#include "gen/cpp/ServiceFrame.h"
#include "gen/cpp_generated/RTIambassadorC.h"
#include "jvm/FpuGuards.h"
#include "jvm/JVM.h"
#include "jvm/Text.h"

#include <cstdio>
#include <cstdlib>

using namespace rti1516e;

namespace tarn1516e {

namespace {

bool trace; // set by each construction

void traceLine(std::string const& text)
{
   if (trace) {
      std::fprintf(stderr, "TARN1516E_TRACE_LOAD: %s\n", text.c_str());
   }
}

[[noreturn]] void fail(std::wstring const& text)
{
   std::fprintf(stderr, "%ls", text.c_str());
   throw RTIinternalError(text);
}

// Throws what the Java constructor raised.
void throwConstructorFailure(JNIEnv* env)
{
   jthrowable const exception = env->ExceptionOccurred();
   if (exception == nullptr) {
      return;
   }
   env->ExceptionDescribe();
   env->ExceptionClear();
   std::wstring message;
   if (checkEx(env, exception, "java/lang/Throwable", message)) {
      throw RTIinternalError(message);
   }
   throw RTIinternalError(L"Cannot create RTIambassador object");
}

jobject newRtiObject(JNIEnv* env, jclass adapterClass)
{
   jmethodID const constructor = env->GetMethodID(adapterClass, "<init>", "([B)V");
   if (constructor == nullptr) {
      fail(L"Cannot locate constructor for Java class skerry.tarn1516e.RTIambassadorC2007");
   }
   std::vector<std::wstring> const arguments; // none so far
   CppWrapper<std::vector<std::wstring> const&> wrappedArguments(env, arguments);
   jbyteArray const body = encodeBody(env, wrappedArguments);
   jobject const object = env->NewObject(adapterClass, constructor, body);
   env->DeleteLocalRef(body);
   throwConstructorFailure(env);
   if (object == nullptr) {
      fail(L"Cannot create RTIambassador object. Constructor returned NULL\n");
   }
   return object;
}

} // namespace

RTIambassadorC::RTIambassadorC() : _rtiObject(nullptr)
{
   ProtectFPU protectFPU;
   trace = std::getenv("TARN1516E_TRACE_LOAD") != nullptr;
   JNIEnv* const env = JVM::instance();
   setCatchAll(std::getenv("TARN1516_DONTCATCHALL") == nullptr);

   traceLine("Locating core classes");
   if (env->FindClass("skerry/tarn1516e/RtiFactoryImpl") == nullptr) {
      traceLine("Failed to locate core classes");
      reportClassLoadingError(env, L"core");
   }
   traceLine("Locating adapter classes");
   jclass const adapterClass = env->FindClass("skerry/tarn1516e/RTIambassadorC2007");
   if (adapterClass == nullptr) {
      traceLine("Failed to locate adapter classes");
      reportClassLoadingError(env, L"adapter");
   }
   initRtiJmethods(env, adapterClass);
   registerNatives(env);

   jobject const object = newRtiObject(env, adapterClass);
   _rtiObject = env->NewGlobalRef(object);
   env->DeleteLocalRef(object);
}

RTIambassadorC::~RTIambassadorC()
{
   ProtectFPU protectFPU;
   MyEnv env;
   env->CallVoidMethod(_rtiObject, _idDisconnect);
   env->ExceptionClear();
   env->DeleteGlobalRef(_rtiObject);
}

void RTIambassadorC::reportClassLoadingError(JNIEnv* env, std::wstring const& which)
{
   if (env->ExceptionOccurred() != nullptr) {
      env->ExceptionDescribe();
      env->ExceptionClear();
   }
   char const* const classPath = std::getenv("CLASSPATH");
   std::wstring const pattern = std::wstring(L"Tarn failed to load %ls classes in ")
         + (JVM::isShared() ? L"existing" : L"new") + L" JVM.\nCLASSPATH: %ls";
   std::wstring const text = wformat(pattern.c_str(), which.c_str(),
         string2wstring(classPath != nullptr ? classPath : "(unknown)").c_str());
   traceLine(wstring2string(text));
   fail(text);
}

// The federation's time implementation is known once the federate has joined. What fails here is
// not undone: the federate has joined all the same.
void RTIambassadorC::adoptTimeFactory()
{
   _helper.timeFactory.reset(
         LogicalTimeFactoryFactory::makeLogicalTimeFactory(getTimeFactory()).release());
}

std::unique_ptr<LogicalTime> RTIambassadorC::returnLogicalTime(JNIEnv* env, jbyteArray encoded)
{
   std::unique_ptr<LogicalTime> time = _helper.makeLogicalTime(env, encoded);
   env->DeleteLocalRef(encoded);
   return time;
}

std::unique_ptr<LogicalTimeInterval> RTIambassadorC::returnLogicalTimeInterval(
      JNIEnv* env, jbyteArray encoded)
{
   std::unique_ptr<LogicalTimeInterval> interval = _helper.makeLogicalTimeInterval(env, encoded);
   env->DeleteLocalRef(encoded);
   return interval;
}

TimeQueryReturn RTIambassadorC::returnTimeQueryReturn(JNIEnv* env, jbyteArray encoded)
{
   if (encoded == nullptr) {
      return TimeQueryReturn(false, nullptr);
   }
   return TimeQueryReturn(true, returnLogicalTime(env, encoded));
}

} // namespace tarn1516e
