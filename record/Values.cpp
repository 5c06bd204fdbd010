// How each type of the interface is shown. Standard times and handles take a short way round the
// stream that their toString goes through.
#include "record/Values.h"

#include "api/HandleFriends.h"
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Time.h>

#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <typeinfo>

namespace tarn1516e {
namespace record {

using namespace rti1516e;

namespace {

// An entry of a list, at the longest: a name, or the size of a value with its bytes.
std::size_t const roomForEntry = 1024;

template <class Handle>
struct Traits;

#define TARN_HANDLE(Class, kindOfIt)                                                               \
   template <>                                                                                     \
   struct Traits<Class> {                                                                          \
      static Kind const kind = Kind::kindOfIt;                                                     \
      static void putClass(Text& text)                                                             \
      {                                                                                            \
         text.put(#Class);                                                                         \
      }                                                                                            \
   };

TARN_HANDLE(FederateHandle, federate)
TARN_HANDLE(ObjectClassHandle, objectClass)
TARN_HANDLE(InteractionClassHandle, interactionClass)
TARN_HANDLE(ObjectInstanceHandle, objectInstance)
TARN_HANDLE(AttributeHandle, attribute)
TARN_HANDLE(ParameterHandle, parameter)
TARN_HANDLE(DimensionHandle, dimension)
TARN_HANDLE(RegionHandle, region)
#undef TARN_HANDLE

template <class Handle>
void showHandle(Place const& to, Handle const& handle)
{
   int const number = handleValue(handle);
   to.text.put('"');
   if (Name const* const name = findName(to.ambassador, Traits<Handle>::kind, number)) {
      to.text.put(name->text, name->size);
   } else {
      Traits<Handle>::putClass(to.text);
   }
   to.text.put('<');
   to.text.number(static_cast<long long>(number));
   to.text.put(">\"");
}

// Elements with commas between them; what has no room is counted.
template <class Container, class ShowElement>
void showList(Place const& to, Container const& elements, ShowElement const& showElement)
{
   to.text.put('[');
   std::size_t shown = 0;
   for (auto const& element : elements) {
      if (!to.text.hasRoom(roomForEntry + to.shownBytes * 2)) {
         to.text.put(",\"and more: ");
         to.text.number(static_cast<long long>(elements.size() - shown));
         to.text.put('"');
         break;
      }
      if (shown++ > 0) {
         to.text.put(',');
      }
      showElement(element);
   }
   to.text.put(']');
}

template <class Container>
void showElements(Place const& to, Container const& elements)
{
   showList(
         to, elements, [&](typename Container::value_type const& element) { show(to, element); });
}

// By handle, the size of each value.
template <class Map>
void showValues(Place const& to, Map const& values)
{
   to.text.put('{');
   std::size_t shown = 0;
   for (auto const& entry : values) {
      if (shown > 0) {
         to.text.put(',');
      }
      if (!to.text.hasRoom(roomForEntry + to.shownBytes * 2)) {
         to.text.put("\"and more\":");
         to.text.number(static_cast<long long>(values.size() - shown));
         break;
      }
      ++shown;
      show(to, entry.first);
      to.text.put(':');
      show(to, entry.second);
   }
   to.text.put('}');
}

template <class Value, std::size_t Size>
void showName(Place const& to, char const* const (&names)[Size], Value value, int first)
{
   int const place = static_cast<int>(value) - first;
   if (place >= 0 && place < static_cast<int>(Size)) {
      to.text.put('"');
      to.text.put(names[place], std::strlen(names[place]));
      to.text.put('"');
   } else {
      to.text.number(static_cast<long long>(value));
   }
}

char const* const saveStatuses[] = {"NO_SAVE_IN_PROGRESS", "FEDERATE_INSTRUCTED_TO_SAVE",
      "FEDERATE_SAVING", "FEDERATE_WAITING_FOR_FEDERATION_TO_SAVE"};
char const* const restoreStatuses[] = {"NO_RESTORE_IN_PROGRESS", "FEDERATE_RESTORE_REQUEST_PENDING",
      "FEDERATE_WAITING_FOR_RESTORE_TO_BEGIN", "FEDERATE_PREPARED_TO_RESTORE", "FEDERATE_RESTORING",
      "FEDERATE_WAITING_FOR_FEDERATION_TO_RESTORE"};

// As the standard times' toString has it, without its stream.
template <std::size_t Size, class Number>
void showNumber(Place const& to, char const (&className)[Size], Number number)
{
   to.text.put('"');
   to.text.put(className);
   to.text.put('<');
   to.text.number(number);
   to.text.put(">\"");
}

// What a federate's own class says of itself.
template <class Say>
void showSaid(Place const& to, Say const& say)
{
   try {
      to.text.quoted(say());
   } catch (...) {
      to.text.put("null");
   }
}

template <class Value>
void showText(Place const& to, Value const& value)
{
   showSaid(to, [&] { return value.toString(); });
}

// In hexadecimal digits, four bytes together.
void showBytes(Place const& to, unsigned char const* bytes, std::size_t size)
{
   static char const hexDigits[] = "0123456789abcdef";
   for (std::size_t i = 0; i < size && i < to.shownBytes && to.text.hasRoom(8); ++i) {
      if (i % 4 == 0) {
         to.text.put(' ');
      }
      to.text.put(hexDigits[bytes[i] >> 4]);
      to.text.put(hexDigits[bytes[i] & 15]);
   }
   if (size > to.shownBytes) {
      to.text.put(" \xe2\x80\xa6");
   }
}

} // namespace

void show(Place const& to, bool value)
{
   if (value) {
      to.text.put("true");
   } else {
      to.text.put("false");
   }
}

void show(Place const& to, double value)
{
   to.text.number(value);
}

void show(Place const& to, unsigned long value)
{
   to.text.number(static_cast<long long>(value));
}

void show(Place const& to, std::wstring const& value)
{
   to.text.quoted(value);
}

void show(Place const& to, std::set<std::wstring> const& values)
{
   showElements(to, values);
}

void show(Place const& to, std::vector<std::wstring> const& values)
{
   showElements(to, values);
}

void show(Place const& to, VariableLengthData const& value)
{
   std::size_t const size = value.size();
   to.text.put('"');
   to.text.number(static_cast<long long>(size));
   to.text.put(" bytes");
   if (to.shownBytes > 0) {
      showBytes(to, static_cast<unsigned char const*>(value.data()), size);
   }
   to.text.put('"');
}

#define TARN_SHOW_HANDLE(Class)                                                                    \
   void show(Place const& to, Class const& handle)                                                 \
   {                                                                                               \
      showHandle(to, handle);                                                                      \
   }

TARN_SHOW_HANDLE(FederateHandle)
TARN_SHOW_HANDLE(ObjectClassHandle)
TARN_SHOW_HANDLE(InteractionClassHandle)
TARN_SHOW_HANDLE(ObjectInstanceHandle)
TARN_SHOW_HANDLE(AttributeHandle)
TARN_SHOW_HANDLE(ParameterHandle)
TARN_SHOW_HANDLE(DimensionHandle)
TARN_SHOW_HANDLE(RegionHandle)
#undef TARN_SHOW_HANDLE

void show(Place const& to, MessageRetractionHandle const& handle)
{
   showText(to, handle);
}

void show(Place const& to, AttributeHandleSet const& handles)
{
   showElements(to, handles);
}

void show(Place const& to, DimensionHandleSet const& handles)
{
   showElements(to, handles);
}

void show(Place const& to, RegionHandleSet const& handles)
{
   showElements(to, handles);
}

void show(Place const& to, FederateHandleSet const& handles)
{
   showElements(to, handles);
}

void show(Place const& to, AttributeHandleValueMap const& values)
{
   showValues(to, values);
}

void show(Place const& to, ParameterHandleValueMap const& values)
{
   showValues(to, values);
}

void show(Place const& to, AttributeHandleSetRegionHandleSetPairVector const& pairs)
{
   showList(to, pairs, [&](AttributeHandleSetRegionHandleSetPair const& pair) {
      to.text.put("{\"attributes\":");
      show(to, pair.first);
      to.text.put(",\"regions\":");
      show(to, pair.second);
      to.text.put('}');
   });
}

void show(Place const& to, RangeBounds const& bounds)
{
   to.text.put('"');
   to.text.number(static_cast<long long>(bounds.getLowerBound()));
   to.text.put(" to ");
   to.text.number(static_cast<long long>(bounds.getUpperBound()));
   to.text.put('"');
}

void show(Place const& to, LogicalTime const& time)
{
   if (typeid(time) == typeid(HLAinteger64Time)) {
      showNumber(to, "HLAinteger64Time", static_cast<HLAinteger64Time const&>(time).getTime());
   } else if (typeid(time) == typeid(HLAfloat64Time)) {
      showNumber(to, "HLAfloat64Time", static_cast<HLAfloat64Time const&>(time).getTime());
   } else {
      showText(to, time);
   }
}

void show(Place const& to, LogicalTimeInterval const& interval)
{
   showText(to, interval);
}

void show(Place const& to, OrderType value)
{
   static char const* const names[] = {"RECEIVE", "TIMESTAMP"};
   showName(to, names, value, RECEIVE);
}

void show(Place const& to, TransportationType value)
{
   static char const* const names[] = {"RELIABLE", "BEST_EFFORT"};
   showName(to, names, value, RELIABLE);
}

void show(Place const& to, ResignAction value)
{
   static char const* const names[] = {"UNCONDITIONALLY_DIVEST_ATTRIBUTES", "DELETE_OBJECTS",
         "CANCEL_PENDING_OWNERSHIP_ACQUISITIONS", "DELETE_OBJECTS_THEN_DIVEST",
         "CANCEL_THEN_DELETE_THEN_DIVEST", "NO_ACTION"};
   showName(to, names, value, 0);
}

void show(Place const& to, ServiceGroup value)
{
   static char const* const names[] = {"FEDERATION_MANAGEMENT", "DECLARATION_MANAGEMENT",
         "OBJECT_MANAGEMENT", "OWNERSHIP_MANAGEMENT", "TIME_MANAGEMENT",
         "DATA_DISTRIBUTION_MANAGEMENT", "SUPPORT_SERVICES"};
   showName(to, names, value, 0);
}

void show(Place const& to, CallbackModel value)
{
   static char const* const names[] = {"HLA_IMMEDIATE", "HLA_EVOKED"};
   showName(to, names, value, 0);
}

void show(Place const& to, SynchronizationPointFailureReason value)
{
   static char const* const names[] = {
         "SYNCHRONIZATION_POINT_LABEL_NOT_UNIQUE", "SYNCHRONIZATION_SET_MEMBER_NOT_JOINED"};
   showName(to, names, value, 0);
}

void show(Place const& to, SaveFailureReason value)
{
   static char const* const names[] = {"RTI_UNABLE_TO_SAVE",
         "FEDERATE_REPORTED_FAILURE_DURING_SAVE", "FEDERATE_RESIGNED_DURING_SAVE",
         "RTI_DETECTED_FAILURE_DURING_SAVE", "SAVE_TIME_CANNOT_BE_HONORED", "SAVE_ABORTED"};
   showName(to, names, value, 0);
}

void show(Place const& to, RestoreFailureReason value)
{
   static char const* const names[] = {"RTI_UNABLE_TO_RESTORE",
         "FEDERATE_REPORTED_FAILURE_DURING_RESTORE", "FEDERATE_RESIGNED_DURING_RESTORE",
         "RTI_DETECTED_FAILURE_DURING_RESTORE", "RESTORE_ABORTED"};
   showName(to, names, value, 0);
}

namespace {

template <class Info>
void showProducer(Place const& to, Info const& info)
{
   if (info.hasProducingFederate) {
      to.text.put("\"producing federate\":");
      show(to, info.producingFederate);
   }
}

template <class Info>
void showInfo(Place const& to, Info const& info)
{
   to.text.put('{');
   showProducer(to, info);
   if (info.hasSentRegions) {
      if (info.hasProducingFederate) {
         to.text.put(',');
      }
      to.text.put("\"sent regions\":");
      show(to, info.sentRegions);
   }
   to.text.put('}');
}

} // namespace

void show(Place const& to, SupplementalReflectInfo const& info)
{
   showInfo(to, info);
}

void show(Place const& to, SupplementalReceiveInfo const& info)
{
   showInfo(to, info);
}

void show(Place const& to, SupplementalRemoveInfo const& info)
{
   to.text.put('{');
   showProducer(to, info);
   to.text.put('}');
}

void show(Place const& to, FederateHandleSaveStatusPairVector const& statuses)
{
   showList(to, statuses, [&](FederateHandleSaveStatusPair const& pair) {
      to.text.put("{\"federate\":");
      show(to, pair.first);
      to.text.put(",\"status\":");
      showName(to, saveStatuses, pair.second, 0);
      to.text.put('}');
   });
}

void show(Place const& to, FederateRestoreStatusVector const& statuses)
{
   showList(to, statuses, [&](FederateRestoreStatus const& status) {
      to.text.put("{\"before\":");
      show(to, status.preRestoreHandle);
      to.text.put(",\"after\":");
      show(to, status.postRestoreHandle);
      to.text.put(",\"status\":");
      showName(to, restoreStatuses, status.status, 0);
      to.text.put('}');
   });
}

void show(Place const& to, FederationExecutionInformationVector const& executions)
{
   showList(to, executions, [&](FederationExecutionInformation const& execution) {
      to.text.put("{\"name\":");
      show(to, execution.federationExecutionName);
      to.text.put(",\"time\":");
      show(to, execution.logicalTimeImplementationName);
      to.text.put('}');
   });
}

void show(Place const& to, FederateAmbassador const& federate)
{
   showClass(to.text, typeid(federate));
}

void show(Place const& to, std::auto_ptr<LogicalTimeFactory> const& factory)
{
   if (factory.get() == nullptr) {
      to.text.put("null");
   } else {
      showSaid(to, [&] { return factory->getName(); });
   }
}

void showClass(Text& text, std::type_info const& type)
{
   int status = 0;
   std::unique_ptr<char, void (*)(void*)> const plain(
         abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
   std::string const name = plain != nullptr ? plain.get() : type.name();
   char const* shown = name.c_str();
   for (std::string const& space :
         {std::string("rti1516e::"), std::string("(anonymous namespace)::")}) {
      if (name.compare(0, space.size(), space) == 0) {
         shown += space.size();
      }
   }
   text.quoted(shown);
}

#define TARN_LEARN(Class)                                                                          \
   void learn(int ambassador, Class const& handle, std::wstring const& name)                       \
   {                                                                                               \
      learnName(ambassador, Traits<Class>::kind, handleValue(handle), name);                       \
   }

TARN_LEARN(FederateHandle)
TARN_LEARN(ObjectClassHandle)
TARN_LEARN(InteractionClassHandle)
TARN_LEARN(ObjectInstanceHandle)
TARN_LEARN(AttributeHandle)
TARN_LEARN(ParameterHandle)
TARN_LEARN(DimensionHandle)
#undef TARN_LEARN

} // namespace record
} // namespace tarn1516e
