#include "bench/bridge/Partner.h"

#include "bench/bridge/Script.h"

#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>
#include <vector>

using namespace rti1516e;

namespace {

template <class Found>
Found required(Found found, char const* name)
{
   if (found == nullptr) {
      throw std::runtime_error(std::string("Java has no ") + name);
   }
   return found;
}

jclass findGlobalClass(char const* name)
{
   JNIEnv* const env = environment();
   return static_cast<jclass>(env->NewGlobalRef(required(env->FindClass(name), name)));
}

int toInteger(std::string const& bytes)
{
   int value = 0;
   for (std::size_t i = 0; i != 4; ++i) {
      value = value << 8 | static_cast<unsigned char>(bytes[i]);
   }
   return value;
}

} // namespace

JNIEnv* environment()
{
   typedef jint (*GetCreated)(JavaVM**, jsize, jsize*);
   GetCreated const getCreated =
         reinterpret_cast<GetCreated>(dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"));
   JavaVM* vm = nullptr;
   jsize count = 0;
   if (getCreated == nullptr || getCreated(&vm, 1, &count) != JNI_OK || count != 1) {
      throw std::runtime_error("no Java VM in this process");
   }
   void* env = nullptr;
   vm->AttachCurrentThread(&env, nullptr);
   return static_cast<JNIEnv*>(env);
}

JavaMethod findService(char const* name, char const* signature)
{
   JNIEnv* const env = environment();
   static jclass const type = findGlobalClass("skerry/tarn1516e/RTIambassadorC2007");
   static jobject const object = env->NewGlobalRef(env->NewObject(
         type, env->GetMethodID(type, "<init>", "([B)V"), keepArray(std::string(4, '\0'))));
   return {required(object, "ambassador"), required(env->GetMethodID(type, name, signature), name)};
}

jclass byHandClass()
{
   static jclass const type = findGlobalClass("skerry/tarn1516e/bench/ByHand");
   return type;
}

jbyteArray keepArray(std::string const& bytes)
{
   JNIEnv* const env = environment();
   jsize const size = static_cast<jsize>(bytes.size());
   jbyteArray const array = env->NewByteArray(size);
   env->SetByteArrayRegion(array, 0, size, reinterpret_cast<jbyte const*>(bytes.data()));
   jobject const kept = env->NewGlobalRef(array);
   env->DeleteLocalRef(array);
   return static_cast<jbyteArray>(kept);
}

Member::Member() : ambassador(makeAmbassador())
{
   script::answerAtOnce();
   script::record();
   ambassador->connect(federate, HLA_IMMEDIATE, L"");
   handle = toInteger(script::lastBody("connect_FA_CM_S"));
   script::answerAtOnce();
   // No name of a time implementation is answered, which is the floating-point one.
   ambassador->joinFederationExecution(L"ship", L"harbour", std::vector<std::wstring>());
}

Member& member()
{
   static Member* const shared = [] {
      setenv("CLASSPATH", BENCH_CLASSES, 1);
      setenv("TARN1516_OPTION1", "-Dtarn.standin.quiet", 1);
      return new Member; // stays with its VM
   }();
   return *shared;
}

std::auto_ptr<RTIambassador> makeAmbassador()
{
   return RTIambassadorFactory().createRTIambassador();
}

ObjectInstanceHandle makeObject(int value)
{
   script::answerInt("registerObjectInstance_OCH", value);
   return member().ambassador->registerObjectInstance(ObjectClassHandle());
}

AttributeHandleValueMap makeValues(int count, std::size_t size)
{
   std::string const value(size, 'v');
   AttributeHandleValueMap values;
   for (int i = 1; i <= count; ++i) {
      script::answerInt("getAttributeHandle_OCH_S", i);
      AttributeHandle const attribute =
            member().ambassador->getAttributeHandle(ObjectClassHandle(), L"");
      values[attribute].setData(value.data(), value.size());
   }
   return values;
}
