// Callback arguments on their way to the federate: one object per field, which reads itself from
// the array when it is made and is handed on as the value that it holds.
//
// The wire forms are those of Encoder.h; what only callbacks carry:
//
//    SPFR, SFR, RFR   an integer
//    FHSSPX           n, then n times federate handle, save status
//    FRSX             n, then n times handle before, handle after, restore status
//    FEIS             n, then n times name, name of the time implementation (S, S)
//    FASRI            two flags, then what they announce: producing federate (FH), sent regions
//                     (RHS); for a removal only the first flag and the federate
//
// A flag is true when it is not 0. A count of 0 or below is no element. Nothing is bounded by the
// array's length; nothing refers to the array afterwards. No decoder may call the VM.
#ifndef gen_Decoder_h
#define gen_Decoder_h

#include "api/HandleFriends.h"
#include "gen/cpp/ByteWrapper.h"
#include "gen/cpp/FederateAmbassadorHelper.h"
#include <RTI/Enums.h>
#include <RTI/Handle.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>

#include <set>
#include <string>
#include <vector>

namespace rti1516e {

// Takes the handle's encoded form at the cursor: id, n, n bytes.
MessageRetractionHandle makeMessageRetractionHandle(ByteWrapper& buffer);

} // namespace rti1516e

namespace tarn1516e {

// Codes of the enumerations. A code without a value fails an assertion.
rti1516e::SynchronizationPointFailureReason decodeSyncFailureReason(int code);
rti1516e::SaveFailureReason decodeSaveFailureReason(int code);
rti1516e::RestoreFailureReason decodeRestoreFailureReason(int code);
rti1516e::RestoreStatus decodeRestoreStatus(int code);
rti1516e::SaveStatus decodeSaveStatus(int code);
rti1516e::OrderType decodeOrderType(int code);
rti1516e::TransportationType decodeTransportationType(int code);

// One field each, at the cursor.
std::wstring decodeString(rti1516e::ByteWrapper& buffer);
rti1516e::VariableLengthData decodeTag(rti1516e::ByteWrapper& buffer);
rti1516e::FederateHandle decodeFederateHandle(rti1516e::ByteWrapper& buffer);
rti1516e::ObjectClassHandle decodeObjectClassHandle(rti1516e::ByteWrapper& buffer);
rti1516e::InteractionClassHandle decodeInteractionClassHandle(rti1516e::ByteWrapper& buffer);
rti1516e::ObjectInstanceHandle decodeObjectInstanceHandle(rti1516e::ByteWrapper& buffer);
rti1516e::AttributeHandle decodeAttributeHandle(rti1516e::ByteWrapper& buffer);
rti1516e::MessageRetractionHandle decodeMessageRetractionHandle(rti1516e::ByteWrapper& buffer);
rti1516e::RegionHandleSet decodeRegionHandleSet(rti1516e::ByteWrapper& buffer);

// What every decoder is, but for JavaLogicalTime.
template <class Value>
class JavaValue {
public:
   operator Value const&() const
   {
      return _value;
   }

protected:
   JavaValue() {}

   // What `read` gives is the member itself and no copy of it.
   template <class Read>
   explicit JavaValue(Read const& read) : _value(read())
   {
   }

