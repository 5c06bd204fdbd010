// Readers of the fields that callbacks carry.
#include "gen/cpp/Decoder.h"

#include "jvm/Assert.h"

#include <new>
#include <tuple>
#include <utility>

using namespace rti1516e;

namespace rti1516e {

MessageRetractionHandle makeMessageRetractionHandle(ByteWrapper& buffer)
{
   MessageRetractionHandle handle = MessageRetractionHandleFriend::makeHandle(buffer.getPtr());
   buffer.advance(handle.encodedLength());
   return handle;
}

} // namespace rti1516e

namespace tarn1516e {

namespace {

// Values may point into the array only if it stayed pinned while the federate runs.
bool const useCopies = true;

// The codes of these enumerations are their native values, 0 to the last.
template <class Enumeration>
bool isCode(int code, Enumeration last)
{
   return code >= 0 && code <= last;
}

// A value's bytes, where they are in the array.
struct Block {
   char* bytes;
   unsigned long size;
};

Block readBlock(ByteWrapper& buffer)
{
   unsigned long const size = static_cast<unsigned long>(buffer.getInt());
   return {buffer.reserve(size), size};
}

template <class Handle, Handle (*makeHandle)(int)>
std::set<Handle> readHandleSet(ByteWrapper& buffer)
{
   std::set<Handle> handles;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      handles.insert(makeHandle(buffer.getInt()));
   }
   return handles;
}

// Where a handle's value is to go; what the handle had is dropped. As a rule handles ascend, and
// the place is behind the others.
template <class Values>
typename Values::iterator makePlace(Values& values, typename Values::key_type const& handle)
{
   if (values.empty() || values.rbegin()->first < handle) {
      return values.end();
   }
   typename Values::iterator const place = values.lower_bound(handle);
   bool const isTaken = place != values.end() && place->first == handle;
   return isTaken ? values.erase(place) : place;
}

// The last of several values for one handle stays. Values are made where they stay, so that each is
// allocated once, and nothing half made is left behind when memory ends.
template <class Handle, Handle (*makeHandle)(int)>
std::map<Handle, VariableLengthData> readValueMap(ByteWrapper& buffer)
{
   std::map<Handle, VariableLengthData> values;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      Handle const handle = makeHandle(buffer.getInt());
      Block const block = readBlock(buffer);
      if (useCopies) {
         values.emplace_hint(makePlace(values, handle), std::piecewise_construct,
               std::forward_as_tuple(handle), std::forward_as_tuple(block.bytes, block.size));
      } else {
         values[handle].setDataPointer(block.bytes, block.size);
      }
   }
   return values;
}

} // namespace

SynchronizationPointFailureReason decodeSyncFailureReason(int code)
{
   if (isCode(code, SYNCHRONIZATION_SET_MEMBER_NOT_JOINED)) {
      return static_cast<SynchronizationPointFailureReason>(code);
   }
   TARN_ASSERT(false);
}

SaveFailureReason decodeSaveFailureReason(int code)
{
   if (isCode(code, SAVE_ABORTED)) {
      return static_cast<SaveFailureReason>(code);
   }
   TARN_ASSERT(false);
}

RestoreFailureReason decodeRestoreFailureReason(int code)
{
   if (isCode(code, RESTORE_ABORTED)) {
      return static_cast<RestoreFailureReason>(code);
   }
   TARN_ASSERT(false);
}

RestoreStatus decodeRestoreStatus(int code)
{
   if (isCode(code, FEDERATE_WAITING_FOR_FEDERATION_TO_RESTORE)) {
      return static_cast<RestoreStatus>(code);
   }
   TARN_ASSERT(false);
}

SaveStatus decodeSaveStatus(int code)
{
   if (isCode(code, FEDERATE_WAITING_FOR_FEDERATION_TO_SAVE)) {
      return static_cast<SaveStatus>(code);
   }
   TARN_ASSERT(false);
}

OrderType decodeOrderType(int code)
{
   switch (code) {
   case 0:
      return RECEIVE;
   case 1:
      return TIMESTAMP;
   }
   TARN_ASSERT(false);
}

TransportationType decodeTransportationType(int code)
{
   switch (code) {
   case 1:
      return RELIABLE;
   case 2:
      return BEST_EFFORT;
   }
   TARN_ASSERT(false);
}

