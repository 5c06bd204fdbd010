// What Java throws in a service, and what the federate catches.
#include "tests/contract/Rows.h"
#include "tests/support/Script.h"
#include <RTI/Exception.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <typeinfo>

using namespace rti1516e;
using namespace contract;

namespace {

std::string const package = "hla/rti1516e/exceptions/";

std::map<std::string, std::type_info const*> const types{
#define TYPE_OF(A) {#A, &typeid(A)},
      RTI_FOR_EACH_EXCEPTION(TYPE_OF)
#undef TYPE_OF
};

// Calls a service while Java throws. The class of what came out, by the name of its rung, and its
// message; or that nothing came.
std::string caught(ServiceRow const& row, std::string const& javaClass, wchar_t const* message)
{
   script::answerThrow(row.javaName, javaClass, message);
   Fields fields(Way::OUT, 0);
   HLAfloat64Time time;
   HLAfloat64Interval interval;
   try {
      row.call(ambassador(), fields, time, interval);
   } catch (Exception const& e) {
      for (auto const& type : types) {
         if (typeid(e) == *type.second) {
            return type.first + ": " + show(e.what());
         }
      }
      return "another class";
   }
   return "nothing";
}

class Ladders : public testing::Test {
protected:
   Ladders()
   {
      ambassador();
      script::reset();
      script::scriptAll(true);
   }
};

} // namespace

TEST_F(Ladders, haveEveryRung)
{
   int climbed = 0;
   for (ServiceRow const& row : serviceRows()) {
      for (std::string const& rung : row.ladder) {
         SCOPED_TRACE(row.javaName + (", rung " + rung));
         EXPECT_EQ(rung + ": no \\233. \\55357.\\56832. \\321.",
               caught(row, package + rung, L"no \xE9 \xD83D\xDE00 \x141"));
         ++climbed;
      }
   }
   EXPECT_EQ(934, climbed);
}

TEST_F(Ladders, catchSubclassesAndTellTheirClassWithoutAMessage)
{
   std::string const standin = "skerry/tarn1516e/standin/";
   for (ServiceRow const& row : serviceRows()) {
      if (row.ladder.empty()) {
         continue;
      }
      SCOPED_TRACE(row.javaName);
      EXPECT_EQ(
            "RTIinternalError: sub", caught(row, standin + "SubclassedRTIinternalError", L"sub"));
      EXPECT_EQ("RTIinternalError: skerry.tarn1516e.standin.SilentException",
            caught(row, standin + "SilentException", L"unheard"));
      EXPECT_EQ(row.ladder[0] + ": hla.rti1516e.exceptions." + row.ladder[0],
            caught(row, package + row.ladder[0], nullptr));
      EXPECT_EQ(row.ladder[0] + ": ", caught(row, package + row.ladder[0], L""));
   }
}

// The next row's script would not be taken while an exception is pending.
TEST_F(Ladders, leaveNothingPendingWhateverATextRaises)
{
   struct Row {
      wchar_t const* plan;
      char const* rung;
      char const* stranger;
   };
   Row const rows[] = {{L"rt", "t", "t"}, {L"nt", "t", "t"}, {L"rr", "", ""}, {L"nr", "", ""},
         {L"rn", "", ""}, {L"nn", "", ""}, {L"mr", "m", ""}};
   std::string const unreadable = "skerry/tarn1516e/standin/UnreadableException";
   ServiceRow const& row = serviceRows().front();
   for (Row const& expected : rows) {
      SCOPED_TRACE(show(expected.plan));
      std::string const name = "RTIinternalError: ";
      EXPECT_EQ(name + expected.rung, caught(row, unreadable, expected.plan));
      testing::internal::CaptureStderr();
      EXPECT_EQ(name + expected.stranger, caught(row, unreadable + "$Stranger", expected.plan));
      EXPECT_EQ(0U, testing::internal::GetCapturedStderr().find("Unhandled exception\n"));
   }
   script::callUnchecked(); // whoever watches the VM's warnings waits for this one
}

// Other exceptions of the interface count as well: no ladder is longer than its row.
TEST_F(Ladders, tellOfWhatNoRungNames)
{
   std::size_t at = 0;
   for (ServiceRow const& row : serviceRows()) {
      std::vector<std::string> strangers{"java/lang/IllegalStateException"};
      auto stranger = types.begin();
      std::advance(stranger, static_cast<std::ptrdiff_t>(at++ % 12));
      for (; std::distance(stranger, types.end()) > 12; std::advance(stranger, 12)) {
         if (!std::count(row.ladder.begin(), row.ladder.end(), stranger->first)) {
            strangers.push_back(package + stranger->first);
         }
      }
      for (std::string const& name : strangers) {
         SCOPED_TRACE(row.javaName + (", " + name));
         std::string dotted = name;
         std::replace(dotted.begin(), dotted.end(), '/', '.');
         testing::internal::CaptureStderr();
         std::string const told = caught(row, name, L"why");
         std::string const errors = testing::internal::GetCapturedStderr();
         EXPECT_EQ("RTIinternalError: " + dotted + ": why", told);
         EXPECT_EQ(0U, errors.find("Unhandled exception\n" + dotted + ": why\n\tat ")) << errors;
      }
   }
}

// So even what the public list of the service names comes out as another class.
TEST_F(Ladders, areMissingForTheTimeFactory)
{
   ServiceRow const& row = serviceRows().back();
   ASSERT_STREQ("getTimeFactory", row.javaName);
   ASSERT_TRUE(row.ladder.empty());
   testing::internal::CaptureStderr();
   std::string const told = caught(row, package + "NotConnected", L"not yet");
   testing::internal::GetCapturedStderr();
   EXPECT_EQ("RTIinternalError: hla.rti1516e.exceptions.NotConnected: not yet", told);
}
