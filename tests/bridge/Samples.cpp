#include "tests/bridge/Samples.h"

#include "tests/bridge/Federate.h"
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <limits>
#include <sstream>

using namespace rti1516e;

namespace net {

namespace {

VariableLengthData data(std::string const& bytes)
{
   return VariableLengthData(bytes.data(), bytes.size());
}

std::string allBytes()
{
   std::string bytes;
   for (int i = 0; i < 256; ++i) {
      bytes += static_cast<char>(i);
   }
   return bytes;
}

// Of the eight kinds that are a word.
template <class Handle>
Handle handle(std::int64_t word);

#define MAKE_HANDLE(H)                                                                             \
   template <>                                                                                     \
   H handle<H>(std::int64_t word)                                                                  \
   {                                                                                               \
      return ambassador().decode##H(data(integer(word).bytes));                                    \
   }

RTI_FOR_EACH_HANDLE(MAKE_HANDLE)
#undef MAKE_HANDLE

// ---- What services take. A value that comes from `make` is the code's first, and small.

template <class Handle>
Samples<Handle> handles(std::vector<std::int64_t> const& words)
{
   Samples<Handle> all;
   for (std::int64_t const word : words) {
      all.push_back(handle<Handle>(word));
   }
   return all;
}

template <class Handle>
Samples<Handle> make(Handle*)
{
   return handles<Handle>({1, 0x01020304, 0, 0x7FFFFFFF, -1, 0x80000000});
}

template <class Handle>
Samples<std::set<Handle>> make(std::set<Handle>*)
{
   Samples<std::set<Handle>> sets;
   for (std::vector<std::int64_t> const& words :
         {std::vector<std::int64_t>{7}, {}, {-1, 5, 0x7FFFFFFF, 0x80000000, 0}}) {
      Samples<Handle> const all = handles<Handle>(words);
      sets.emplace_back(all.begin(), all.end());
   }
   return sets;
}

// Values of every size up to 300, as many as asked for.
template <class Handle>
std::map<Handle, VariableLengthData> valueMap(int count)
{
   std::map<Handle, VariableLengthData> values;
   for (int word = 1; word <= count; ++word) {
      values[handle<Handle>(word)] = data(std::string(static_cast<std::size_t>(word % 300), 'v'));
   }
   return values;
}

// On both sides of the number of entries that a map's wrapper has room for.
template <class Handle>
Samples<std::map<Handle, VariableLengthData>> make(std::map<Handle, VariableLengthData>*)
{
   std::string const large(70000, '\x5A');
   return {{{handle<Handle>(3), data("abc")}, {handle<Handle>(0x80000000), data("12345678")}}, {},
         {{handle<Handle>(-1), data(allBytes())}, {handle<Handle>(4), data("")},
               {handle<Handle>(0x7FFFFFFF), data(large)}},
         valueMap<Handle>(1023), valueMap<Handle>(1024), valueMap<Handle>(1025),
         valueMap<Handle>(1300)};
}

Samples<MessageRetractionHandle> make(MessageRetractionHandle*)
{
   Samples<MessageRetractionHandle> all(1);
   for (Wire const& encoded : {integer(7) + block("xyz"), integer(-1) + block(""),
              integer(0x80000000) + block(allBytes())}) {
      all.push_back(ambassador().decodeMessageRetractionHandle(data(encoded.bytes)));
   }
   return all;
}

template <class Value, class Integer64, class Float64>
Samples<std::shared_ptr<Value>> times()
{
   return {std::make_shared<Integer64>(0x0102030405060708), std::make_shared<Integer64>(-1),
         std::make_shared<Float64>(1.0), std::make_shared<Float64>(-1.5)};
}

Samples<std::shared_ptr<LogicalTime>> make(std::shared_ptr<LogicalTime>*)
{
   return times<LogicalTime, HLAinteger64Time, HLAfloat64Time>();
}

Samples<std::shared_ptr<LogicalTimeInterval>> make(std::shared_ptr<LogicalTimeInterval>*)
{
   return times<LogicalTimeInterval, HLAinteger64Interval, HLAfloat64Interval>();
}

Samples<std::wstring> make(std::wstring*)
{
   return {L"ab", L"\x20AC\xE9\x141", L"", L"\xD83D\xDE00", std::wstring(L"a\0b", 3),
         std::wstring(5000, L'\x2603'), L"\x1F600"};
}

Samples<std::set<std::wstring>> make(std::set<std::wstring>*)
{
   return {{L"b", L"", L"a"}, {}, {L"\x20AC"}};
}

Samples<std::vector<std::wstring>> make(std::vector<std::wstring>*)
{
   return {{L"b", L"a", L"b"}, {}, {L""}, {L"\x20AC", L"\x1F600"}};
}

Samples<VariableLengthData> make(VariableLengthData*)
{
   return {data("tag"), data(""), data("8 bytes."), data(allBytes()),
         data(std::string(70000, '\x5A'))};
}

Samples<bool> make(bool*)
{
   return {true, false};
}

Samples<double> make(double*)
{
   return {0.5, 0.0, -1.5, 1e300, std::numeric_limits<double>::infinity()};
}

Samples<AttributeHandleSetRegionHandleSetPairVector> make(
      AttributeHandleSetRegionHandleSetPairVector*)
{
   AttributeHandleSet const attributes{handle<AttributeHandle>(1), handle<AttributeHandle>(-1)};
   RegionHandleSet const regions{handle<RegionHandle>(4), handle<RegionHandle>(0x80000000)};
   return {{{attributes, {handle<RegionHandle>(2)}}, {{}, regions}}, {}, {{}}};
}

Samples<RangeBounds> make(RangeBounds*)
{
   return {RangeBounds(1, 0x100000000), RangeBounds(0, 0), RangeBounds(0xFEDCBA9876543210, 5)};
}

// All enumerators, or numbers, from the first to the last.
template <class Enumeration>
Samples<Enumeration> enumerators(int first, int last)
{
   Samples<Enumeration> all;
   for (int value = first; value <= last; ++value) {
      all.push_back(static_cast<Enumeration>(value));
   }
   return all;
}

#define MAKE_ENUMERATORS(Enumeration, first, last)                                                 \
   Samples<Enumeration> make(Enumeration*)                                                         \
   {                                                                                               \
      return enumerators<Enumeration>(first, last);                                                \
   }

MAKE_ENUMERATORS(TransportationType, 1, 2)
MAKE_ENUMERATORS(OrderType, 1, 2)
MAKE_ENUMERATORS(ResignAction, 0, 5)
MAKE_ENUMERATORS(ServiceGroup, 0, 6)
MAKE_ENUMERATORS(CallbackModel, 0, 1)
#undef MAKE_ENUMERATORS

// ---- What callbacks bring

typedef std::vector<Wire> Wires;

template <class T>
Wires fields(Samples<T> const& values)
{
   Wires all;
   for (T const& value : values) {
      all.push_back(wire(value));
   }
   return all;
}

// Counts of nothing, and elements that come twice or from behind.
Wires handleSets(Samples<AttributeHandleSet> const& sets)
{
   Wires all = fields(sets);
   Wire const five = integer(5);
   all.insert(all.end(), {integer(-1), counted({five, five, integer(2)})});
   return all;
}

Wires valueMaps()
{
   Wires all = fields(AHVM::samples());
   Wires entries;
   for (int word = 1300; word > -1300; word -= 2) { // the first half descends, the second too
      entries.push_back(integer(word) + block("old"));
      entries.push_back(
            integer(-word) + block(std::string(static_cast<std::size_t>(word & 15), 'n')));
   }
   all.insert(all.end(),
         {integer(-7), counted(entries),
               counted({integer(6) + block("z"), integer(5) + block("first"),
                     integer(5) + block("second")})});
   return all;
}

// Two flags or, for a removal, one, of which every value but 0 is set.
Wires records(bool hasRegions)
{
   Wire const federate = integer(7);
   if (!hasRegions) {
      return {integer(1) + federate, integer(0), integer(0x100) + integer(-7)};
   }
   return {integer(1) + integer(1) + federate + counted({integer(4), integer(2)}),
         integer(0) + integer(0), integer(2) + integer(0) + federate,
         integer(0) + integer(-1) + counted({integer(-3), integer(9), integer(9)}),
         integer(0) + integer(0x100) + integer(0)};
}

Wires codes(int first, int last)
{
   return fields(enumerators<int>(first, last));
}

Wires statuses(int handlesEach, int last)
{
   Wires all;
   for (int status = 0; status <= last; ++status) {
      Wire const before = integer(status + 1);
      all.push_back((handlesEach == 2 ? before + integer(-status) : before) + integer(status));
   }
   return {counted({all[0], all.back(), all[1]}), counted(all), integer(0), integer(-4)};
}

Wires const& fieldSamples(std::string const& code)
{
   static Wires const handleWords = fields(OIH::samples());
   static Wires const sets = handleSets(AHS::samples());
   static Wires const maps = valueMaps();
   std::wstring const euro = L"\x20AC";
   static std::map<std::string, Wires> const all{
         {"S", fields(S::samples())},
         {"SX",
               {counted({wire(std::wstring(L"b")), wire(euro), wire(std::wstring(L"b"))}),
                     integer(0), integer(-1)}},
         {"BX", fields(BX::samples())},
         {"OCH", handleWords},
         {"ICH", handleWords},
         {"OIH", handleWords},
         {"AH", handleWords},
         {"FH", handleWords},
         {"AHS", sets},
         {"FHS", sets},
         {"AHVM", maps},
         {"PHVM", maps},
         {"LT", {longInteger(0x4024000000000000), longInteger(0), longInteger(0xBFF8000000000000)}},
         {"MRH",
               {integer(9) + block("pq"), integer(-1) + block(""), integer(0) + block("x"),
                     integer(0x80000000) + block(allBytes().substr(0, 127))}},
         {"OT", codes(0, 1)},
         {"TTH", codes(1, 2)},
         {"SPFR", codes(0, 1)},
         {"SFR", codes(0, 5)},
         {"RFR", codes(0, 4)},
         {"FHSSPX", statuses(1, 3)},
         {"FRSX", statuses(2, 5)},
         {"FEIS",
               {counted({wire(std::wstring(L"one")) + wire(euro), wire(euro) + wire(std::wstring()),
                      wire(std::wstring(L"one")) + wire(euro)}),
                     integer(0), integer(-9)}},
         {"FASRI-ref", records(true)},
         {"FASRI-rec", records(true)},
         {"FASRI-rem", records(false)},
   };
   return all.at(code);
}

} // namespace

std::vector<std::string> codesOf(std::string const& native)
{
   std::vector<std::string> codes;
   std::istringstream parts(native);
   std::string part;
   std::getline(parts, part, '_');
   bool const isSet = part.find("multiple") == 0;
   while (std::getline(parts, part, '_') && part != "Native") {
      codes.push_back(part == "FASRI" ? part + "-" + native.substr(0, 3)
                                      : part + (part == "S" && isSet ? "X" : ""));
   }
   return codes;
}

std::string fieldsOf(std::string const& native, int set)
{
   std::string fields;
   int position = 0;
   for (std::string const& code : codesOf(native)) {
      Wires const& samples = fieldSamples(code);
      fields += samples[static_cast<std::size_t>(set == 0 ? 0 : set + position++) % samples.size()]
                      .bytes;
   }
   return fields;
}

#define SAMPLES(CODE, TYPE)                                                                        \
   Samples<TYPE> const& CODE::samples()                                                            \
   {                                                                                               \
      static Samples<TYPE> const all = make(static_cast<TYPE*>(nullptr));                          \
      return all;                                                                                  \
   }

NET_FOR_EACH_CODE(SAMPLES)

} // namespace net
