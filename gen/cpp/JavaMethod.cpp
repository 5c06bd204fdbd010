// How the identifiers of Java methods are found.
#include "gen/cpp/JavaMethod.h"

#include "jvm/Assert.h"
#include "jvm/StartTexts.h"
#include "jvm/Text.h"
#include "runtime/StandardError.h"

namespace tarn1516e {

jmethodID bind(JNIEnv* env, jclass type, char const* name, char const* signature)
{
   jmethodID const id = env->GetMethodID(type, name, signature);
   if (id == nullptr) {
      writeError(format(text::noMethod, name).c_str());
   }
   TARN_ASSERT(id != 0);
   return id;
}

} // namespace tarn1516e
