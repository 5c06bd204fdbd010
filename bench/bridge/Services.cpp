// Services through the public ambassador, each beside its floor.
#include "bench/bridge/Cases.h"
#include "bench/bridge/Floor.h"
#include <RTI/time/HLAfloat64Time.h>

#include <vector>

using namespace rti1516e;

namespace {

char const updateMethod[] = "updateAttributeValues_OIH_AHVM_BX";
char const timedUpdateMethod[] = "updateAttributeValues_OIH_AHVM_BX_LT";

// `bytes` are what Java gets at a call.
template <class Call>
void addSubject(std::string const& name, std::string const& bytes, Call call)
{
   benchmark::RegisterBenchmark((name + "/subject").c_str(), [=](benchmark::State& state) {
      RTIambassador& ambassador = *member().ambassador;
      for (auto _ : state) {
         call(ambassador);
      }
      countBytes(state, bytes);
   });
}

template <class Invoke>
void addFloor(std::string const& name, JavaMethod method, std::string const& bytes, Invoke invoke)
{
   benchmark::RegisterBenchmark((name + "/floor").c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         callByHand(env, method, bytes, invoke);
      }
      countBytes(state, bytes);
   });
}

template <class Call, class Invoke>
void compare(
      std::string const& name, char const* method, char const* signature, Call call, Invoke invoke)
{
   std::string const bytes = recordBody(method, [&] { call(*member().ambassador); });
   addSubject(name, bytes, call);
   addFloor(name, findService(method, signature), bytes, invoke);
}

void addUpdate(std::string const& name, int attributes, std::size_t size)
{
   AttributeHandleValueMap const values = makeValues(attributes, size);
   compare(name, updateMethod, "([B)V", Update(values), invokeVoid);
}

// ---- The floor, and besides by hand what the interface asks for -------------------------------

// The values come out of a map: one way through it, without a look at a value.
void addLeastUpdate(std::string const& name, int attributes, std::size_t size)
{
   AttributeHandleValueMap const values = makeValues(attributes, size);
   Update const update(values);
   std::string const bytes = recordBody(updateMethod, [&] { update(*member().ambassador); });
   JavaMethod const method = findService(updateMethod, "([B)V");
   benchmark::RegisterBenchmark((name + "/least").c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         for (auto const& entry : values) {
            benchmark::DoNotOptimize(entry.first.hash());
         }
         callByHand(env, method, bytes, invokeVoid);
      }
   });
}

void addTimedUpdate(std::string const& name, int attributes, std::size_t size)
{
   AttributeHandleValueMap const values = makeValues(attributes, size);
   ObjectInstanceHandle const object = makeObject(1);
   VariableLengthData const tag("tag!", 4);
   auto const update = [=](RTIambassador& ambassador) {
      static HLAfloat64Time const time(1.5);
      benchmark::DoNotOptimize(ambassador.updateAttributeValues(object, values, tag, time));
   };
   compare(name, timedUpdateMethod, "([B)[B", update, invokeObject);
}

// ---- By hand: what a user would write with nothing but the public operations --------------------

class Writer {
public:
   explicit Writer(void* bytes) : _next(static_cast<char*>(bytes)) {}

   void integer(unsigned long value)
   {
      for (int shift = 24; shift >= 0; shift -= 8) {
         *_next++ = static_cast<char>(value >> shift);
      }
   }

   template <class Handle>
   void handle(Handle const& handle)
   {
      _next += handle.encode(_next, 4);
   }

   void block(VariableLengthData const& data)
   {
      integer(data.size());
      std::memcpy(_next, data.data(), data.size());
      _next += data.size();
   }

private:
   char* _next;
};

void updateByHand(JNIEnv* env, JavaMethod const& method, ObjectInstanceHandle const& object,
      AttributeHandleValueMap const& values, VariableLengthData const& tag)
{
   std::size_t size = 4 + 4 + 4 + tag.size();
   for (auto const& entry : values) {
      size += 4 + 4 + entry.second.size();
   }
   jbyteArray const array = env->NewByteArray(static_cast<jsize>(size));
   void* const pinned = env->GetPrimitiveArrayCritical(array, nullptr);
   Writer writer(pinned);
   writer.handle(object);
   writer.integer(values.size());
   for (auto const& entry : values) {
      writer.handle(entry.first);
      writer.block(entry.second);
   }
   writer.block(tag);
   env->ReleasePrimitiveArrayCritical(array, pinned, 0);
   callWith(env, method, array, invokeVoid);
}

void addUpdateByHand(std::string const& name, int attributes, std::size_t size)
{
   AttributeHandleValueMap const values = makeValues(attributes, size);
   ObjectInstanceHandle const object = makeObject(1);
   VariableLengthData const tag("tag!", 4);
   JavaMethod const method = findService(updateMethod, "([B)V");
   benchmark::RegisterBenchmark((name + "/hand").c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         updateByHand(env, method, object, values, tag);
      }
   });
}

// ---- The way that bindings are usually written: an array for each value ------------------------

jbyteArray makeArray(JNIEnv* env, VariableLengthData const& data)
{
   jsize const size = static_cast<jsize>(data.size());
   jbyteArray const array = env->NewByteArray(size);
   env->SetByteArrayRegion(array, 0, size, static_cast<jbyte const*>(data.data()));
   return array;
}

struct UsualBinding {
   JNIEnv* env;
   jobject partner;
   jmethodID method;
   jclass byteArrayClass;

