// What only a VM that is none shows: which names the library asks for, in which order ladders are
// climbed, and how often native memory is taken.
#include "tests/api/Bytes.h"
#include "tests/bridge/Costs.h"
#include "tests/bridge/Rows.h"
#include "tests/support/BareVm.h"
#include "tests/support/Memory.h"
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <thread>

using namespace rti1516e;
using namespace net;

namespace {

// The bytes that the lines of an example in the document of the wire format begin with.
std::string documented(std::string const& example)
{
   std::ifstream document(NET_WIRE_FORMAT);
   std::string line, digits;
   while (std::getline(document, line) && line != "```bytes " + example) {
   }
   while (std::getline(document, line) && line != "```") {
      digits += line.substr(0, line.find("  ")) + " ";
   }
   return bytesOf(fromHex(digits));
}

} // namespace

TEST(Bare, namesAndSignaturesAreThoseOfTheList)
{
   ambassador();
   std::map<std::string, std::string> methods{{"<init>", "([B)V"}};
   for (ServiceRow const& row : serviceRows()) {
      methods[row.name] = row.signature;
   }
   EXPECT_EQ(methods, bare::state().methods);
   std::set<std::string> kept, registered;
   for (std::string const& native : natives()) {
      kept.insert(native + "([B)V");
   }
   for (auto const& native : bare::state().natives) {
      registered.insert(native.first);
   }
   EXPECT_EQ(kept, registered);
}

// Java's classes may be each other's: the first that fits counts.
TEST(Bare, laddersAreClimbedInTheirOrder)
{
   ambassador();
   for (ServiceRow const& row : serviceRows()) {
      java::reset();
      java::answer(row.name, {'X', L"why", "java/lang/IllegalStateException", {}});
      Fields fields(0);
      HLAfloat64Time time;
      HLAfloat64Interval interval;
      testing::internal::CaptureStderr();
      EXPECT_THROW(row.call(ambassador(), fields, time, interval), RTIinternalError) << row.name;
      testing::internal::GetCapturedStderr();
      std::vector<std::string> rungs;
      for (std::string const& rung : row.ladder) {
         rungs.push_back("hla/rti1516e/exceptions/" + rung);
      }
      EXPECT_EQ(rungs, bare::state().compared) << row.name;
   }
}

TEST(Bare, aRungWhoseClassIsMissingLeavesNothingPending)
{
   ambassador();
   java::reset();
   java::answer("disconnect", {'X', L"why", "hla/rti1516e/exceptions/RTIinternalError", {}});
   setenv("VM_LACKS", "exceptions/FederateIsExecutionMember", 1);
   try {
      ambassador().disconnect();
      ADD_FAILURE() << "disconnected";
   } catch (RTIinternalError const& e) {
      EXPECT_EQ(L"why", e.what());
   }
   unsetenv("VM_LACKS");
   EXPECT_FALSE(bare::environment()->ExceptionCheck());
}

// A time or an interval makes a block, its record and its bytes; a retraction handle a block and
// its bytes.
TEST(Bare, servicesTakeMemoryForRetractionHandlesAlone)
{
   std::map<std::string, long> const taken{{"MRH", 4}};
   Federate federate;
   bare::state().keepsCalls = false;
   for (ServiceRow const& row : serviceRows()) {
      long expected = 0;
      for (std::string const& code : codesOf(row.name)) {
         expected += taken.count(code) != 0 ? taken.at(code) : 0;
      }
      for (int set = 0; set < net::sets && row.result == "-"; ++set) {
         Fields fields(set);
         HLAfloat64Time time;
         HLAfloat64Interval interval;
         row.call(*federate.rti, fields, time, interval); // once before, for what stays
         long const before = memory::allocations;
         row.call(*federate.rti, fields, time, interval);
         EXPECT_GE(expected, memory::allocations - before) << row.name << ", set " << set;
      }
   }
   bare::state().keepsCalls = true;
}

TEST(Bare, callsThatAreWatchedTakeNoMoreMemoryThanKept)
{
   for (Cost const& cost : costs()) {
      cost.call();
      long const before = memory::allocations;
      cost.call();
      EXPECT_GE(cost.allocations, memory::allocations - before) << cost.name;
   }
   bare::state().keepsCalls = true;
}

#ifndef NET_SANITIZED
TEST(Bare, valuesOfAStatementTakeNoMemoryAndNothingStaysBehindAThread)
{
   std::map<int, VariableLengthData> kept;
   auto const make = [&kept] {
      for (int i = 0; i < 10; ++i) {
         kept[i] = HLAfloat64BE(i).encode();
      }
   };
   make();
   long const before = memory::allocations;
   make();
   EXPECT_EQ(before, memory::allocations);

   long const held = memory::held;
   std::thread(make).join();
   EXPECT_EQ(held, memory::held);
}
#endif

// What the thread kept is gone by then.
TEST(Bare, callbacksComeAlsoWhileAThreadEnds)
{
   struct Last {
      std::function<void()> act;
      ~Last()
      {
         act();
      }
   };
   Federate federate;
   Wire const fields = integer(1) + counted({integer(7) + block("8 bytes.")}) + block("tag!")
         + integer(0) + integer(1) + integer(0) + integer(0);
   std::vector<std::vector<std::string>> received;
   std::function<void()> const reflect = [&] {
      EXPECT_EQ(8U, HLAfloat64BE(0.5).encode().size());
      federate.fire("reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native", fields.bytes);
      received.push_back(federate.record.arguments);
   };
   std::thread([&] {
      thread_local Last last{reflect}; // made before what the library keeps, destroyed after it
      reflect();
      reflect();
   }).join();
   ASSERT_EQ(3u, received.size());
   EXPECT_EQ(3, federate.record.calls);
   EXPECT_EQ(received[0], received[2]);
}

TEST(Bare, theDocumentsExamplesAreWhatIsSentAndReceived)
{
   Federate federate;
   ObjectInstanceHandle const object =
         federate.rti->decodeObjectInstanceHandle(fromHex("00 00 01 02"));
   AttributeHandle const attribute = federate.rti->decodeAttributeHandle(fromHex("00 00 00 07"));
   AttributeHandleValueMap const values{{attribute, fromHex("CA FE")}};
   federate.rti->updateAttributeValues(object, values, {"go", 2});
   java::Call const call = java::takeCalls().back();
   EXPECT_EQ("updateAttributeValues_OIH_AHVM_BX", call.method);
   EXPECT_EQ(hex(documented("service")), hex(call.body));

   std::string const callback = documented("callback");
   std::string const fields = callback.substr(8, callback.size() - 12);
   EXPECT_EQ(hex(frame(1, fields)), hex(callback));
   federate.fire("reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native", fields);
   SupplementalReflectInfo const info(federate.rti->decodeFederateHandle(fromHex("00 00 00 03")));
   EXPECT_EQ((std::vector<std::string>{wire(object).bytes, wire(values).bytes, block("go").bytes,
                   wire(RECEIVE).bytes, wire(RELIABLE).bytes, wire(info).bytes}),
         federate.record.arguments);
}

TEST(DeathTest, javaMethodMissing)
{
   GTEST_FLAG_SET(death_test_style, "threadsafe");
   EXPECT_EXIT(
         {
            setenv("VM_LACKS", "retract_MRH", 1);
            ambassador();
         },
         testing::KilledBySignal(SIGABRT),
         testing::ContainsRegex(
               "^Cannot locate retract_MRH\\.\n[^\n]*Assertion.* .id != 0. failed"));
}
