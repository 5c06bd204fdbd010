// Times as the federation's factory reads them.
#include "gen/cpp/FederateAmbassadorHelper.h"

#include "gen/cpp/HandleTable.h"

#include <vector>

using namespace rti1516e;

namespace tarn1516e {

namespace {

std::vector<char> copyBytes(JNIEnv* env, jbyteArray array)
{
   jsize const length = env->GetArrayLength(array);
   std::vector<char> bytes(static_cast<std::size_t>(length));
   env->GetByteArrayRegion(array, 0, length, reinterpret_cast<jbyte*>(bytes.data()));
   return bytes;
}

} // namespace

std::unique_ptr<LogicalTime> FederateAmbassadorHelper::makeLogicalTime(ByteWrapper& buffer)
{
   if (!timeFactory) {
      return nullptr;
   }
   unsigned long const length = timeFactory->makeFinal()->encodedLength();
   void* const encoded = buffer.reserve(length);
   return std::unique_ptr<LogicalTime>(timeFactory->decodeLogicalTime(encoded, length).release());
}

std::unique_ptr<LogicalTime> FederateAmbassadorHelper::makeLogicalTime(
      JNIEnv* env, jbyteArray encoded)
{
   if (!timeFactory || encoded == nullptr) {
      return nullptr;
   }
   std::vector<char> bytes = copyBytes(env, encoded);
   return std::unique_ptr<LogicalTime>(
         timeFactory->decodeLogicalTime(bytes.data(), bytes.size()).release());
}

std::unique_ptr<LogicalTimeInterval> FederateAmbassadorHelper::makeLogicalTimeInterval(
      JNIEnv* env, jbyteArray encoded)
{
   if (!timeFactory || encoded == nullptr) {
      return nullptr;
   }
   std::vector<char> bytes = copyBytes(env, encoded);
   return std::unique_ptr<LogicalTimeInterval>(
         timeFactory->decodeLogicalTimeInterval(bytes.data(), bytes.size()).release());
}

} // namespace tarn1516e

tarn1516e::FederateAmbassadorHelper* decodeHelper(int handle)
{
   return static_cast<tarn1516e::FederateAmbassadorHelper*>(lookupPtr(handle));
}
