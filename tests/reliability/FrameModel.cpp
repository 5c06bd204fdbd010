#include "tests/reliability/FrameModel.h"

#include "api/HandleFriends.h"
#include "api/VariableLengthDataImplementation.h"
#include "tests/contract/Rows.h"

#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>

using namespace rti1516e;
using namespace contract;

namespace reliability {

namespace {

// In front of copied bytes, in one allocation with them.
std::size_t const recordSize = sizeof(VariableLengthDataImplementation);

struct Ended {
   Ending ending;
   std::string detail;
};

[[noreturn]] void end(Ending ending, std::string const& detail = "")
{
   throw Ended{ending, detail};
}

// The frame's bytes, in the order in which the library reads them.
class Reader {
public:
   Reader(std::string const& bytes, Time kindOfTime) : time(kindOfTime), _bytes(bytes) {}

   std::string take(std::size_t size)
   {
      if (_bytes.size() - _position < size) {
         end(Ending::PAST_THE_END);
      }
      _position += size;
      return _bytes.substr(_position - size, size);
   }

   int word()
   {
      std::uint32_t value = 0;
      for (char const byte : take(4)) {
         value = value << 8 | static_cast<unsigned char>(byte);
      }
      return static_cast<int>(value);
   }

   // Of a string or a block: what does not fit into memory is noticed before its bytes are read.
   std::size_t size(std::size_t bytesPerElement, std::size_t surplus)
   {
      int const count = word();
      if (count < 0
            || static_cast<std::size_t>(count) * bytesPerElement + surplus > allocationLimit) {
         end(Ending::EXCEPTION);
      }
      return static_cast<std::size_t>(count);
   }

   std::wstring string()
   {
      std::wstring text;
      for (std::size_t left = size(sizeof(wchar_t), sizeof(wchar_t)); left != 0; --left) {
         std::string const unit = take(2);
         text += static_cast<wchar_t>(
               static_cast<unsigned char>(unit[0]) << 8 | static_cast<unsigned char>(unit[1]));
      }
      return text;
   }

   VariableLengthData block()
   {
      std::string const content = take(size(1, recordSize));
      return VariableLengthData(content.data(), content.size());
   }

   // A count of 0 or below is none.
   void each(std::function<void()> const& element)
   {
      for (int left = word(); left > 0; --left) {
         element();
      }
   }

   int code(int first, int last, char const* decoder)
   {
      int const value = word();
      if (value < first || value > last) {
         end(Ending::ASSERTION, decoder);
      }
      return value;
   }

