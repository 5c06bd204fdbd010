#include "tests/contract/Results.h"

#include "tests/api/Bytes.h"
#include "tests/contract/Wire.h"
#include "tests/support/Script.h"

#include <limits>
#include <map>

namespace contract {

namespace {

// Binds a value to one of the script's answers.
template <class Value, class Given>
Result result(void (*answer)(std::string const&, Value, bool), Given value, std::string shown)
{
   return {[=](std::string const& method) { answer(method, value, false); }, std::move(shown)};
}

Result nothing(std::string shown)
{
   return {[](std::string const& method) { script::answerDefault(method); }, std::move(shown)};
}

Result number(jint value, std::string shown)
{
   return result(script::answerInt, value, std::move(shown));
}

Result string(std::wstring const& value, std::string shown)
{
   return result(script::answerString, value, std::move(shown));
}

// The bytes of a time or a retraction handle, told behind a head.
Result bytes(Wire const& value, std::string const& head)
{
   return result(
         script::answerBytes, value.bytes, head + hex(value.bytes.data(), value.bytes.size()));
}

std::vector<Result> handles(std::string const& name)
{
   return {number(5, name + "<5>"), number(0, name + "<0>"), number(-1, name + "<-1>"),
         number(std::numeric_limits<jint>::min(), name + "<-2147483648>")};
}

std::vector<Result> sets()
{
   typedef std::vector<jint> Ints;
   return {result(script::answerInts, Ints{5, 5, 2}, "{HandleKind<2>, HandleKind<5>}"),
         result(script::answerInts, Ints{}, "{}"),
         result(script::answerInts, Ints{-1, 1, std::numeric_limits<jint>::min()},
               "{HandleKind<1>, HandleKind<-2147483648>, HandleKind<-1>}")};
}

std::vector<Result> resignActions()
{
   std::vector<Result> all;
   for (jint code : {5, 4, 3, 2, 1, 0, 99}) {
      all.push_back(number(code, std::to_string(code)));
   }
   return all;
}

std::map<std::string, std::vector<Result>> const& fixedResults()
{
   typedef std::vector<jlong> Longs;
   static std::map<std::string, std::vector<Result>> const all{
         {"", {nothing("")}},
         {"Z",
               {result(script::answerBoolean, true, "1"),
                     result(script::answerBoolean, false, "0")}},
         {"J",
               {result(script::answerLong, jlong(0x0102030405060708), "72623859790382856"),
                     result(script::answerLong, jlong(-1), "18446744073709551615")}},
         {"D",
               {result(script::answerDouble, 2.5, "2.5"),
                     result(script::answerDouble, -1e300, "-1.0000000000000001e+300"),
                     result(script::answerDouble, std::numeric_limits<double>::infinity(), "inf")}},
         {"S",
               {string(L"name", "name"), string(L"", ""),
                     string(L"\xE9\xD83D\xDE00\x141", "\\233.\\55357.\\56832.\\321.")}},
         {"FH", handles("FederateHandle")},
         {"OCH", handles("HandleKind")},
         {"OIH", handles("HandleKind")},
         {"ICH", handles("HandleKind")},
         {"AH", handles("HandleKind")},
         {"PH", handles("HandleKind")},
         {"DH", handles("HandleKind")},
         {"RH", handles("HandleKind")},
         {"OT", {number(0, "1"), number(1, "2")}},
         {"TTH", {number(1, "1"), number(2, "2")}},
         {"RA", resignActions()},
         {"RB",
               {result(script::answerLongs, Longs{3, 9}, "3 to 9"),
                     result(script::answerLongs, Longs{-1, 0x100000000},
                           "18446744073709551615 to 4294967296")}},
         {"AHS", sets()},
         {"DHS", sets()},
         {"MRH",
               {nothing("MessageRetractionHandle<0> 00 00 00 00 00 00 00 00"),
                     bytes(integer(-1) + block("xyz"), "MessageRetractionHandle<4294967295> "),
                     bytes(integer(7) + block(std::string(200, '\xEE')),
                           "MessageRetractionHandle<7> ")}},
         {"factory",
               {string(L"HLAinteger64Time", "HLAinteger64Time"),
                     string(L"HLAfloat64Time", "HLAfloat64Time"), string(L"", "HLAfloat64Time"),
                     string(L"hlafloat64time", "none")}},
   };
   return all;
}

} // namespace

std::vector<Result> results(std::string const& code, std::string const& timeName)
{
   Wire const value = longInteger(0x3FF1020304050607);
   if (code == "LT") {
      return {bytes(value, timeName + " time ")};
   }
   if (code == "LTI") {
      return {bytes(value, timeName + " interval ")};
   }
   if (code == "LT?") { // without a time the federate's own stays: the initial one
      return {nothing("0 " + timeName + " time 00 00 00 00 00 00 00 00"),
            bytes(value, "1 " + timeName + " time ")};
   }
   return fixedResults().at(code);
}

} // namespace contract
