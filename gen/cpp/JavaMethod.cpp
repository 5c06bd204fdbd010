// How the identifiers of Java methods are found.
#include "gen/cpp/JavaMethod.h"

#include "jvm/Assert.h"
#include "jvm/StartTexts.h"

#include <cstdio>

namespace tarn1516e {

jmethodID bind(JNIEnv* env, jclass type, char const* name, char const* signature)
{
   jmethodID const id = env->GetMethodID(type, name, signature);
   if (id == nullptr) {
      std::fprintf(stderr, text::noMethod, name);
   }
   TARN_ASSERT(id != 0);
   return id;
}

} // namespace tarn1516e
