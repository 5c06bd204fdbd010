// Readers of the fields that callbacks carry.
#include "gen/cpp/Decoder.h"

#include "api/StandardFactories.h"
#include "api/ThreadEnd.h"
#include "api/VariableLengthDataImplementation.h"
#include "gen/cpp/MapWalk.h"
#include "jvm/Assert.h"
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Time.h>

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

void fill(VariableLengthData& value, Block block)
{
   VariableLengthDataImplementation& record = VariableLengthDataFriend::getImplementation(value);
   if (!useCopies) {
      value.setDataPointer(block.bytes, block.size);
   } else if (record.hasRoomFor(block.size)) {
      record.size = block.size;
      copyBytes(record.data, block.bytes, block.size);
   } else {
      value.setData(block.bytes, block.size);
   }
}

// The bytes that stay with the value until the next ones come.
std::size_t held(VariableLengthData& value)
{
   return VariableLengthDataFriend::getImplementation(value).room;
}

std::size_t refill(ByteWrapper& buffer, VariableLengthData& tag)
{
   fill(tag, readBlock(buffer));
   return held(tag);
}

// As a rule handles ascend, and the place is behind the others.
template <class Values>
typename Values::iterator add(Values& values, typename Values::key_type const& handle, Block block)
{
   std::size_t const before = values.size();
   typename Values::iterator const entry =
         values.emplace_hint(values.end(), std::piecewise_construct, std::forward_as_tuple(handle),
               std::forward_as_tuple(block.bytes, block.size));
   if (!useCopies || values.size() == before) { // the last of several values for one handle stays
      fill(entry->second, block);
   }
   return entry;
}

// The entries that are there are written over, in their order, as long as the handles ascend; from
// there on the map is made anew. A key may be replaced, though never assigned, since the entry lies
// on the heap; and while keys behind it are still the old ones nobody looks anything up.
template <class Handle, Handle (*makeHandle)(int)>
std::size_t refill(ByteWrapper& buffer, std::map<Handle, VariableLengthData>& values)
{
   typedef typename std::map<Handle, VariableLengthData>::iterator Place;
   std::size_t const node = 128; // bytes of an entry and of its value's record, about
   std::size_t all = 0;
   Place old = values.begin();
   Handle last;
   int const count = buffer.getInt();
   for (int i = 0; i < count; ++i) {
      Handle const handle = makeHandle(buffer.getInt());
      Block const block = readBlock(buffer);
      Place entry = old;
      if (old != values.end() && (i == 0 || last < handle)) {
         new (const_cast<Handle*>(&entry->first)) Handle(handle);
         fill(entry->second, block);
         step(old);
      } else {
         if (old != values.end()) {
            values.erase(old, values.end());
            old = values.end();
         }
         entry = add(values, handle, block);
      }
      last = handle;
      all += node + held(entry->second);
   }
   values.erase(old, values.end());
   return all;
}

std::size_t refill(ByteWrapper& buffer, AttributeHandleValueMap& values)
{
   return refill<AttributeHandle, makeAttributeHandle>(buffer, values);
}

std::size_t refill(ByteWrapper& buffer, ParameterHandleValueMap& values)
{
   return refill<ParameterHandle, makeParameterHandle>(buffer, values);
}

struct Spares {
   std::unique_ptr<AttributeHandleValueMap> attributes;
   std::unique_ptr<ParameterHandleValueMap> parameters;
   std::unique_ptr<VariableLengthData> tag;
   std::unique_ptr<LogicalTime> integerTime;
   std::unique_ptr<LogicalTime> floatTime;
};

thread_local Spares* kept;

// A callback may come even after this, and begins anew.
void freeAtEnd(void* ended)
{
   kept = nullptr;
   delete static_cast<Spares*>(ended);
}

// What the thread keeps; null if it can't be freed at the thread's end.
Spares* spares()
{
   if (kept == nullptr) {
      static ThreadEnd const threadEnd(freeAtEnd);
      std::unique_ptr<Spares> made(new Spares);
      kept = threadEnd.await(made.get()) ? made.release() : nullptr;
   }
   return kept;
}

template <class Value>
std::unique_ptr<Value>* spareOf(std::unique_ptr<Value> Spares::*member)
{
   Spares* const all = spares();
   return all != nullptr ? &(all->*member) : nullptr;
}

std::unique_ptr<AttributeHandleValueMap>* spareOf(AttributeHandleValueMap*)
{
   return spareOf(&Spares::attributes);
}

std::unique_ptr<ParameterHandleValueMap>* spareOf(ParameterHandleValueMap*)
{
   return spareOf(&Spares::parameters);
}

std::unique_ptr<VariableLengthData>* spareOf(VariableLengthData*)
{
   return spareOf(&Spares::tag);
}

template <class Value>
std::unique_ptr<Value> take(std::unique_ptr<Value>* spare)
{
   return spare != nullptr ? std::move(*spare) : nullptr;
}

std::size_t const mostKept = 65536; // bytes

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
   VariableLengthData tag;
   refill(buffer, tag);
   return tag;
}

template <class Value>
JavaSpare<Value>::JavaSpare(FederateAmbassadorHelper*, ByteWrapper& buffer)
      : _spare(spareOf(static_cast<Value*>(nullptr))),
        _value(take(_spare))
{
   if (_value == nullptr) {
      _value.reset(new Value);
   }
   _held = refill(buffer, *_value);
}

template <class Value>
JavaSpare<Value>::~JavaSpare()
{
   if (_spare != nullptr && _held <= mostKept) {
      *_spare = std::move(_value);
   }
}

template class JavaSpare<VariableLengthData>;
template class JavaSpare<AttributeHandleValueMap>;
template class JavaSpare<ParameterHandleValueMap>;

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

namespace {

void setTime(HLAinteger64Time& time, std::uint64_t bits)
{
   time.setTime(static_cast<long long>(bits));
}

void setTime(HLAfloat64Time& time, std::uint64_t bits)
{
   double number;
   std::memcpy(&number, &bits, sizeof number);
   time.setTime(number);
}

// A time of 8 bytes, in the thread's object or, while that is in use, in a new one.
template <class Time>
std::unique_ptr<LogicalTime> readTime(ByteWrapper& buffer, std::unique_ptr<LogicalTime>* spare)
{
   std::unique_ptr<LogicalTime> time = take(spare);
   if (time == nullptr) {
      time.reset(new Time);
   }
   setTime(static_cast<Time&>(*time), buffer.getLong());
   return time;
}

} // namespace

JavaLogicalTime::JavaLogicalTime(FederateAmbassadorHelper* helper, ByteWrapper& buffer)
      : _spare(nullptr)
{
   LogicalTimeFactory const* const factory = helper->timeFactory.get();
   if (factory != nullptr && isFloat64TimeFactory(*factory)) {
      _spare = spareOf(&Spares::floatTime);
      _value = readTime<HLAfloat64Time>(buffer, _spare);
   } else if (factory != nullptr && isInteger64TimeFactory(*factory)) {
      _spare = spareOf(&Spares::integerTime);
      _value = readTime<HLAinteger64Time>(buffer, _spare);
   } else {
      _value = helper->makeLogicalTime(buffer);
   }
}

JavaLogicalTime::~JavaLogicalTime()
{
   if (_spare != nullptr) {
      *_spare = std::move(_value);
   }
}

} // namespace tarn1516e
