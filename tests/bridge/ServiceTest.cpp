// Every service against its row: the method called, the whole array that arrives, the result, and
// that nothing of the VM's is kept.
#include "tests/bridge/Rows.h"
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <gtest/gtest.h>
#include <limits>

using namespace rti1516e;
using namespace net;

namespace {

// What Java answers, and the result as wire() has it.
struct Result {
   java::Answer answer;
   std::string bytes;
};

std::int64_t const least = std::numeric_limits<std::int32_t>::min();

java::Answer number(char type, std::int64_t value)
{
   return {type, L"", "", {value}};
}

java::Answer bytes(Wire const& content)
{
   return {'B', L"", content.bytes, {}};
}

Result string(std::wstring const& text, std::string const& told)
{
   return {{'S', text, "", {}}, told};
}

// Numbers that come out as they are.
std::vector<Result> numbers(
      std::vector<std::int64_t> const& values, Wire (*toWire)(std::int64_t), char type = 'I')
{
   std::vector<Result> all;
   for (std::int64_t const value : values) {
      all.push_back({number(type, value), toWire(value).bytes});
   }
   return all;
}

Wire longOf(std::int64_t value)
{
   return longInteger(static_cast<std::uint64_t>(value));
}

std::vector<Result> sets()
{
   return {{{'i', L"", "", {5, 5, 2}}, counted({integer(2), integer(5)}).bytes},
         {{'i', L"", "", {}}, integer(0).bytes},
         {{'i', L"", "", {-1, 1, least}},
               counted({integer(1), integer(least), integer(-1)}).bytes}};
}

std::map<std::string, std::vector<Result>> fixedResults()
{
   std::wstring const odd = L"\xE9\xD83D\xDE00\x141";
   java::Answer const nothing{'V', L"", "", {}};
   Wire const retraction = integer(-1) + block("xyz");
   Wire const longRetraction = integer(7) + block(std::string(200, '\xEE'));
   std::int64_t const half = 0x3FE0000000000000;
   std::map<std::string, std::vector<Result>> all{
         {"-", {{nothing, ""}}},
         {"Z", numbers({1, 0}, integer, 'Z')},
         {"J", numbers({0x0102030405060708, -1}, longOf, 'J')},
         {"D", numbers({half, -half}, longOf, 'D')},
         {"S",
               {string(L"name", wire(std::wstring(L"name")).bytes), string(odd, wire(odd).bytes),
                     string(L"", integer(0).bytes)}},
         {"OT", numbers({0, 1}, integer)},
         {"TTH", numbers({1, 2}, integer)},
         {"RA", numbers({5, 4, 3, 2, 1, 0, 99}, integer)},
         {"RB",
               {{{'j', L"", "", {3, 9}}, (longOf(3) + longOf(9)).bytes},
                     {{'j', L"", "", {-1, 0x100000000}},
                           (longOf(-1) + longOf(0x100000000)).bytes}}},
         {"AHS", sets()},
         {"DHS", sets()},
         {"MRH",
               {{nothing, longOf(0).bytes}, {bytes(retraction), retraction.bytes},
                     {bytes(longRetraction), longRetraction.bytes}}},
         {"factory",
               {string(L"HLAinteger64Time", wire(std::wstring(L"HLAinteger64Time")).bytes),
                     string(L"HLAfloat64Time", wire(std::wstring(L"HLAfloat64Time")).bytes),
                     string(L"", wire(std::wstring(L"HLAfloat64Time")).bytes),
                     string(L"hlafloat64time", "none")}},
   };
   for (char const* const handle : {"FH", "OCH", "OIH", "ICH", "AH", "PH", "DH", "RH"}) {
      all[handle] = numbers({5, 0, -1, least}, integer);
   }
   Wire const time = longInteger(0x3FF1020304050607);
   all["LT"] = all["LTI"] = {{bytes(time), time.bytes}};
   // Without a time the federate's own stays: the initial one.
   all["LT?"] = {
         {nothing, (integer(0) + longOf(0)).bytes}, {bytes(time), (integer(1) + time).bytes}};
   return all;
}

template <class Time, class Interval>
void callEveryService(std::string const& timeName)
{
   std::wstring const name(timeName.begin(), timeName.end());
   std::map<std::string, std::vector<Result>> const all = fixedResults();
   Federate federate;
   federate.join(name);
   for (ServiceRow const& row : serviceRows()) {
      bool const joins = row.name.find("joinFederation") == 0;
      std::vector<Result> const& results =
            all.at(row.name == "getTimeFactory" ? "factory" : row.result);
      java::LocalFrame const references; // the VM warns of a service that keeps some
      for (int set = 0; set < net::sets; ++set) {
         SCOPED_TRACE(row.name + ", set " + std::to_string(set));
         Result const& result = results[static_cast<std::size_t>(set) % results.size()];
         java::reset();
         java::answer(row.name, result.answer);
         if (joins) {
            java::answer("getTimeFactory", {'S', name, "", {}});
         }
         Fields fields(set);
         Time time;
         Interval interval;
         int const held = java::heldReferences();
         EXPECT_EQ(hex(result.bytes), hex(row.call(*federate.rti, fields, time, interval)));
         EXPECT_EQ(held, java::heldReferences());

         std::vector<java::Call> const calls = java::takeCalls();
         ASSERT_EQ(joins ? 2U : 1U, calls.size());
         EXPECT_EQ(row.name, calls[0].method);
         EXPECT_EQ(row.signature[1] == '[', calls[0].hasBody);
         // What connect sends ahead is a handle that grows from connect to connect.
         std::size_t const skipped = row.name == "connect_FA_CM_S" ? 4 : 0;
         EXPECT_TRUE(fields.body().whole() == calls[0].body.substr(skipped)) << hex(
               fields.body().whole()) << "\n" << hex(calls[0].body.substr(skipped));
      }
   }
}

} // namespace

TEST(Services, sendTheirFieldsAndConvertTheResultWithIntegerTime)
{
   callEveryService<HLAinteger64Time, HLAinteger64Interval>("HLAinteger64Time");
}

TEST(Services, sendTheirFieldsAndConvertTheResultWithFloatTime)
{
   callEveryService<HLAfloat64Time, HLAfloat64Interval>("HLAfloat64Time");
}
