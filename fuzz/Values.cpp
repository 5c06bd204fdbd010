// Handles and times from encoded forms of any value: what was decoded encodes to the same bytes.
//
// Input: 1 byte that chooses the class, then the encoded form. Forms shorter than the classes'
// contracts ask for are not tried.
#include "api/HandleFriends.h"

#include <cstdlib>
#include <cstring>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <string>

using namespace rti1516e;

namespace {

std::string bytesOf(VariableLengthData const& data)
{
   return std::string(static_cast<char const*>(data.data()), data.size());
}

void require(bool condition)
{
   if (!condition) {
      std::abort();
   }
}

template <class Handle>
void tryHandle(Handle (*make)(VariableLengthData const&), std::string const& bytes)
{
   if (bytes.size() < 4) {
      return;
   }
   Handle const handle = make(VariableLengthData(bytes.data(), bytes.size()));
   require(bytesOf(handle.encode()) == bytes.substr(0, 4));
   require(handle.isValid() == (bytes.compare(0, 4, std::string(4, '\0')) != 0));
   require(!handle.toString().empty());
   require(handle == make(handle.encode()));
}

// The number of the payload's bytes is part of the form; it is made to fit.
void tryRetractionHandle(std::string const& bytes)
{
   if (bytes.size() < 4 || bytes.size() > 255) {
      return;
   }
   std::string form = bytes.substr(0, 4) + std::string(4, '\0') + bytes.substr(4);
   form[7] = static_cast<char>(bytes.size() - 4);
   MessageRetractionHandle const handle =
         makeMessageRetractionHandle(VariableLengthData((form + "more").data(), form.size() + 4));
   require(bytesOf(handle.encode()) == form);
   require(handle.encodedLength() == form.size());
   MessageRetractionHandle const copy(handle);
   require(copy == handle && bytesOf(copy.encode()) == form);
   require(!handle.toString().empty());
}

template <class Value>
void tryValue(std::string const& bytes)
{
   if (bytes.size() < 8) {
      return;
   }
   Value value;
   value.decode(VariableLengthData(bytes.data(), bytes.size()));
   require(bytesOf(value.encode()) == bytes.substr(0, 8));
   std::string room = bytes;
   Value other;
   other.decode(&room[0], room.size());
   room.assign(8, 'x');
   require(other.encode(&room[0], room.size()) == 8 && room == bytes.substr(0, 8));
   require(!value.toString().empty());
   require(value < other || value > other || value == other || !(value == value));
}

template <class Factory>
void tryFactory(std::string const& bytes)
{
   if (bytes.size() < 8) {
      return;
   }
   VariableLengthData const data(bytes.data(), bytes.size());
   std::string room = bytes;
   Factory factory;
   std::string const form = bytes.substr(0, 8);
   require(bytesOf(factory.decodeLogicalTime(data)->encode()) == form);
   require(bytesOf(factory.decodeLogicalTime(&room[0], room.size())->encode()) == form);
   require(bytesOf(factory.decodeLogicalTimeInterval(data)->encode()) == form);
   require(bytesOf(factory.decodeLogicalTimeInterval(&room[0], room.size())->encode()) == form);
}

typedef void (*Trial)(std::string const& bytes);

#define TRY_HANDLE(A) [](std::string const& bytes) { tryHandle<A>(make##A, bytes); },

Trial const TRIALS[] = {RTI_FOR_EACH_HANDLE(TRY_HANDLE) tryRetractionHandle,
      tryValue<HLAinteger64Time>, tryValue<HLAinteger64Interval>, tryValue<HLAfloat64Time>,
      tryValue<HLAfloat64Interval>, tryFactory<HLAinteger64TimeFactory>,
      tryFactory<HLAfloat64TimeFactory>};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
   if (size > 0) {
      TRIALS[data[0] % (sizeof(TRIALS) / sizeof(TRIALS[0]))](std::string(data + 1, data + size));
   }
   return 0;
}
