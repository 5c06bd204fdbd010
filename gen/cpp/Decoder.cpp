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

template <class Handle>
void readHandleSet(ByteWrapper& buffer, Handle (*makeHandle)(int), std::set<Handle>& handles)
{
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      handles.insert(makeHandle(buffer.getInt()));
   }
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
template <class Handle>
void readValueMap(
      ByteWrapper& buffer, Handle (*makeHandle)(int), std::map<Handle, VariableLengthData>& values)
{
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

FederateHandle decodeFederateHandle(ByteWrapper& buffer)
{
   return makeFederateHandle(buffer.getInt());
}

ObjectClassHandle decodeObjectClassHandle(ByteWrapper& buffer)
{
   return makeObjectClassHandle(buffer.getInt());
}

InteractionClassHandle decodeInteractionClassHandle(ByteWrapper& buffer)
{
   return makeInteractionClassHandle(buffer.getInt());
}

ObjectInstanceHandle decodeObjectInstanceHandle(ByteWrapper& buffer)
{
   return makeObjectInstanceHandle(buffer.getInt());
}

AttributeHandle decodeAttributeHandle(ByteWrapper& buffer)
{
   return makeAttributeHandle(buffer.getInt());
}

MessageRetractionHandle decodeMessageRetractionHandle(ByteWrapper& buffer)
{
   return makeMessageRetractionHandle(buffer);
}

RegionHandleSet decodeRegionHandleSet(ByteWrapper& buffer)
{
   RegionHandleSet regions;
   readHandleSet(buffer, makeRegionHandle, regions);
   return regions;
}

JavaFederateHandleSet::JavaFederateHandleSet(FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   readHandleSet(buffer, makeFederateHandle, _value);
}

JavaAttributeHandleSet::JavaAttributeHandleSet(FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   readHandleSet(buffer, makeAttributeHandle, _value);
}

JavaSetOfString::JavaSetOfString(FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      _value.insert(decodeString(buffer));
   }
}

JavaAttributeHandleValueMap::JavaAttributeHandleValueMap(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   readValueMap(buffer, makeAttributeHandle, _value);
}

JavaParameterHandleValueMap::JavaParameterHandleValueMap(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   readValueMap(buffer, makeParameterHandle, _value);
}

JavaFederateHandleSaveStatusPairArray::JavaFederateHandleSaveStatusPairArray(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      FederateHandle const federate = decodeFederateHandle(buffer);
      _value.push_back(FederateHandleSaveStatusPair(federate, decodeSaveStatus(buffer.getInt())));
   }
}

JavaFederateRestoreStatusArray::JavaFederateRestoreStatusArray(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      FederateHandle const before = decodeFederateHandle(buffer);
      FederateHandle const after = decodeFederateHandle(buffer);
      _value.push_back(FederateRestoreStatus(before, after, decodeRestoreStatus(buffer.getInt())));
   }
}

JavaFederationExecutionInformationSet::JavaFederationExecutionInformationSet(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      std::wstring const name = decodeString(buffer);
      _value.push_back(FederationExecutionInformation(name, decodeString(buffer)));
   }
}

// The record's hasSentRegions stays false, whatever the wire says: a federate looks at sentRegions.
JavaSupplementalReflectInfo::JavaSupplementalReflectInfo(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   _value.hasProducingFederate = buffer.getInt() != 0;
   bool const hasSentRegions = buffer.getInt() != 0;
   if (_value.hasProducingFederate) {
      _value.producingFederate = decodeFederateHandle(buffer);
   }
   if (hasSentRegions) {
      _value.sentRegions = decodeRegionHandleSet(buffer);
   }
}

JavaSupplementalReceiveInfo::JavaSupplementalReceiveInfo(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   _value.hasProducingFederate = buffer.getInt() != 0;
   _value.hasSentRegions = buffer.getInt() != 0;
   if (_value.hasProducingFederate) {
      _value.producingFederate = decodeFederateHandle(buffer);
   }
   if (_value.hasSentRegions) {
      _value.sentRegions = decodeRegionHandleSet(buffer);
   }
}

JavaSupplementalRemoveInfo::JavaSupplementalRemoveInfo(
      FederateAmbassadorHelper*, ByteWrapper& buffer)
{
   _value.hasProducingFederate = buffer.getInt() != 0;
   if (_value.hasProducingFederate) {
      _value.producingFederate = decodeFederateHandle(buffer);
   }
}

} // namespace tarn1516e
