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
// A flag is true when it is not 0. A count of 0 or below is no element; a string's or a block's is
// more than the memory there is. Nothing is bounded by the array's length; nothing refers to the
// array afterwards. No decoder may call the VM.
#ifndef gen_Decoder_h
#define gen_Decoder_h

#include "api/HandleFriends.h"
#include "gen/cpp/ByteWrapper.h"
#include "gen/cpp/FederateAmbassadorHelper.h"
#include <RTI/Enums.h>
#include <RTI/Handle.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>

#include <cstddef>
#include <memory>
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
rti1516e::MessageRetractionHandle decodeMessageRetractionHandle(rti1516e::ByteWrapper& buffer);
rti1516e::FederateHandleSet decodeFederateHandleSet(rti1516e::ByteWrapper& buffer);
rti1516e::AttributeHandleSet decodeAttributeHandleSet(rti1516e::ByteWrapper& buffer);
rti1516e::RegionHandleSet decodeRegionHandleSet(rti1516e::ByteWrapper& buffer);
std::set<std::wstring> decodeSetOfString(rti1516e::ByteWrapper& buffer);
rti1516e::FederateHandleSaveStatusPairVector decodeSaveStatusPairs(rti1516e::ByteWrapper& buffer);
rti1516e::FederateRestoreStatusVector decodeRestoreStatuses(rti1516e::ByteWrapper& buffer);
rti1516e::FederationExecutionInformationVector decodeFederationExecutions(
      rti1516e::ByteWrapper& buffer);
rti1516e::SupplementalReflectInfo decodeReflectInfo(rti1516e::ByteWrapper& buffer);
rti1516e::SupplementalReceiveInfo decodeReceiveInfo(rti1516e::ByteWrapper& buffer);
rti1516e::SupplementalRemoveInfo decodeRemoveInfo(rti1516e::ByteWrapper& buffer);

inline rti1516e::FederateHandle decodeFederateHandle(rti1516e::ByteWrapper& buffer)
{
   return rti1516e::makeFederateHandle(buffer.getInt());
}

inline rti1516e::ObjectClassHandle decodeObjectClassHandle(rti1516e::ByteWrapper& buffer)
{
   return rti1516e::makeObjectClassHandle(buffer.getInt());
}

inline rti1516e::InteractionClassHandle decodeInteractionClassHandle(rti1516e::ByteWrapper& buffer)
{
   return rti1516e::makeInteractionClassHandle(buffer.getInt());
}

inline rti1516e::ObjectInstanceHandle decodeObjectInstanceHandle(rti1516e::ByteWrapper& buffer)
{
   return rti1516e::makeObjectInstanceHandle(buffer.getInt());
}

inline rti1516e::AttributeHandle decodeAttributeHandle(rti1516e::ByteWrapper& buffer)
{
   return rti1516e::makeAttributeHandle(buffer.getInt());
}

// A field that needs nothing but its bytes.
template <class Value, Value (*decode)(rti1516e::ByteWrapper&)>
class JavaField {
public:
   JavaField(FederateAmbassadorHelper*, rti1516e::ByteWrapper& buffer) : _value(decode(buffer)) {}

   operator Value const&() const
   {
      return _value;
   }

private:
   JavaField(JavaField const&) = delete;
   JavaField& operator=(JavaField const&) = delete;

   Value _value;
};

// An enumeration.
template <class Value, Value (*decode)(int code)>
class JavaCode {
public:
   JavaCode(FederateAmbassadorHelper*, rti1516e::ByteWrapper& buffer)
         : _value(decode(buffer.getInt()))
   {
   }

   operator Value() const
   {
      return _value;
   }

private:
   JavaCode(JavaCode const&) = delete;
   JavaCode& operator=(JavaCode const&) = delete;

   Value _value;
};

// A field whose value a thread keeps from one callback to the next, if it is not large: most
// callbacks resemble the one before, whose memory does for them. While a callback has the thread's
// value, one within it makes its own.
template <class Value>
class JavaSpare {
public:
   JavaSpare(FederateAmbassadorHelper*, rti1516e::ByteWrapper& buffer);
   ~JavaSpare();