   UsualBinding() : env(environment())
   {
      jclass const type = byHandClass();
      partner = env->NewObject(type, env->GetMethodID(type, "<init>", "()V"));
      method = env->GetMethodID(type, "updateAttributeValues", "(I[I[[B[B)V");
      byteArrayClass = env->FindClass("[B");
   }

   ~UsualBinding()
   {
      env->DeleteLocalRef(partner);
      env->DeleteLocalRef(byteArrayClass);
   }

   void update(int object, std::map<int, VariableLengthData> const& values,
         VariableLengthData const& tag) const
   {
      jsize const count = static_cast<jsize>(values.size());
      std::vector<jint> handles;
      handles.reserve(values.size());
      jobjectArray const arrays = env->NewObjectArray(count, byteArrayClass, nullptr);
      for (auto const& entry : values) {
         jbyteArray const value = makeArray(env, entry.second);
         env->SetObjectArrayElement(arrays, static_cast<jsize>(handles.size()), value);
         env->DeleteLocalRef(value);
         handles.push_back(entry.first);
      }
      jintArray const attributes = env->NewIntArray(count);
      env->SetIntArrayRegion(attributes, 0, count, handles.data());
      jbyteArray const tagArray = makeArray(env, tag);
      env->CallVoidMethod(partner, method, object, attributes, arrays, tagArray);
      env->DeleteLocalRef(tagArray);
      env->DeleteLocalRef(attributes);
      env->DeleteLocalRef(arrays);
      if (env->ExceptionOccurred() != nullptr) {
         throw std::runtime_error("an exception in Java");
      }
   }
};

void addUsualUpdate(std::string const& name, int attributes, std::size_t size)
{
   benchmark::RegisterBenchmark((name + "/other").c_str(), [=](benchmark::State& state) {
      UsualBinding const binding;
      VariableLengthData const tag("tag!", 4);
      std::map<int, VariableLengthData> values;
      for (int i = 1; i <= attributes; ++i) {
         values[i] = VariableLengthData(std::string(size, 'v').data(), size);
      }
      for (auto _ : state) {
         binding.update(1, values, tag);
      }
   });
}

// ---- Look-ups and evoked callbacks ------------------------------------------------------------

void addSmallServices()
{
   std::wstring const name = L"Position";
   compare(
         "getAttributeHandle", "getAttributeHandle_OCH_S", "([B)I",
         [=](RTIambassador& ambassador) {
            benchmark::DoNotOptimize(ambassador.getAttributeHandle(ObjectClassHandle(), name));
         },
         invokeInt);
   compare(
         "evokeCallback", "evokeCallback_D", "([B)Z",
         [](RTIambassador& ambassador) { benchmark::DoNotOptimize(ambassador.evokeCallback(0.5)); },
         invokeBoolean);
}

// ---- Failures ---------------------------------------------------------------------------------

// An update that Java refuses with the exception of that name.
void addFailure(std::string const& name, std::string const& exception)
{
   std::string const javaClass = "hla/rti1516e/exceptions/" + exception;
   Update const update(makeValues(1, 8));
   std::string const bytes = recordBody(updateMethod, [&] { update(*member().ambassador); });
   JavaMethod const method = findService(updateMethod, "([B)V");

   benchmark::RegisterBenchmark((name + "/subject").c_str(), [=](benchmark::State& state) {
      script::throwAlways(updateMethod, javaClass);
      RTIambassador& ambassador = *member().ambassador;
      for (auto _ : state) {
         try {
            update(ambassador);
            state.SkipWithError("the update did not fail");
         } catch (Exception const& e) {
            benchmark::DoNotOptimize(&e);
         }
      }
      script::answerAtOnce();
   });
   benchmark::RegisterBenchmark((name + "/floor").c_str(), [=](benchmark::State& state) {
      script::throwAlways(updateMethod, javaClass);
      JNIEnv* const env = environment();
      for (auto _ : state) {
         jbyteArray const array = makeArray(env, bytes);
         invokeVoid(env, method, array);
         env->DeleteLocalRef(array);
         jthrowable const thrown = env->ExceptionOccurred();
         env->ExceptionClear();
         env->DeleteLocalRef(thrown);
      }
      script::answerAtOnce();
   });
}

// How each service gets its environment.
void addAttach()
{
   benchmark::RegisterBenchmark("AttachCurrentThread/subject", [](benchmark::State& state) {
      JavaVM* vm = nullptr;
      environment()->GetJavaVM(&vm);
      for (auto _ : state) {
         void* env = nullptr;
         vm->AttachCurrentThread(&env, nullptr);
         benchmark::DoNotOptimize(env);
      }
   });
}

void addCreate()
{
   benchmark::RegisterBenchmark("createRTIambassador/subject", [](benchmark::State& state) {
      for (auto _ : state) {
         benchmark::DoNotOptimize(makeAmbassador().get());
      }
   });
}

} // namespace

void addServices()
{
   addUpdate("update-1x8", 1, 8);
   addUpdate("update-10x64", 10, 64);
   addLeastUpdate("update-10x64", 10, 64);
   addUpdateByHand("update-10x64", 10, 64);
   addUsualUpdate("update-10x64", 10, 64);
   addUpdate("update-100x8", 100, 8);
   addUpdateByHand("update-100x8", 100, 8);
   addUpdate("update-1x64K", 1, 64 * 1024);
   addUpdate("update-1x1M", 1, 1024 * 1024);
   addTimedUpdate("timed-update-1x8", 1, 8);
   addTimedUpdate("timed-update-10x64", 10, 64);
   addSmallServices();
   addFailure("fails-on-first-rung", "AttributeNotOwned");
   addFailure("fails-on-last-rung", "RTIinternalError");
   addAttach();
   addCreate();
}