std::wstring decodeString(ByteWrapper& buffer)
{
   int const count = buffer.getInt();
   if (count < 0) { // more characters than any memory holds
      throw std::bad_alloc();
   }
   std::wstring string(static_cast<std::wstring::size_type>(count), L'\0');
   unsigned char const* bytes = reinterpret_cast<unsigned char const*>(buffer.getPtr());
   for (wchar_t& character : string) {
      character = static_cast<wchar_t>(bytes[0] << 8 | bytes[1]);
      bytes += 2;
   }
   buffer.advance(2 * string.size());
   return string;
}

VariableLengthData decodeTag(ByteWrapper& buffer)
{
   Block const block = readBlock(buffer);
   if (useCopies) {
      return VariableLengthData(block.bytes, block.size);
   }
   VariableLengthData tag;
   tag.setDataPointer(block.bytes, block.size);
   return tag;
}

MessageRetractionHandle decodeMessageRetractionHandle(ByteWrapper& buffer)
{
   return makeMessageRetractionHandle(buffer);
}

FederateHandleSet decodeFederateHandleSet(ByteWrapper& buffer)
{
   return readHandleSet<FederateHandle, makeFederateHandle>(buffer);
}

AttributeHandleSet decodeAttributeHandleSet(ByteWrapper& buffer)
{
   return readHandleSet<AttributeHandle, makeAttributeHandle>(buffer);
}

RegionHandleSet decodeRegionHandleSet(ByteWrapper& buffer)
{
   return readHandleSet<RegionHandle, makeRegionHandle>(buffer);
}

std::set<std::wstring> decodeSetOfString(ByteWrapper& buffer)
{
   std::set<std::wstring> strings;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      strings.insert(decodeString(buffer));
   }
   return strings;
}

AttributeHandleValueMap decodeAttributeHandleValueMap(ByteWrapper& buffer)
{
   return readValueMap<AttributeHandle, makeAttributeHandle>(buffer);
}

ParameterHandleValueMap decodeParameterHandleValueMap(ByteWrapper& buffer)
{
   return readValueMap<ParameterHandle, makeParameterHandle>(buffer);
}

FederateHandleSaveStatusPairVector decodeSaveStatusPairs(ByteWrapper& buffer)
{
   FederateHandleSaveStatusPairVector statuses;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      FederateHandle const federate = decodeFederateHandle(buffer);
      statuses.push_back(FederateHandleSaveStatusPair(federate, decodeSaveStatus(buffer.getInt())));
   }
   return statuses;
}

FederateRestoreStatusVector decodeRestoreStatuses(ByteWrapper& buffer)
{
   FederateRestoreStatusVector statuses;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      FederateHandle const before = decodeFederateHandle(buffer);
      FederateHandle const after = decodeFederateHandle(buffer);
      statuses.push_back(
            FederateRestoreStatus(before, after, decodeRestoreStatus(buffer.getInt())));
   }
   return statuses;
}

FederationExecutionInformationVector decodeFederationExecutions(ByteWrapper& buffer)
{
   FederationExecutionInformationVector executions;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      std::wstring const name = decodeString(buffer);
      executions.push_back(FederationExecutionInformation(name, decodeString(buffer)));
   }
   return executions;
}

// The record's hasSentRegions stays false, whatever the wire says: a federate looks at sentRegions.
SupplementalReflectInfo decodeReflectInfo(ByteWrapper& buffer)
{
   SupplementalReflectInfo info;
   info.hasProducingFederate = buffer.getInt() != 0;
   bool const hasSentRegions = buffer.getInt() != 0;
   if (info.hasProducingFederate) {
      info.producingFederate = decodeFederateHandle(buffer);
   }
   if (hasSentRegions) {
      info.sentRegions = decodeRegionHandleSet(buffer);
   }
   return info;
}

SupplementalReceiveInfo decodeReceiveInfo(ByteWrapper& buffer)
{
   SupplementalReceiveInfo info;
   info.hasProducingFederate = buffer.getInt() != 0;
   info.hasSentRegions = buffer.getInt() != 0;
   if (info.hasProducingFederate) {
      info.producingFederate = decodeFederateHandle(buffer);
   }
   if (info.hasSentRegions) {
      info.sentRegions = decodeRegionHandleSet(buffer);
   }
   return info;
}

SupplementalRemoveInfo decodeRemoveInfo(ByteWrapper& buffer)
{
   SupplementalRemoveInfo info;
   info.hasProducingFederate = buffer.getInt() != 0;
   if (info.hasProducingFederate) {
      info.producingFederate = decodeFederateHandle(buffer);
   }
   return info;
}

} // namespace tarn1516e
