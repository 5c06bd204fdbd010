// Arguments on their way to Java: the bytes of each wrapper and the size that it declares. Codes of
// the enumerations, outward and as results.
#include "gen/cpp/Encoder.h"
#include "tests/api/Bytes.h"
#include "tests/gen/Assertion.h"
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <gtest/gtest.h>

using namespace rti1516e;
using namespace tarn1516e;

namespace {

typedef std::vector<std::wstring> Strings;
typedef std::set<std::wstring> StringSet;
typedef AttributeHandleSetRegionHandleSetPairVector Pairs;

struct Wire {
   unsigned long declared;
   std::string bytes;
};

// What the wrapper of a T makes of a value.
template <class T, class Value>
Wire wire(Value const& value)
{
   CppWrapper<T> const wrapper(nullptr, value);
   char buffer[256];
   ByteWrapper cursor(buffer);
   wrapper.encode(cursor);
   return {wrapper.getEncodedSize(),
         hex(buffer, static_cast<unsigned long>(cursor.getPtr() - buffer))};
}

template <class T>
Wire wire(T const& value)
{
   return wire<T, T>(value);
}

template <class T>
Wire wireOf(T const& value)
{
   return wire<T const&, T>(value);
}

template <class Handle>
std::set<Handle> handles(Handle (*makeHandle)(int), std::vector<int> const& values)
{
   std::set<Handle> result;
   for (int const value : values) {
      result.insert(makeHandle(value));
   }
   return result;
}

AttributeHandleSet attributes(std::vector<int> const& values)
{
   return handles<AttributeHandle>(makeAttributeHandle, values);
}

RegionHandleSet regions(std::vector<int> const& values)
{
   return handles<RegionHandle>(makeRegionHandle, values);
}

template <class Handle>
std::map<Handle, VariableLengthData> values(
      Handle (*makeHandle)(int), std::vector<std::pair<int, char const*>> const& entries)
{
   std::map<Handle, VariableLengthData> result;
   for (auto const& entry : entries) {
      result[makeHandle(entry.first)] = fromHex(entry.second);
   }
   return result;
}

struct WireRow {
   char const* name;
   Wire actual;
   unsigned long declared;
   char const* bytes;
};

void expectWire(std::vector<WireRow> const& rows)
{
   for (WireRow const& row : rows) {
      EXPECT_EQ(row.bytes, row.actual.bytes) << row.name;
      EXPECT_EQ(row.declared, row.actual.declared) << row.name;
   }
}

TEST(Wrapper, OfAScalar)
{
   expectWire({
         {"int", wire(0x01020304), 4, "01 02 03 04"},
         {"int below 0", wire(-2), 4, "FF FF FF FE"},
         {"true", wire(true), 4, "00 00 00 01"},
         {"false", wire(false), 4, "00 00 00 00"},
         {"1.0", wire(1.0), 8, "3F F0 00 00 00 00 00 00"},
         {"-0.0", wire(-0.0), 8, "80 00 00 00 00 00 00 00"},
         {"0.1", wire(0.1), 8, "3F B9 99 99 99 99 99 9A"},
         {"order", wire(TIMESTAMP), 4, "00 00 00 01"},
         {"transportation", wire(BEST_EFFORT), 4, "00 00 00 02"},
         {"resign action", wire(CANCEL_THEN_DELETE_THEN_DIVEST), 4, "00 00 00 04"},
         {"service group", wire(SUPPORT_SERVICES), 4, "00 00 00 07"},
         {"bounds", wireOf(RangeBounds(1, 0x100000000)), 16,
               "00 00 00 00 00 00 00 01 00 00 00 01 00 00 00 00"},
         {"greatest bounds", wireOf(RangeBounds(0x0102030405060708, 0xFFFFFFFFFFFFFFFF)), 16,
               "01 02 03 04 05 06 07 08 FF FF FF FF FF FF FF FF"},
   });
}

TEST(Wrapper, OfAStringDeclaresFourBytesACharacterAndWritesTwo)
{
   expectWire({
         {"empty", wireOf(std::wstring()), 4, "00 00 00 00"},
         {"ab", wireOf(std::wstring(L"ab")), 12, "00 00 00 02 00 61 00 62"},
         {"above U+00FF", wireOf(std::wstring(L"\u00e9\u20ac")), 12, "00 00 00 02 00 E9 20 AC"},
         {"above U+FFFF", wireOf(std::wstring(L"\U0001F600")), 8, "00 00 00 01 F6 00"},
         {"zero", wireOf(std::wstring(1, L'\0')), 8, "00 00 00 01 00 00"},
         {"no strings", wireOf(Strings()), 4, "00 00 00 00"},
         {"two strings", wireOf(Strings{L"a", L"bc"}), 24,
               "00 00 00 02 00 00 00 01 00 61 00 00 00 02 00 62 00 63"},
         {"in their order", wireOf(Strings{L"b", L"", L"b"}), 24,
               "00 00 00 03 00 00 00 01 00 62 00 00 00 00 00 00 00 01 00 62"},
         {"empty set", wireOf(StringSet()), 4, "00 00 00 00"},
         {"set, ascending", wireOf(StringSet{L"b", L"a", L"b"}), 20,
               "00 00 00 02 00 00 00 01 00 61 00 00 00 01 00 62"},
   });
}

TEST(Wrapper, OfBytesTellsTheirNumber)
{
   expectWire({
         {"none", wireOf(VariableLengthData()), 4, "00 00 00 00"},
         {"three", wireOf(fromHex("00 FF 10")), 7, "00 00 00 03 00 FF 10"},
   });
}

#define HANDLE_ROW(A)                                                                              \
   {#A, wire(make##A(0x01020304)), 4, "01 02 03 04"},                                              \
         {#A " below 0", wire(make##A(-2)), 4, "FF FF FF FE"},                                     \
         {#A " from bytes", wire(make##A(fromHex("FE 00 00 01"))), 4, "FE 00 00 01"},              \
         {#A " of nothing", wire(A()), 4, "00 00 00 00"},

TEST(Wrapper, OfAHandleIsItsInteger)
{
   expectWire({RTI_FOR_EACH_HANDLE(HANDLE_ROW){"retraction handle",
                     wire(makeMessageRetractionHandle(fromHex("00 00 00 07 00 00 00 02 AA BB"))),
                     10, "00 00 00 07 00 00 00 02 AA BB"},
         {"no retraction handle", wire(MessageRetractionHandle()), 8, "00 00 00 00 00 00 00 00"}});
}

// Handles are ordered as unsigned words, into which the sign of an integer is extended.
TEST(Wrapper, OfASetOrAMapIsInAscendingOrder)
{
   expectWire({
         {"no handles", wireOf(AttributeHandleSet()), 4, "00 00 00 00"},
         {"attributes", wireOf(attributes({-1, 300, 2, 300})), 16,
               "00 00 00 03 00 00 00 02 00 00 01 2C FF FF FF FF"},
         {"federates", wireOf(handles<FederateHandle>(makeFederateHandle, {9})), 8,
               "00 00 00 01 00 00 00 09"},
         {"dimensions", wireOf(handles<DimensionHandle>(makeDimensionHandle, {4, 3})), 12,
               "00 00 00 02 00 00 00 03 00 00 00 04"},
         {"regions", wireOf(regions({6, 5})), 12, "00 00 00 02 00 00 00 05 00 00 00 06"},
         {"no attribute values", wireOf(AttributeHandleValueMap()), 4, "00 00 00 00"},
         {"attribute values",
               wireOf(values<AttributeHandle>(makeAttributeHandle, {{7, "AA BB"}, {1, ""}})), 22,
               "00 00 00 02 00 00 00 01 00 00 00 00 00 00 00 07 00 00 00 02 AA BB"},
         {"no parameter values", wireOf(ParameterHandleValueMap()), 4, "00 00 00 00"},
         {"parameter values",
               wireOf(values<ParameterHandle>(makeParameterHandle, {{-1, "01"}, {1, "02"}})), 22,
               "00 00 00 02 00 00 00 01 00 00 00 01 02 FF FF FF FF 00 00 00 01 01"},
         {"no pairs", wireOf(Pairs()), 4, "00 00 00 00"},
         {"an empty pair", wireOf(Pairs(1)), 12, "00 00 00 01 00 00 00 00 00 00 00 00"},
         {"pairs in their order",
               wireOf(Pairs{{attributes({3, 2}), regions({8})}, {attributes({1}), regions({})}}),
               36,
               "00 00 00 02 00 00 00 02 00 00 00 02 00 00 00 03 00 00 00 01 00 00 00 08 "
               "00 00 00 01 00 00 00 01 00 00 00 00"},
   });
}

TEST(Wrapper, OfATimeIsItsEncodingWithNoLength)
{
   expectWire({
         {"integer time", wire<LogicalTime const&>(HLAinteger64Time(0x0102030405060708)), 8,
               "01 02 03 04 05 06 07 08"},
         {"float time", wire<LogicalTime const&>(HLAfloat64Time(1.0)), 8,
               "3F F0 00 00 00 00 00 00"},
         {"integer interval", wire<LogicalTimeInterval const&>(HLAinteger64Interval(5)), 8,
               "00 00 00 00 00 00 00 05"},
         {"float interval", wire<LogicalTimeInterval const&>(HLAfloat64Interval(0.5)), 8,
               "3F E0 00 00 00 00 00 00"},
   });
}

// ---- Codes -----------------------------------------------------------------------------------

struct CodesRow {
   char const* function;
   int (*call)(int);
   std::vector<std::pair<int, int>> codes;
   std::vector<int> unknown; // end the process
};

#define OUTWARD(function, Enumeration)                                                             \
#function, [](int value) { return function(static_cast<Enumeration>(value)); }
#define RESULT(function)                                                                           \
#function, [](int code) { return static_cast<int>(function(nullptr, code)); }

CodesRow const CODES[] = {
      {OUTWARD(encodeOrderType, OrderType), {{RECEIVE, 0}, {TIMESTAMP, 1}}, {0, 3}},
      {OUTWARD(encodeTransportationType, TransportationType), {{RELIABLE, 1}, {BEST_EFFORT, 2}},
            {0, 3}},
      {OUTWARD(encodeResignAction, ResignAction),
            {{UNCONDITIONALLY_DIVEST_ATTRIBUTES, 0}, {DELETE_OBJECTS, 1},
                  {CANCEL_PENDING_OWNERSHIP_ACQUISITIONS, 2}, {DELETE_OBJECTS_THEN_DIVEST, 3},
                  {CANCEL_THEN_DELETE_THEN_DIVEST, 4}, {NO_ACTION, 5}},
            {6, 7}},
      {OUTWARD(encodeServiceGroup, ServiceGroup),
            {{FEDERATION_MANAGEMENT, 1}, {DECLARATION_MANAGEMENT, 2}, {OBJECT_MANAGEMENT, 3},
                  {OWNERSHIP_MANAGEMENT, 4}, {TIME_MANAGEMENT, 5},
                  {DATA_DISTRIBUTION_MANAGEMENT, 6}, {SUPPORT_SERVICES, 7}},
            {7}},
      {RESULT(returnOrderType), {{0, RECEIVE}, {1, TIMESTAMP}}, {-1, 2}},
      {RESULT(returnTransportationType), {{1, RELIABLE}, {2, BEST_EFFORT}}, {-1, 0, 3}},
      {RESULT(returnResignAction),
            {{0, UNCONDITIONALLY_DIVEST_ATTRIBUTES}, {5, NO_ACTION}, {99, 99}, {-1, -1}}, {}},
};

TEST(EncoderDeathTest, CodesOfTheEnumerations)
{
   for (CodesRow const& row : CODES) {
      for (auto const& code : row.codes) {
         EXPECT_EQ(code.second, row.call(code.first)) << row.function << " of " << code.first;
      }
      for (int const value : row.unknown) {
         EXPECT_DEATH(row.call(value), failedAssertion("false", row.function, "gen/cpp/Encoder"))
               << row.function << " of " << value;
      }
   }
}

// A resign action is looked at before there is an array, the others while they are written.
TEST(EncoderDeathTest, PlaceOfTheTest)
{
   EXPECT_DEATH(CppWrapper<ResignAction>(nullptr, static_cast<ResignAction>(6)),
         failedAssertion("false", "encodeResignAction", "gen/cpp/Encoder"));
   CppWrapper<OrderType> const order(nullptr, static_cast<OrderType>(3));
   EXPECT_EQ(4u, order.getEncodedSize());
   char buffer[4];
   ByteWrapper cursor(buffer);
   EXPECT_DEATH(
         order.encode(cursor), failedAssertion("false", "encodeOrderType", "gen/cpp/Encoder"));
}

#define RESULT_HANDLE_ROW(A)                                                                       \
   EXPECT_EQ(make##A(-5), return ##A(nullptr, -5));                                                \
   EXPECT_EQ(make##A(0x01020304), return ##A(nullptr, 0x01020304));

TEST(Result, OfAScalar)
{
   RTI_FOR_EACH_HANDLE(RESULT_HANDLE_ROW)
   EXPECT_TRUE(returnBoolean(nullptr, 1));
   EXPECT_FALSE(returnBoolean(nullptr, 0));
   EXPECT_EQ(0xFFFFFFFED5FA0E00, returnLong(nullptr, -5000000000));
   EXPECT_EQ(0.1, returnDouble(nullptr, 0.1));
}

} // namespace
