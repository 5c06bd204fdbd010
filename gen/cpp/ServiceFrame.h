// What every service does on its way to Java: its arguments go into one byte array.
#ifndef gen_ServiceFrame_h
#define gen_ServiceFrame_h

#include "gen/cpp/ByteWrapper.h"

#include <jni.h>

namespace tarn1516e {

// Makes the array that holds the wrapped arguments, one behind the other, with no header. Sizes are
// summed first and the array is filled in place, while it is pinned: no wrapper's encode may call
// the VM or throw. The caller releases the local reference.
template <class... Wrappers>
jbyteArray encodeBody(JNIEnv* env, Wrappers const&... wrappers)
{
   unsigned long size = 0;
   for (unsigned long const declared : {wrappers.getEncodedSize()...}) {
      size += declared;
   }
   jbyteArray const body = env->NewByteArray(static_cast<jsize>(size));
   void* const pinned = env->GetPrimitiveArrayCritical(body, nullptr);
   rti1516e::ByteWrapper buffer(static_cast<char*>(pinned));
   int const inOrder[] = {(wrappers.encode(buffer), 0)...};
   static_cast<void>(inOrder);
   env->ReleasePrimitiveArrayCritical(body, pinned, 0);
   return body;
}

} // namespace tarn1516e

#endif
