// What a callback needs of its ambassador.
#ifndef gen_FederateAmbassadorHelper_h
#define gen_FederateAmbassadorHelper_h

#include "gen/cpp/ByteWrapper.h"
#include <RTI/FederateAmbassador.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>

#include <jni.h>
#include <memory>

namespace tarn1516e {

// A member of the bridge object, with its lifetime. connect writes the ambassador, a successful
// join the factory; callbacks on other threads read both without a lock.
class FederateAmbassadorHelper {
public:
   // Each gives an empty pointer while there is no factory, and for a null array.

   // Takes the time at the cursor. Its length is not on the wire: it is that of the factory's final
   // time. Without a factory the cursor stays.
   std::unique_ptr<rti1516e::LogicalTime> makeLogicalTime(rti1516e::ByteWrapper& buffer);

   std::unique_ptr<rti1516e::LogicalTime> makeLogicalTime(JNIEnv* env, jbyteArray encoded);
   std::unique_ptr<rti1516e::LogicalTimeInterval> makeLogicalTimeInterval(
         JNIEnv* env, jbyteArray encoded);

   rti1516e::FederateAmbassador* federateAmbassador = nullptr; // the federate's
   std::unique_ptr<rti1516e::LogicalTimeFactory> timeFactory;
   int fpuState = 0; // for EnsureFPU
};

} // namespace tarn1516e

// The helper behind a handle of the table; null for one that was never handed out.
RTI_EXPORT tarn1516e::FederateAmbassadorHelper* decodeHelper(int handle);

#endif
