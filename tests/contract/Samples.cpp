#include "tests/contract/Samples.h"

#include "api/HandleFriends.h"
#include "tests/contract/Federate.h"
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <limits>

using namespace rti1516e;

namespace contract {

namespace {

VariableLengthData data(std::string const& bytes)
{
   return VariableLengthData(bytes.data(), bytes.size());
}

} // namespace

#define MAKE_HANDLE(H)                                                                             \
   template <>                                                                                     \
   H handle<H>(long word)                                                                          \
   {                                                                                               \
      return word <= std::numeric_limits<int>::max() ? make##H(static_cast<int>(word))             \
                                                     : make##H(data(integer(word).bytes));         \
   }

RTI_FOR_EACH_HANDLE(MAKE_HANDLE)

namespace {

std::string allBytes()
{
   std::string bytes;
   for (int i = 0; i < 256; ++i) {
      bytes += static_cast<char>(i);
   }
   return bytes;
}

template <class T>
void append(Samples<T>& samples, Samples<T> const& more)
{
   samples.insert(samples.end(), more.begin(), more.end());
}

// Enumerators from the first on, whose codes are their values shifted.
template <class Enumeration>
Samples<Enumeration> enumerators(int first, int last, int shift = 0)
{
   Samples<Enumeration> samples;
   for (int value = first; value <= last; ++value) {
      samples.push_back({static_cast<Enumeration>(value), integer(value + shift)});
   }
   return samples;
}

Samples<std::wstring> stringSamples(Way way)
{
   std::wstring const large(5000, L'\x2603');
   Samples<std::wstring> samples;
   for (std::wstring const& string : {std::wstring(L"ab"), std::wstring(L"\x20AC\xE9\x141"),
              std::wstring(), std::wstring(L"\xD83D\xDE00"), std::wstring(L"a\0b", 3), large}) {
      samples.push_back({string, text(string)});
   }
   if (way == Way::OUT) { // no room for bits above the low 16
      samples.push_back({L"\x1F600", integer(1) + Wire{"\xF6" + std::string(1, '\0'), 2}});
   }
   return samples;
}

Samples<std::set<std::wstring>> stringSetSamples(Way way)
{
   Samples<std::set<std::wstring>> samples{
         {{L"b", L"", L"a"}, counted({text(L""), text(L"a"), text(L"b")})},
         {{}, integer(0)},
         {{L"\x20AC"}, counted({text(L"\x20AC")})},
   };
   if (way != Way::OUT) {
      samples.push_back({{L"a", L"b"}, counted({text(L"b"), text(L"a"), text(L"b")})});
   }
   return samples;
}

// Words in the order in which a set has them, which is that of unsigned numbers.
std::vector<std::vector<long>> wordSets(Way way)
{
   std::vector<long> many;
   for (long word = 1; word <= 300; ++word) {
      many.push_back(word * 7);
   }
   std::vector<std::vector<long>> sets{{}, {7}, {0, 5, 0x7FFFFFFF, -2147483648, -1}, many};
   if (way == Way::OUT) {
      sets.push_back({3, 0x80000000, 0xFFFFFFFF, -5});
   }
   return sets;
}

Wire words(std::vector<long> const& values)
{
   std::vector<Wire> elements;
   for (long const value : values) {
      elements.push_back(integer(value));
   }
   return counted(elements);
}

// Filled from behind.
template <class Handle>
std::set<Handle> handles(std::vector<long> const& values)
{
   std::set<Handle> set;
   for (auto word = values.rbegin(); word != values.rend(); ++word) {
      set.insert(handle<Handle>(*word));
   }
   return set;
}

template <class Handle>
Samples<Handle> handleSamples(Way way)
{
   Samples<Handle> samples;
   for (long const word : {1L, 0x01020304L, 0L, 0x7FFFFFFFL, -1L, -2147483648L}) {
      samples.push_back({handle<Handle>(word), integer(word)});
   }
   if (way == Way::OUT) {
      samples.push_back({handle<Handle>(0x80000000), integer(0x80000000)});
   }
   return samples;
}

template <class Handle>
Samples<std::set<Handle>> handleSetSamples(Way way)
{
   Samples<std::set<Handle>> samples;
   for (std::vector<long> const& set : wordSets(way)) {
      samples.push_back({handles<Handle>(set), words(set)});
   }
   if (way != Way::OUT) {
      samples.push_back({handles<Handle>({2, 5}), words({5, 5, 2})});
      samples.push_back({{}, integer(-1)});
   }
   return samples;
}

// 300 entries. On the way in they come from behind, each a second time at the end.
template <class Handle>
Sample<std::map<Handle, VariableLengthData>> largeValueMap(Way way)
{
   Sample<std::map<Handle, VariableLengthData>> sample;
   std::vector<Wire> entries;
   for (int word = 1; word <= 300; ++word) {
      std::string const value = "value " + std::to_string(word);
      sample.value[handle<Handle>(word)] = data(value);
      entries.push_back(integer(word) + block(value));
   }
   if (way != Way::OUT) {
      std::vector<Wire> const ascending = entries;
      entries.clear();
      for (int word = 300; word >= 1; --word) {
         entries.push_back(integer(word) + block("old"));
      }
      entries.insert(entries.end(), ascending.begin(), ascending.end());
   }
   sample.wire = counted(entries);
   return sample;
}

template <class Handle>
Samples<std::map<Handle, VariableLengthData>> valueMapSamples(Way way)
{
   Samples<std::map<Handle, VariableLengthData>> samples;
   std::string const large(70000, '\x5A');
   samples.push_back({{{handle<Handle>(3), data("abc")}}, counted({integer(3) + block("abc")})});
   samples.push_back({{}, integer(0)});
   samples.push_back({{{handle<Handle>(-1), data(allBytes())}, {handle<Handle>(4), data("")},
                            {handle<Handle>(0x7FFFFFFF), data(large)}},
         counted({integer(4) + block(""), integer(0x7FFFFFFF) + block(large),
               integer(-1) + block(allBytes())})});
   samples.push_back(largeValueMap<Handle>(way));
   if (way == Way::OUT) {
      samples.push_back({{{handle<Handle>(0x80000000), data("x")}, {handle<Handle>(-7), data("y")}},
            counted({integer(0x80000000) + block("x"), integer(-7) + block("y")})});
   } else {
      samples.push_back({{{handle<Handle>(5), data("second")}, {handle<Handle>(6), data("z")}},
            counted({integer(6) + block("z"), integer(5) + block("first"),
                  integer(5) + block("second")})});
   }
   return samples;
}

template <class Integer64, class Float64, class Native>
Samples<Native> timeSamples(Way way)
{
   Samples<Native> samples;
   if (way != Way::IN_FLOAT_TIME) {
      for (long long const value :
            {0x0102030405060708LL, 0LL, -1LL, std::numeric_limits<long long>::max()}) {
         samples.push_back({std::make_shared<Integer64>(value),
               longInteger(static_cast<std::uint64_t>(value))});
      }
   }
   if (way != Way::IN_INTEGER_TIME) {
      samples.push_back({std::make_shared<Float64>(1.0), longInteger(0x3FF0000000000000)});
      samples.push_back({std::make_shared<Float64>(-1.5), longInteger(0xBFF8000000000000)});
      samples.push_back({std::make_shared<Float64>(std::numeric_limits<double>::max()),
            longInteger(0x7FEFFFFFFFFFFFFF)});
   }
   return samples;
}

Samples<MessageRetractionHandle> retractionSamples(Way way)
{
   Samples<MessageRetractionHandle> samples;
   std::vector<Wire> wires{integer(7) + block("xyz"), integer(0) + block(""),
         integer(-1) + block(""), integer(0x80000000) + block(allBytes().substr(0, 127))};
   if (way == Way::OUT) { // too long for the way in, which takes the size's low bytes as signed
      wires.push_back(integer(8) + block(allBytes()));
   }
   for (Wire const& wire : wires) {
      samples.push_back({ambassador().decodeMessageRetractionHandle(data(wire.bytes)), wire});
   }
   return samples;
}

Samples<FederateRestoreStatusVector> restoreStatusSamples()
{
   FederateRestoreStatusVector all;
   std::vector<Wire> wires;
   for (int status = 0; status <= 5; ++status) {
      all.push_back({handle<FederateHandle>(status + 1), handle<FederateHandle>(-status),
            static_cast<RestoreStatus>(status)});
      wires.push_back(integer(status + 1) + integer(-status) + integer(status));
   }
   return {{all, counted(wires)}, {{}, integer(0)}};
}

// A reflection's record never says that it has regions.
template <class Info>
Samples<Info> infoSamples(Way, bool tellsOfRegions)
{
   FederateHandle const federate = handle<FederateHandle>(7);
   RegionHandleSet const regions = handles<RegionHandle>({9, -3});
   Samples<Info> samples{
         {Info(), integer(0) + integer(0)},
         {Info(federate), integer(1) + integer(0) + integer(7)},
         {Info(regions), integer(0) + integer(1) + words({-3, 9, 9})},
         {Info(federate, regions), integer(2) + integer(-1) + integer(7) + words({9, -3})},
         {Info(RegionHandleSet()), integer(0) + integer(0x100) + integer(0)},
   };
   for (Sample<Info>& sample : samples) {
      sample.value.hasSentRegions = sample.value.hasSentRegions && tellsOfRegions;
   }
   return samples;
}

} // namespace

#define SAMPLES(CODE, ...)                                                                         \
   Samples<CODE::Native> CODE::samples(Way way)                                                    \
   {                                                                                               \
      static_cast<void>(way);                                                                      \
      return __VA_ARGS__;                                                                          \
   }

SAMPLES(S, stringSamples(way))
SAMPLES(URL, stringSamples(way))
SAMPLES(SX, stringSetSamples(way))
SAMPLES(OCH, handleSamples<Native>(way))
SAMPLES(ICH, handleSamples<Native>(way))
SAMPLES(OIH, handleSamples<Native>(way))
SAMPLES(AH, handleSamples<Native>(way))
SAMPLES(PH, handleSamples<Native>(way))
SAMPLES(FH, handleSamples<Native>(way))
SAMPLES(DH, handleSamples<Native>(way))
SAMPLES(RH, handleSamples<Native>(way))
SAMPLES(AHS, handleSetSamples<Native::key_type>(way))
SAMPLES(DHS, handleSetSamples<Native::key_type>(way))
SAMPLES(RHS, handleSetSamples<Native::key_type>(way))
SAMPLES(FHS, handleSetSamples<Native::key_type>(way))
SAMPLES(AHVM, valueMapSamples<Native::key_type>(way))
SAMPLES(PHVM, valueMapSamples<Native::key_type>(way))
SAMPLES(LT, timeSamples<HLAinteger64Time, HLAfloat64Time, Native>(way))
SAMPLES(LTI, timeSamples<HLAinteger64Interval, HLAfloat64Interval, Native>(way))
SAMPLES(MRH, retractionSamples(way))
SAMPLES(TTH, enumerators<Native>(1, 2))
SAMPLES(OT, enumerators<Native>(1, 2, -1))
SAMPLES(RA, enumerators<Native>(0, 5))
SAMPLES(SG, enumerators<Native>(0, 6, 1))
SAMPLES(SPFR, enumerators<Native>(0, 1))
SAMPLES(SFR, enumerators<Native>(0, 5))
SAMPLES(RFR, enumerators<Native>(0, 4))
SAMPLES(ReflectInfo, infoSamples<Native>(way, false))
SAMPLES(ReceiveInfo, infoSamples<Native>(way, true))

SAMPLES(CM, {{HLA_EVOKED, integer(1)}, {HLA_IMMEDIATE, integer(2)}})

SAMPLES(Z, {{true, integer(1)}, {false, integer(0)}})

SAMPLES(D,
      {{0.5, longInteger(0x3FE0000000000000)}, {0.0, longInteger(0)},
            {-1.5, longInteger(0xBFF8000000000000)}, {1e300, longInteger(0x7E37E43C8800759C)},
            {std::numeric_limits<double>::infinity(), longInteger(0x7FF0000000000000)}})

SAMPLES(BX,
      {{data("tag"), block("tag")}, {data(""), block("")}, {data(allBytes()), block(allBytes())},
            {data(std::string(70000, '\x5A')), block(std::string(70000, '\x5A'))}})

SAMPLES(URLX,
      {{{L"b", L"a", L"b"}, counted({text(L"b"), text(L"a"), text(L"b")})}, {{}, integer(0)},
            {{L""}, counted({text(L"")})},
            {{L"\x20AC", L"\x1F600"}, counted({text(L"\x20AC"), text(L"\xF600")})}})

SAMPLES(ASRSPL,
      {{{{handles<AttributeHandle>({1, -1}), handles<RegionHandle>({2})},
              {handles<AttributeHandle>({}), handles<RegionHandle>({4, 0x80000000})}},
             counted({words({1, -1}) + words({2}), words({}) + words({4, 0x80000000})})},
            {{}, integer(0)}, {{{}}, counted({integer(0) + integer(0)})}})

SAMPLES(RB,
      {{RangeBounds(1, 0x100000000), longInteger(1) + longInteger(0x100000000)},
            {RangeBounds(0, 0), longInteger(0) + longInteger(0)},
            {RangeBounds(0xFEDCBA9876543210, 5), longInteger(0xFEDCBA9876543210) + longInteger(5)}})

SAMPLES(RemoveInfo,
      {{Native(), integer(0)}, {Native(handle<FederateHandle>(7)), integer(1) + integer(7)},
            {Native(handle<FederateHandle>(-7)), integer(2) + integer(-7)}})

SAMPLES(FHSSPX,
      {{{{handle<FederateHandle>(9), FEDERATE_SAVING},
              {handle<FederateHandle>(-2), NO_SAVE_IN_PROGRESS},
              {handle<FederateHandle>(9), FEDERATE_WAITING_FOR_FEDERATION_TO_SAVE},
              {handle<FederateHandle>(9), FEDERATE_INSTRUCTED_TO_SAVE}},
             counted({integer(9) + integer(2), integer(-2) + integer(0), integer(9) + integer(3),
                   integer(9) + integer(1)})},
            {{}, integer(0)}, {{}, integer(-4)}})

SAMPLES(FRSX, restoreStatusSamples())

SAMPLES(FEIS,
      {{{{L"one", L"HLAfloat64Time"}, {L"\x20AC", L""}, {L"one", L"HLAfloat64Time"}},
             counted({text(L"one") + text(L"HLAfloat64Time"), text(L"\x20AC") + text(L""),
                   text(L"one") + text(L"HLAfloat64Time")})},
            {{}, integer(0)}})

} // namespace contract