   bool hasHelper = true;
   bool lacksTime = false;
   Time const time;

private:
   std::string const& _bytes;
   std::size_t _position = 0;
};

template <class Handle>
std::string handleSet(Reader& frame, Handle (*make)(int))
{
   std::set<Handle> handles;
   frame.each([&] { handles.insert(make(frame.word())); });
   return show(handles);
}

template <class Handle>
std::string valueMap(Reader& frame, Handle (*make)(int))
{
   std::map<Handle, VariableLengthData> values;
   frame.each([&] {
      Handle const key = make(frame.word());
      values[key] = frame.block();
   });
   return show(values);
}

std::string stringSet(Reader& frame)
{
   std::set<std::wstring> strings;
   frame.each([&] { strings.insert(frame.string()); });
   return show(strings);
}

std::string logicalTime(Reader& frame)
{
   if (!frame.hasHelper) {
      end(Ending::NULL_POINTER);
   }
   if (frame.time == Time::NONE) {
      frame.lacksTime = true;
      return "";
   }
   std::string const bytes = frame.take(8);
   return (frame.time == Time::INTEGER ? "HLAinteger64Time time " : "HLAfloat64Time time ")
         + hex(bytes.data(), bytes.size());
}

// Bytes 1 to 3 of the payload's size count as signed; what comes of that is the size of a copy, and
// the payload is taken out of the copy by the size as it stands.
std::string retraction(Reader& frame)
{
   std::string const id = frame.take(4);
   std::string const size = frame.take(4);
   signed char const* const bytes = reinterpret_cast<signed char const*>(size.data());
   long const payloadSize = static_cast<unsigned char>(bytes[0]) * 0x1000000L | bytes[1] * 0x10000L
         | bytes[2] * 0x100L | bytes[3];
   if (payloadSize < -8
         || payloadSize + 8 + static_cast<long>(recordSize) > static_cast<long>(allocationLimit)) {
      end(Ending::EXCEPTION);
   }
   if (payloadSize < 0) {
      end(Ending::SHORT_COPY);
   }
   std::string const all = id + size + frame.take(static_cast<std::size_t>(payloadSize));
   std::uint32_t number = 0;
   for (char const byte : id) {
      number = number << 8 | static_cast<unsigned char>(byte);
   }
   return "MessageRetractionHandle<" + std::to_string(number) + "> " + hex(all.data(), all.size());
}

std::string saveStatuses(Reader& frame)
{
   FederateHandleSaveStatusPairVector all;
   frame.each([&] {
      FederateHandle const federate = makeFederateHandle(frame.word());
      all.push_back({federate, static_cast<SaveStatus>(frame.code(0, 3, "decodeSaveStatus"))});
   });
   return show(all);
}

std::string restoreStatuses(Reader& frame)
{
   FederateRestoreStatusVector all;
   frame.each([&] {
      FederateHandle const before = makeFederateHandle(frame.word());
      FederateHandle const after = makeFederateHandle(frame.word());
      all.push_back(FederateRestoreStatus(
            before, after, static_cast<RestoreStatus>(frame.code(0, 5, "decodeRestoreStatus"))));
   });
   return show(all);
}

std::string federations(Reader& frame)
{
   FederationExecutionInformationVector all;
   frame.each([&] {
      std::wstring const name = frame.string();
      all.push_back(FederationExecutionInformation(name, frame.string()));
   });
   return show(all);
}

// Flags first, then what they announce. A reflection keeps the second flag to itself, a removal has
// none.
std::string supplemental(Reader& frame, std::string const& operation)
{
   bool const isRemoval = operation.compare(0, 6, "remove") == 0;
   bool const hasFederate = frame.word() != 0;
   bool const hasRegions = !isRemoval && frame.word() != 0;
   FederateHandle const federate =
         hasFederate ? makeFederateHandle(frame.word()) : FederateHandle();
   if (isRemoval) {
      return show(hasFederate) + " " + show(federate);
   }
   std::string const regions = hasRegions ? handleSet(frame, makeRegionHandle) : "{}";
   bool const tellsOfRegions = hasRegions && operation.compare(0, 7, "receive") == 0;
   return show(hasFederate) + show(tellsOfRegions) + " " + show(federate) + " " + regions;
}

struct Code {
   std::function<std::string(Reader&)> read; // shows the argument
   Wire sample;
};

template <class Handle>
Code handleCode(Handle (*make)(int))
{
   return {[make](Reader& frame) { return show(make(frame.word())); }, integer(77)};
}

Code enumeration(int first, int last, int shift, char const* decoder)
{
   return {
         [=](Reader& frame) { return show(frame.code(first, last, decoder) + shift); }, integer(1)};
}

std::map<std::string, Code> const& codes()
{
   static Wire const handles = counted({integer(3), integer(0x0102)});
   static Wire const values = counted({integer(5) + block("xy"), integer(6) + block("")});
   static std::map<std::string, Code> const all{
         {"S", {[](Reader& frame) { return show(frame.string()); }, text(L"a\x20AC")}},
         {"S{}", {stringSet, counted({text(L"b"), text(L"a")})}},
         {"BX", {[](Reader& frame) { return show(frame.block()); }, block("tag")}},
         {"OCH", handleCode(makeObjectClassHandle)},
         {"ICH", handleCode(makeInteractionClassHandle)},
         {"OIH", handleCode(makeObjectInstanceHandle)},
         {"AH", handleCode(makeAttributeHandle)},
         {"FH", handleCode(makeFederateHandle)},
         {"AHS", {[](Reader& frame) { return handleSet(frame, makeAttributeHandle); }, handles}},
         {"FHS", {[](Reader& frame) { return handleSet(frame, makeFederateHandle); }, handles}},
         {"AHVM", {[](Reader& frame) { return valueMap(frame, makeAttributeHandle); }, values}},
         {"PHVM", {[](Reader& frame) { return valueMap(frame, makeParameterHandle); }, values}},
         {"LT", {logicalTime, longInteger(0x4024000000000000)}},
         {"MRH", {retraction, integer(9) + block("pq")}},
         {"OT", enumeration(0, 1, 1, "decodeOrderType")},
         {"TTH", enumeration(1, 2, 0, "decodeTransportationType")},
         {"SPFR", enumeration(0, 1, 0, "decodeSyncFailureReason")},
         {"SFR", enumeration(0, 5, 0, "decodeSaveFailureReason")},
         {"RFR", enumeration(0, 4, 0, "decodeRestoreFailureReason")},
         {"FHSSPX", {saveStatuses, counted({integer(7) + integer(2), integer(8) + integer(0)})}},
         {"FRSX", {restoreStatuses, counted({integer(7) + integer(8) + integer(5)})}},
         {"FEIS", {federations, counted({text(L"one") + text(L"T")})}},
   };
   return all;
}

// The codes in a native's name. A set of strings is spelled like a string.
std::vector<std::string> codesOf(std::string const& operation)
{
   std::vector<std::string> found;
   std::istringstream parts(operation);
   std::string part;
   std::getline(parts, part, '_');
   while (std::getline(parts, part, '_')) {
      bool const isSet = part == "S" && operation.compare(0, 8, "multiple") == 0;
      found.push_back(isSet ? "S{}" : part);
   }
   return found;
}

void readFrame(std::string const& operation, Reader& frame, Texts& arguments)
{
   if (frame.word() != 0x63626160) {
      end(Ending::ASSERTION, "preMagic == PRE_MAGIC");
   }
   int const handle = frame.word();
   if (handle < 0 || handle >= 4096) {
      end(Ending::OUTSIDE_TABLE);
   }
   frame.hasHelper = handle == knownHandle;
   for (std::string const& code : codesOf(operation)) {
      arguments.push_back(
            code == "FASRI" ? supplemental(frame, operation) : codes().at(code).read(frame));
   }
   if (frame.word() != 0x59585756) {
      end(Ending::ASSERTION, "postMagic == POST_MAGIC");
   }
   if (!frame.hasHelper || frame.lacksTime) {
      end(Ending::NULL_POINTER);
   }
}

} // namespace

char const* name(Ending ending)
{
   static char const* const names[] = {"delivered", "assertion", "exception", "null pointer",
         "handle outside the table", "read past the end", "retraction's copy too short"};
   return names[static_cast<int>(ending)];
}

Prediction predict(std::string const& operation, std::string const& frame, Time time)
{
   Reader reader(frame, time);
   Texts arguments;
   try {
      readFrame(operation, reader, arguments);
   } catch (Ended const& ended) {
      return {ended.ending, ended.detail, Texts()};
   }
   return {Ending::DELIVERED, "", arguments};
}

std::string sampleFrame(std::string const& operation, int handle)
{
   Wire fields{};
   for (std::string const& code : codesOf(operation)) {
      if (code != "FASRI") {
         fields += codes().at(code).sample;
      } else if (operation.compare(0, 6, "remove") == 0) {
         fields += integer(1) + integer(7);
      } else {
         fields += integer(1) + integer(1) + integer(7) + counted({integer(4), integer(2)});
      }
   }
   return frame(handle, fields);
}

std::vector<std::string> const& operations()
{
   static std::vector<std::string> const names = [] {
      std::vector<std::string> all;
      for (CallbackRow const& row : callbackRows()) {
         all.push_back(row.javaName);
      }
      return all;
   }();
   return names;
}

} // namespace reliability
