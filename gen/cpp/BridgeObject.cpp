// The life of the bridge object, and the results that need its time factory. The services are
// generated.
#include "gen/cpp/CallbackFrame.h"
#include "gen/cpp/Encoder.h"
#include "gen/cpp/JavaExceptions.h"
#include "gen/cpp/ServiceFrame.h"
#include "gen/cpp_generated/RTIambassadorC.h"
#include "jvm/FpuGuards.h"
#include "jvm/Installation.h"
#include "jvm/JVM.h"
#include "jvm/Report.h"
#include "jvm/StartTexts.h"
#include "jvm/Text.h"

#include <cstdlib>

using namespace rti1516e;

namespace tarn1516e {

namespace {

Trace trace; // set by each construction

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

jobject newRtiObject(JNIEnv* env, jclass type)
{
   jmethodID const constructor = env->GetMethodID(type, "<init>", "([B)V");
   if (constructor == nullptr) {
      env->ExceptionClear();
      fail(text::noConstructor);
   }
   std::vector<std::wstring> const arguments; // none so far
   CppWrapper<std::vector<std::wstring> const&> wrappedArguments(env, arguments);
   jbyteArray const body = encodeBody(env, wrappedArguments);
   jobject const object = env->NewObject(type, constructor, body);
   env->DeleteLocalRef(body);
   throwConstructorFailure(env);
   if (object == nullptr) {
      fail(text::noObject);
   }
   return object;
}

// Releases a local reference, also when the federate's time factory throws.
class Reference {
public:
   Reference(JNIEnv* env, jobject object) : _env(env), _object(object) {}

   Reference(Reference const&) = delete;
   Reference& operator=(Reference const&) = delete;

   ~Reference()
   {
      _env->DeleteLocalRef(_object);
   }

private:
   JNIEnv* _env;
   jobject _object;
};

// Says why an answer has become no time and no interval.
[[noreturn]] void throwUnreadable(FederateAmbassadorHelper const& helper, jbyteArray encoded)
{
   if (helper.timeFactory == nullptr) {
      throw RTIinternalError(L"There is no time factory to decode the RTI's answer with");
   }
   if (encoded == nullptr) {
      throw RTIinternalError(L"The RTI answered null where a time or an interval was due");
   }
   throw RTIinternalError(L"The time factory made nothing of the RTI's answer");
}

} // namespace

RTIambassadorC::RTIambassadorC() : _rtiObject(nullptr)
{
   ProtectFPU protectFPU;
   trace.readEnvironment();
   JNIEnv* const env = JVM::instance();
   setCatchAll(std::getenv("TARN1516_DONTCATCHALL") == nullptr);

   trace("Locating core classes");
   if (env->FindClass(coreClass) == nullptr) {
      trace(text::coreNotLocated);
      reportClassLoadingError(env, L"core");
   }
   trace(text::locatingAdapter);
   jclass const adapter = env->FindClass(adapterClass);
   if (adapter == nullptr) {
      trace(text::adapterNotLocated);
      reportClassLoadingError(env, L"adapter");
   }
   initRtiJmethods(env, adapter);
   registerNatives(env);

   jobject const object = newRtiObject(env, adapter);
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
   describePending(env);
   char const* const path = std::getenv("CLASSPATH");
   std::string const text = format(text::noClasses, wstring2string(which).c_str(),
         JVM::isShared() ? "existing" : "new", path != nullptr ? path : "(unknown)");
   trace(text);
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
   Reference const reference(env, encoded);
   std::unique_ptr<LogicalTime> time = _helper.makeLogicalTime(env, encoded);
   if (time == nullptr) {
      throwUnreadable(_helper, encoded);
   }
   return time;
}

std::unique_ptr<LogicalTimeInterval> RTIambassadorC::returnLogicalTimeInterval(
      JNIEnv* env, jbyteArray encoded)
{
   Reference const reference(env, encoded);
   std::unique_ptr<LogicalTimeInterval> interval = _helper.makeLogicalTimeInterval(env, encoded);
   if (interval == nullptr) {
      throwUnreadable(_helper, encoded);
   }
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