   Value _value;

private:
   JavaValue(JavaValue const&) = delete;
   JavaValue& operator=(JavaValue const&) = delete;
};

// Class, value, and the expression that reads it from `buffer`.
#define TARN_FOR_EACH_SIMPLE_DECODER(X)                                                            \
   X(JavaString, std::wstring, decodeString(buffer))                                               \
   X(JavaByteArray, rti1516e::VariableLengthData, decodeTag(buffer))                               \
   X(JavaSynchronizationPointFailureReason, rti1516e::SynchronizationPointFailureReason,           \
         decodeSyncFailureReason(buffer.getInt()))                                                 \
   X(JavaSaveFailureReason, rti1516e::SaveFailureReason, decodeSaveFailureReason(buffer.getInt())) \
   X(JavaRestoreFailureReason, rti1516e::RestoreFailureReason,                                     \
         decodeRestoreFailureReason(buffer.getInt()))                                              \
   X(JavaOrderType, rti1516e::OrderType, decodeOrderType(buffer.getInt()))                         \
   X(JavaTransportationTypeHandle, rti1516e::TransportationType,                                   \
         decodeTransportationType(buffer.getInt()))                                                \
   X(JavaFederateHandle, rti1516e::FederateHandle, decodeFederateHandle(buffer))                   \
   X(JavaObjectClassHandle, rti1516e::ObjectClassHandle, decodeObjectClassHandle(buffer))          \
   X(JavaInteractionClassHandle, rti1516e::InteractionClassHandle,                                 \
         decodeInteractionClassHandle(buffer))                                                     \
   X(JavaObjectInstanceHandle, rti1516e::ObjectInstanceHandle, decodeObjectInstanceHandle(buffer)) \
   X(JavaAttributeHandle, rti1516e::AttributeHandle, decodeAttributeHandle(buffer))                \
   X(JavaMessageRetractionHandle, rti1516e::MessageRetractionHandle,                               \
         decodeMessageRetractionHandle(buffer))                                                    \
   X(JavaRegionHandleSet, rti1516e::RegionHandleSet, decodeRegionHandleSet(buffer))

#define TARN_SIMPLE_DECODER(Class, Value, read)                                                    \
   class Class : public JavaValue<Value> {                                                         \
   public:                                                                                         \
      Class(FederateAmbassadorHelper*, rti1516e::ByteWrapper& buffer)                              \
            : JavaValue<Value>([&buffer] { return read; })                                         \
      {                                                                                            \
      }                                                                                            \
   };

TARN_FOR_EACH_SIMPLE_DECODER(TARN_SIMPLE_DECODER)
#undef TARN_SIMPLE_DECODER
#undef TARN_FOR_EACH_SIMPLE_DECODER

// Class and value of the decoders that fill a container or a record; their constructors are in
// Decoder.cpp.
#define TARN_FOR_EACH_FILLING_DECODER(X)                                                           \
   X(JavaFederateHandleSet, rti1516e::FederateHandleSet)                                           \
   X(JavaAttributeHandleSet, rti1516e::AttributeHandleSet)                                         \
   X(JavaSetOfString, std::set<std::wstring>)                                                      \
   X(JavaAttributeHandleValueMap, rti1516e::AttributeHandleValueMap)                               \
   X(JavaParameterHandleValueMap, rti1516e::ParameterHandleValueMap)                               \
   X(JavaFederateHandleSaveStatusPairArray, rti1516e::FederateHandleSaveStatusPairVector)          \
   X(JavaFederateRestoreStatusArray, rti1516e::FederateRestoreStatusVector)                        \
   X(JavaFederationExecutionInformationSet, rti1516e::FederationExecutionInformationVector)        \
   X(JavaSupplementalReflectInfo, rti1516e::SupplementalReflectInfo)                               \
   X(JavaSupplementalReceiveInfo, rti1516e::SupplementalReceiveInfo)                               \
   X(JavaSupplementalRemoveInfo, rti1516e::SupplementalRemoveInfo)

#define TARN_FILLING_DECODER(Class, Value)                                                         \
   class Class : public JavaValue<Value> {                                                         \
   public:                                                                                         \
      Class(FederateAmbassadorHelper*, rti1516e::ByteWrapper& buffer);                             \
   };

TARN_FOR_EACH_FILLING_DECODER(TARN_FILLING_DECODER)
#undef TARN_FILLING_DECODER
#undef TARN_FOR_EACH_FILLING_DECODER

// Holds nothing, and has read nothing, while the helper has no factory.
class JavaLogicalTime {
public:
   JavaLogicalTime(FederateAmbassadorHelper* helper, rti1516e::ByteWrapper& buffer)
         : _value(helper->makeLogicalTime(buffer))
   {
   }

   operator rti1516e::LogicalTime const&() const
   {
      return *_value;
   }

private:
   std::unique_ptr<rti1516e::LogicalTime> _value;
};

} // namespace tarn1516e

#endif
