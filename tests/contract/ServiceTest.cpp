// Every service against its row: the method called, the whole array that arrives, the result.
#include "tests/contract/Results.h"
#include "tests/contract/Rows.h"
#include "tests/support/Script.h"
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <gtest/gtest.h>

using namespace rti1516e;
using namespace contract;

namespace {

// Every set of arguments; and more calls than the VM grants local references beyond those asked
// for, which are 32.
int const callsPerService = 7 * sets;

template <class Time, class Interval>
void callEveryService(std::string const& timeName)
{
   ambassador();
   script::reset();
   Federate federate;
   federate.join(std::wstring(timeName.begin(), timeName.end()));
   script::record(true);
   for (ServiceRow const& row : serviceRows()) {
      script::LocalFrame const references; // the VM warns of a service that keeps some
      std::vector<Result> const answers = results(row.result, timeName);
      bool const joins = std::string(row.javaName).find("joinFederation") == 0;
      for (int call = 0; call < callsPerService; ++call) {
         int const set = call % sets;
         SCOPED_TRACE(row.javaName + (", set " + std::to_string(set)));
         Result const& answer = answers[static_cast<std::size_t>(set) % answers.size()];
         script::forgetCalls();
         answer.answer(row.javaName);
         if (joins) {
            script::answerString("getTimeFactory", std::wstring(timeName.begin(), timeName.end()));
         }
         Fields fields(Way::OUT, set);
         Time time;
         Interval interval;
         EXPECT_EQ(answer.shown, row.call(*federate.rti, fields, time, interval));

         ASSERT_EQ(joins ? 2 : 1, script::totalCalls());
         EXPECT_EQ(row.javaName, script::calledMethod(0));
         script::Body const body = script::lastBody(row.javaName);
         EXPECT_EQ(row.signature[1] == '[', body.hasBody);
         EXPECT_EQ("", difference(fields.body().whole(), body.bytes));
      }
   }
}

} // namespace

TEST(Rows, areAllThere)
{
   std::map<std::string, int> signatures;
   std::size_t rungs = 0;
   for (ServiceRow const& row : serviceRows()) {
      ++signatures[row.signature];
      rungs += row.ladder.size();
   }
   EXPECT_EQ(142U, serviceRows().size());
   EXPECT_EQ(60U, callbackRows().size());
   EXPECT_EQ(934U, rungs);
   std::map<std::string, int> const expected{{"([B)V", 67}, {"()V", 26}, {"([B)I", 17},
         {"([B)Ljava/lang/String;", 9}, {"([B)[B", 4}, {"([B)[I", 4}, {"()[B", 4}, {"([B)Z", 3},
         {"([B)J", 3}, {"([B)D", 2}, {"()I", 1}, {"([B)[J", 1}, {"()Ljava/lang/String;", 1}};
   EXPECT_EQ(expected, signatures);
}

TEST(Services, sendTheirFieldsAndConvertTheResultWithIntegerTime)
{
   callEveryService<HLAinteger64Time, HLAinteger64Interval>("HLAinteger64Time");
}

TEST(Services, sendTheirFieldsAndConvertTheResultWithFloatTime)
{
   callEveryService<HLAfloat64Time, HLAfloat64Interval>("HLAfloat64Time");
}