   operator Value const&() const
   {
      return *_value;
   }

private:
   JavaSpare(JavaSpare const&) = delete;
   JavaSpare& operator=(JavaSpare const&) = delete;

   std::unique_ptr<Value>* _spare; // the thread's; null where it keeps nothing any more
   std::unique_ptr<Value> _value;
   std::size_t _held; // bytes
};

typedef JavaCode<rti1516e::SynchronizationPointFailureReason, decodeSyncFailureReason>
      JavaSynchronizationPointFailureReason;
typedef JavaCode<rti1516e::SaveFailureReason, decodeSaveFailureReason> JavaSaveFailureReason;
typedef JavaCode<rti1516e::RestoreFailureReason, decodeRestoreFailureReason>
      JavaRestoreFailureReason;
typedef JavaCode<rti1516e::OrderType, decodeOrderType> JavaOrderType;
typedef JavaCode<rti1516e::TransportationType, decodeTransportationType>
      JavaTransportationTypeHandle;

typedef JavaField<rti1516e::FederateHandle, decodeFederateHandle> JavaFederateHandle;
typedef JavaField<rti1516e::ObjectClassHandle, decodeObjectClassHandle> JavaObjectClassHandle;
typedef JavaField<rti1516e::InteractionClassHandle, decodeInteractionClassHandle>
      JavaInteractionClassHandle;
typedef JavaField<rti1516e::ObjectInstanceHandle, decodeObjectInstanceHandle>
      JavaObjectInstanceHandle;
typedef JavaField<rti1516e::AttributeHandle, decodeAttributeHandle> JavaAttributeHandle;
typedef JavaField<rti1516e::MessageRetractionHandle, decodeMessageRetractionHandle>
      JavaMessageRetractionHandle;

typedef JavaField<std::wstring, decodeString> JavaString;
typedef JavaField<std::set<std::wstring>, decodeSetOfString> JavaSetOfString;
typedef JavaField<rti1516e::FederateHandleSet, decodeFederateHandleSet> JavaFederateHandleSet;
typedef JavaField<rti1516e::AttributeHandleSet, decodeAttributeHandleSet> JavaAttributeHandleSet;
typedef JavaField<rti1516e::RegionHandleSet, decodeRegionHandleSet> JavaRegionHandleSet;
typedef JavaSpare<rti1516e::VariableLengthData> JavaByteArray;
typedef JavaSpare<rti1516e::AttributeHandleValueMap> JavaAttributeHandleValueMap;
typedef JavaSpare<rti1516e::ParameterHandleValueMap> JavaParameterHandleValueMap;
typedef JavaField<rti1516e::FederateHandleSaveStatusPairVector, decodeSaveStatusPairs>
      JavaFederateHandleSaveStatusPairArray;
typedef JavaField<rti1516e::FederateRestoreStatusVector, decodeRestoreStatuses>
      JavaFederateRestoreStatusArray;
typedef JavaField<rti1516e::FederationExecutionInformationVector, decodeFederationExecutions>
      JavaFederationExecutionInformationSet;
typedef JavaField<rti1516e::SupplementalReflectInfo, decodeReflectInfo> JavaSupplementalReflectInfo;
typedef JavaField<rti1516e::SupplementalReceiveInfo, decodeReceiveInfo> JavaSupplementalReceiveInfo;
typedef JavaField<rti1516e::SupplementalRemoveInfo, decodeRemoveInfo> JavaSupplementalRemoveInfo;

// Holds nothing, and has read nothing, while the helper has no factory. Times of the standard
// factories themselves, of none derived from them, are kept by the thread as other spares are.
class JavaLogicalTime {
public:
   JavaLogicalTime(FederateAmbassadorHelper* helper, rti1516e::ByteWrapper& buffer);
   ~JavaLogicalTime();

   operator rti1516e::LogicalTime const&() const
   {
      return *_value;
   }

private:
   JavaLogicalTime(JavaLogicalTime const&) = delete;
   JavaLogicalTime& operator=(JavaLogicalTime const&) = delete;

   std::unique_ptr<rti1516e::LogicalTime> _value;
   std::unique_ptr<rti1516e::LogicalTime>* _spare; // the thread's; null for other times
};

} // namespace tarn1516e

#endif
