// What a service costs at least: the same bytes to the same Java method by plain JNI.
#ifndef bench_bridge_Floor_h
#define bench_bridge_Floor_h

#include "bench/bridge/Partner.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <stdexcept>

// A new array with the bytes, copied while it is pinned.
inline jbyteArray makeArray(JNIEnv* env, std::string const& bytes)
{
   jbyteArray const array = env->NewByteArray(static_cast<jsize>(bytes.size()));
   void* const pinned = env->GetPrimitiveArrayCritical(array, nullptr);
   std::memcpy(pinned, bytes.data(), bytes.size());
   env->ReleasePrimitiveArrayCritical(array, pinned, 0);
   return array;
}

// `invoke` calls the method with the array, which is released.
template <class Invoke>
void callWith(JNIEnv* env, JavaMethod const& method, jbyteArray array, Invoke const& invoke)
{
   invoke(env, method, array);
   env->DeleteLocalRef(array);
   if (env->ExceptionOccurred() != nullptr) {
      throw std::runtime_error("an exception in Java");
   }
}

template <class Invoke>
void callByHand(
      JNIEnv* env, JavaMethod const& method, std::string const& bytes, Invoke const& invoke)
{
   callWith(env, method, makeArray(env, bytes), invoke);
}

// The ways to invoke, by the method's result. Results are looked at, so that they are fetched.

inline void invokeVoid(JNIEnv* env, JavaMethod const& method, jbyteArray array)
{
   env->CallVoidMethod(method.object, method.id, array);
}

inline void invokeInt(JNIEnv* env, JavaMethod const& method, jbyteArray array)
{
   benchmark::DoNotOptimize(env->CallIntMethod(method.object, method.id, array));
}

inline void invokeBoolean(JNIEnv* env, JavaMethod const& method, jbyteArray array)
{
   benchmark::DoNotOptimize(env->CallBooleanMethod(method.object, method.id, array));
}

inline void invokeObject(JNIEnv* env, JavaMethod const& method, jbyteArray array)
{
   benchmark::DoNotOptimize(env->CallObjectMethod(method.object, method.id, array));
}

#endif
