// Callback arguments: the value that each decoder makes of its bytes, and how far it reads.
#include "gen/cpp/Decoder.h"
#include "tests/api/Bytes.h"
#include "tests/gen/Assertion.h"
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

#include <gtest/gtest.h>
#include <sstream>

using namespace rti1516e;
using namespace tarn1516e;

namespace {

// ---- Values as texts, so that one table can name those of all decoders -----------------------

template <class Handle>
auto tell(std::wostream& out, Handle const& handle) -> decltype(handle.toString(), void())
{
   std::wstring const text = handle.toString();
   out << text.substr(text.find(L'<')); // without the name of its class
}

void tell(std::wostream& out, std::wstring const& text)
{
   out << L"'" << text << L"'";
}

void tell(std::wostream& out, VariableLengthData const& data)
{
   std::string const text = hex(data);
   out << std::wstring(text.begin(), text.end());
}

void tell(std::wostream& out, int code)
{
   out << code;
}

template <class A, class B>
void tell(std::wostream& out, std::pair<A, B> const& pair)
{
   tell(out, pair.first);
   out << L":";
   tell(out, pair.second);
}

void tell(std::wostream& out, FederateRestoreStatus const& status)
{
   tell(out, status.preRestoreHandle);
   tell(out, status.postRestoreHandle);
   out << L":" << status.status;
}

void tell(std::wostream& out, FederationExecutionInformation const& information)
{
   tell(out, information.federationExecutionName);
   tell(out, information.logicalTimeImplementationName);
}

template <class Iterator>
void tellAll(std::wostream& out, Iterator value, Iterator end)
{
   for (wchar_t const* separator = L""; value != end; ++value, separator = L" ") {
      out << separator;
      tell(out, *value);
   }
}

template <class Value>
void tell(std::wostream& out, std::set<Value> const& values)
{
   tellAll(out, values.begin(), values.end());
}

template <class Value>
void tell(std::wostream& out, std::vector<Value> const& values)
{
   tellAll(out, values.begin(), values.end());
}

template <class Handle>
void tell(std::wostream& out, std::map<Handle, VariableLengthData> const& values)
{
   tellAll(out, values.begin(), values.end());
}

void tellSupplement(std::wostream& out, bool hasFederate, FederateHandle const& federate,
      bool hasRegions, RegionHandleSet const& regions)
{
   out << hasFederate << L" ";
   tell(out, federate);
   out << L" " << hasRegions << L" {";
   tell(out, regions);
   out << L"}";
}

void tell(std::wostream& out, SupplementalReflectInfo const& info)
{
   tellSupplement(out, info.hasProducingFederate, info.producingFederate, info.hasSentRegions,
         info.sentRegions);
}

void tell(std::wostream& out, SupplementalReceiveInfo const& info)
{
   tellSupplement(out, info.hasProducingFederate, info.producingFederate, info.hasSentRegions,
         info.sentRegions);
}

void tell(std::wostream& out, SupplementalRemoveInfo const& info)
{
   out << info.hasProducingFederate << L" ";
   tell(out, info.producingFederate);
}

// ---- The table -------------------------------------------------------------------------------

struct Decoded {
   std::wstring text;
   long read; // bytes
};

template <class Value>
std::wstring textOf(Value const& value)
{
   std::wostringstream out;
   tell(out, value);
   return out.str();
}

template <class Class, class Value>
Decoded decode(std::string const& bytes)
{
   VariableLengthData const data = fromHex(bytes);
   std::string copy(static_cast<char const*>(data.data()), data.size());
   ByteWrapper buffer(&copy[0]);
   Class const decoder(nullptr, buffer);
   std::fill(copy.begin(), copy.end(), '\x55'); // nothing may refer to it any more
   return {textOf<Value>(decoder), buffer.getPtr() - buffer.array()};
}

struct DecoderRow {
   char const* decoder;
   Decoded (*decode)(std::string const& bytes);
   std::string bytes; // read to the last one
   wchar_t const* text;
};

#define DECODER(Class, Value) #Class, decode < Java##Class, Value>

#define HANDLE_ROWS(A)                                                                             \
   {DECODER(A, A), "00 00 00 07", L"<7>"},                                                         \
   {                                                                                               \
      DECODER(A, A), "FF FF FF FE", L"<-2>"                                                        \
   }

#define SET_ROWS(Class, Value)                                                                     \
   {DECODER(Class, Value), "00 00 00 00", L""}, {DECODER(Class, Value), "FF FF FF FF", L""},       \
         {DECODER(Class, Value), "00 00 00 03 00 00 00 09 00 00 00 02 00 00 00 09", L"<2> <9>"},   \
   {                                                                                               \
      DECODER(Class, Value), "00 00 00 02 FF FF FF FF 7F FF FF FF", L"<2147483647> <-1>"           \
   }

#define MAP_ROWS(Class, Value)                                                                     \
   {DECODER(Class, Value), "00 00 00 00", L""}, {DECODER(Class, Value), "FF FF FF FF", L""},       \
         {DECODER(Class, Value),                                                                   \
               "00 00 00 02 00 00 00 09 00 00 00 02 AA BB 00 00 00 01 00 00 00 00",                \
               L"<1>: <9>:AA BB"},                                                                 \
   {                                                                                               \
      DECODER(Class, Value), /* the last value of a handle stays */                                \
            "00 00 00 02 00 00 00 05 00 00 00 02 AA BB 00 00 00 05 00 00 00 01 CC", L"<5>:CC"      \
   }

#define SUPPLEMENT_ROWS(Class)                                                                     \
   {DECODER(Class, Class), "00 00 00 00 00 00 00 00", L"0 <0> 0 {}"},                              \
         {DECODER(Class, Class), "00 00 00 01 00 00 00 00 00 00 00 07", L"1 <7> 0 {}"},            \
   {                                                                                               \
      DECODER(Class, Class), "00 00 00 02 00 00 00 00 FF FF FF FF", L"1 <-1> 0 {}"                 \
   }

DecoderRow const DECODERS[] = {
      {DECODER(String, std::wstring), "00 00 00 00", L"''"},
      {DECODER(String, std::wstring), "00 00 00 02 00 61 20 AC", L"'a\u20ac'"},
      {DECODER(String, std::wstring), "00 00 00 03 D8 3D DE 00 FF FF", L"'\xD83D\xDE00\xFFFF'"},
      {DECODER(ByteArray, VariableLengthData), "00 00 00 00", L""},
      {DECODER(ByteArray, VariableLengthData), "00 00 00 03 00 FF 10", L"00 FF 10"},
      HANDLE_ROWS(FederateHandle),
      HANDLE_ROWS(ObjectClassHandle),
      HANDLE_ROWS(InteractionClassHandle),
      HANDLE_ROWS(ObjectInstanceHandle),
      HANDLE_ROWS(AttributeHandle),
      {DECODER(OrderType, OrderType), "00 00 00 00", L"1"},
      {DECODER(OrderType, OrderType), "00 00 00 01", L"2"},
      {DECODER(TransportationTypeHandle, TransportationType), "00 00 00 02", L"2"},
      {DECODER(SynchronizationPointFailureReason, SynchronizationPointFailureReason), "00 00 00 01",
            L"1"},
      {DECODER(SaveFailureReason, SaveFailureReason), "00 00 00 05", L"5"},
      {DECODER(RestoreFailureReason, RestoreFailureReason), "00 00 00 04", L"4"},
      SET_ROWS(FederateHandleSet, FederateHandleSet),
      SET_ROWS(AttributeHandleSet, AttributeHandleSet),
      SET_ROWS(RegionHandleSet, RegionHandleSet),
      {DECODER(SetOfString, std::set<std::wstring>), "00 00 00 00", L""},
      {DECODER(SetOfString, std::set<std::wstring>), "80 00 00 00", L""},
      {DECODER(SetOfString, std::set<std::wstring>),
            "00 00 00 03 00 00 00 01 00 62 00 00 00 01 00 61 00 00 00 01 00 62", L"'a' 'b'"},
      MAP_ROWS(AttributeHandleValueMap, AttributeHandleValueMap),
      MAP_ROWS(ParameterHandleValueMap, ParameterHandleValueMap),
      {DECODER(FederateHandleSaveStatusPairArray, FederateHandleSaveStatusPairVector),
            "00 00 00 00", L""},
      {DECODER(FederateHandleSaveStatusPairArray, FederateHandleSaveStatusPairVector),
            "00 00 00 03 00 00 00 09 00 00 00 03 00 00 00 02 00 00 00 00 00 00 00 09 00 00 00 03",
            L"<9>:3 <2>:0 <9>:3"},
      {DECODER(FederateRestoreStatusArray, FederateRestoreStatusVector), "FF FF FF FF", L""},
      {DECODER(FederateRestoreStatusArray, FederateRestoreStatusVector),
            "00 00 00 02 00 00 00 01 00 00 00 02 00 00 00 05 00 00 00 01 FF FF FF FF 00 00 00 00",
            L"<1><2>:5 <1><-1>:0"},
      {DECODER(FederationExecutionInformationSet, FederationExecutionInformationVector),
            "00 00 00 00", L""},
      {DECODER(FederationExecutionInformationSet, FederationExecutionInformationVector),
            "00 00 00 03 00 00 00 01 00 62 00 00 00 01 00 74 00 00 00 00 00 00 00 00 "
            "00 00 00 01 00 62 00 00 00 01 00 74",
            L"'b''t' '''' 'b''t'"},
      // Flags first, then what they announce. A reflection never tells of its regions.
      SUPPLEMENT_ROWS(SupplementalReflectInfo),
      {DECODER(SupplementalReflectInfo, SupplementalReflectInfo),
            "00 00 00 00 00 00 00 01 00 00 00 01 00 00 00 09", L"0 <0> 0 {<9>}"},
      {DECODER(SupplementalReflectInfo, SupplementalReflectInfo),
            "00 00 00 01 00 00 00 02 00 00 00 07 00 00 00 02 00 00 00 09 00 00 00 08",
            L"1 <7> 0 {<8> <9>}"},
      SUPPLEMENT_ROWS(SupplementalReceiveInfo),
      {DECODER(SupplementalReceiveInfo, SupplementalReceiveInfo),
            "00 00 00 00 00 00 00 01 00 00 00 01 00 00 00 09", L"0 <0> 1 {<9>}"},
      {DECODER(SupplementalReceiveInfo, SupplementalReceiveInfo),
            "00 00 00 01 80 00 00 00 00 00 00 07 00 00 00 00", L"1 <7> 1 {}"},
      {DECODER(SupplementalRemoveInfo, SupplementalRemoveInfo), "00 00 00 00", L"0 <0>"},
      {DECODER(SupplementalRemoveInfo, SupplementalRemoveInfo), "00 00 00 01 00 00 00 07",
            L"1 <7>"},
      {DECODER(SupplementalRemoveInfo, SupplementalRemoveInfo), "00 00 00 02 00 00 00 07",
            L"1 <7>"},
};

TEST(Decoder, ReadsItsFieldAndNoFurther)
{
   for (DecoderRow const& row : DECODERS) {
      Decoded const decoded = row.decode(row.bytes + (row.bytes.empty() ? "" : " EE EE EE EE"));
      EXPECT_EQ(row.text, decoded.text) << row.decoder << " of " << row.bytes;
      EXPECT_EQ(static_cast<long>(row.bytes.size() + 1) / 3, decoded.read)
            << row.decoder << " of " << row.bytes;
   }
}

TEST(Decoder, OfARetractionHandleTakesItsBytes)
{
   char bytes[] = "\0\0\0\x07\0\0\0\x02\xAA\xBB\xEE";
   ByteWrapper buffer(bytes);
   JavaMessageRetractionHandle const decoder(nullptr, buffer);
   MessageRetractionHandle const& handle = decoder;
   EXPECT_EQ("00 00 00 07 00 00 00 02 AA BB", hex(handle.encode()));
   EXPECT_EQ(bytes + 10, buffer.getPtr());
}

TEST(Decoder, OfATagOwnsItsBytes)
{
   char bytes[] = "\0\0\0\x02\xAA\xBB\xEE";
   ByteWrapper buffer(bytes);
   VariableLengthData const tag = decodeTag(buffer);
   bytes[4] = 0;
   EXPECT_EQ("AA BB", hex(tag));
   EXPECT_EQ(bytes + 6, buffer.getPtr());
}

TEST(Decoder, LeavesANegativeSizeToTheAllocator)
{
   for (char const* const bytes : {"FF FF FF FF 00 00", "80 00 00 00 00 00"}) {
      EXPECT_THROW((decode<JavaString, std::wstring>(bytes)), std::bad_alloc);
      EXPECT_THROW((decode<JavaByteArray, VariableLengthData>(bytes)), std::bad_alloc);
   }
}

// A time has no length on the wire: it is the factory's that says where it ends.
TEST(Decoder, OfATimeAsksTheFactory)
{
   char bytes[] = "\x3F\xF0\0\0\0\0\0\0\xEE";
   FederateAmbassadorHelper helper;
   {
      ByteWrapper buffer(bytes);
      JavaLogicalTime const nothing(&helper, buffer);
      EXPECT_EQ(bytes, buffer.getPtr());
   }
   struct Row {
      LogicalTimeFactory* factory;
      wchar_t const* text;
   };
   Row const rows[] = {
         {new HLAinteger64TimeFactory, L"4607182418800017408"},
         {new HLAfloat64TimeFactory, L"1"},
   };
   for (Row const& row : rows) {
      helper.timeFactory.reset(row.factory);
      ByteWrapper buffer(bytes);
      JavaLogicalTime const decoder(&helper, buffer);
      LogicalTime const& time = decoder;
      EXPECT_NE(std::wstring::npos, time.toString().find(row.text)) << time.toString();
      EXPECT_EQ("3F F0 00 00 00 00 00 00", hex(time.encode()));
      EXPECT_EQ(bytes + 8, buffer.getPtr());
   }
}

// ---- Codes -----------------------------------------------------------------------------------

struct CodesRow {
   char const* function;
   int (*call)(int);
   std::vector<int> values; // of the codes from `first` on
   int first;
};

#define CODES(function) #function, [](int code) { return static_cast<int>(function(code)); }

CodesRow const CODES_ROWS[] = {
      {CODES(decodeOrderType), {RECEIVE, TIMESTAMP}, 0},
      {CODES(decodeTransportationType), {RELIABLE, BEST_EFFORT}, 1},
      {CODES(decodeSyncFailureReason), {0, 1}, 0},
      {CODES(decodeSaveFailureReason), {0, 1, 2, 3, 4, 5}, 0},
      {CODES(decodeRestoreFailureReason), {0, 1, 2, 3, 4}, 0},
      {CODES(decodeRestoreStatus), {0, 1, 2, 3, 4, 5}, 0},
      {CODES(decodeSaveStatus), {0, 1, 2, 3}, 0},
};

TEST(DecoderDeathTest, CodesOfTheEnumerations)
{
   for (CodesRow const& row : CODES_ROWS) {
      int code = row.first;
      for (int const value : row.values) {
         EXPECT_EQ(value, row.call(code)) << row.function << " of " << code;
         ++code;
      }
      for (int const unknown : {row.first - 1, code}) {
         EXPECT_DEATH(row.call(unknown), failedAssertion("false", row.function, "gen/cpp/Decoder"))
               << row.function << " of " << unknown;
      }
   }
}

} // namespace
