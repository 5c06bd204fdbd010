// What no table of rows tells: bodies to the letter, and what an ambassador keeps from one call to
// the next.
#include "tests/contract/Rows.h"
#include "tests/support/Script.h"
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <RTI/time/HLAlogicalTimeFactoryFactory.h>

#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

using namespace rti1516e;
using namespace contract;

namespace {

class Edges : public testing::Test {
protected:
   Edges()
   {
      ambassador();
      script::reset();
      script::scriptAll(true);
      script::record(true);
   }

   static std::string sent(std::string const& method)
   {
      std::string const bytes = script::lastBody(method).bytes;
      return hex(bytes.data(), bytes.size());
   }
};

std::string const exceptions = "hla/rti1516e/exceptions/";

// The message of what `query` throws.
std::wstring failure(std::function<void()> const& query)
{
   try {
      query();
   } catch (RTIinternalError const& e) {
      return e.what();
   }
   return L"";
}

class FactoryThatReadsNothing : public HLAinteger64TimeFactory {
public:
   using HLAinteger64TimeFactory::decodeLogicalTime;

   std::auto_ptr<LogicalTime> decodeLogicalTime(void*, size_t)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return std::auto_ptr<LogicalTime>();
   }
};

} // namespace

// In the place of the one that the library was built with.
std::auto_ptr<LogicalTimeFactory> LogicalTimeFactoryFactory::makeLogicalTimeFactory(
      std::wstring const& name)
{
   return name == L"nothing" ? std::auto_ptr<LogicalTimeFactory>(new FactoryThatReadsNothing)
                             : HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory(name);
}

TEST_F(Edges, runOnTheJdkThatTheyAreSaidToRunOn)
{
   char const* const home = std::getenv("CONTRACT_JAVA_HOME");
   if (home == nullptr) {
      GTEST_SKIP() << "no JDK was asked for";
   }
   EXPECT_EQ(home, show(script::property("java.home")));
}

TEST_F(Edges, bodiesToTheLetter)
{
   RTIambassador& rti = ambassador();
   rti.joinFederationExecution(L"T", L"F");
   EXPECT_EQ("00 00 00 01 00 54 00 00 00 01 00 46 00 00 00 00 00 00 00 00",
         sent("joinFederationExecution_S_S_URLX"));
   CallbackRecord record;
   auto const callbacks = makeRecorder(record);
   takeHandle();
   rti.connect(*callbacks, HLA_IMMEDIATE, L"a\x1F600z\x141!");
   EXPECT_EQ("00 00 00 02 00 00 00 05 00 61 F6 00 00 7A 01 41 00 21 00 00 00 00 00 00 00 00 00 00",
         sent("connect_FA_CM_S").substr(12));
   rti.requestFederationSave(L"s", HLAinteger64Time(258));
   EXPECT_EQ("00 00 00 01 00 73 00 00 00 00 00 00 01 02 00 00", sent("requestFederationSave_S_LT"));
   rti.evokeMultipleCallbacks(0.5, 1.0);
   EXPECT_EQ("3F E0 00 00 00 00 00 00 3F F0 00 00 00 00 00 00", sent("evokeMultipleCallbacks_D_D"));
   rti.normalizeServiceGroup(FEDERATION_MANAGEMENT);
   EXPECT_EQ("00 00 00 01", sent("normalizeServiceGroup_SG"));
   rti.associateRegionsForUpdates(handle<ObjectInstanceHandle>(-2),
         {{{handle<AttributeHandle>(3)}, {handle<RegionHandle>(4), handle<RegionHandle>(5)}}});
   EXPECT_EQ("FF FF FF FE 00 00 00 01 00 00 00 01 00 00 00 03 00 00 00 02 00 00 00 04 00 00 00 05",
         sent("associateRegionsForUpdates_OIH_ASRSPL"));
}

#ifndef CONTRACT_SANITIZED // which would complain of the value before the library sees it
TEST_F(Edges, everyOtherCallbackModelIsImmediate)
{
   Federate federate;
   for (int const other : {2, 7}) {
      takeHandle();
      federate.rti->connect(*federate.callbacks, static_cast<CallbackModel>(other));
      EXPECT_EQ(integer(2).bytes, script::lastBody("connect_FA_CM_S").bytes.substr(4, 4));
   }
}
#endif

// A connect that fails has already replaced the ambassador and taken a handle.
TEST_F(Edges, connectStoresTheAmbassadorFirst)
{
   Federate federate;
   CallbackRecord record;
   auto const other = makeRecorder(record);
   script::answerThrow("connect_FA_CM_S", exceptions + "AlreadyConnected", L"twice");
   int const refused = takeHandle();
   EXPECT_THROW(federate.rti->connect(*other, HLA_EVOKED), AlreadyConnected);
   EXPECT_EQ(integer(refused).bytes, script::lastBody("connect_FA_CM_S").bytes.substr(0, 4));
   federate.fire("federationSaved", Wire{});
   EXPECT_EQ(1, record.calls);
   EXPECT_EQ(0, federate.record.calls);
   // Both handles lead to the one ambassador.
   script::fire("federationSaved_Native", frame(refused, Wire{}));
   EXPECT_EQ(2, record.calls);
}

TEST_F(Edges, theEndDisconnectsWhateverTheState)
{
   std::unique_ptr<RTIambassador> rti = newAmbassador();
   script::answerThrow("disconnect", exceptions + "FederateIsExecutionMember", L"still in");
   testing::internal::CaptureStderr();
   rti.reset();
   EXPECT_EQ("", testing::internal::GetCapturedStderr());
   ASSERT_EQ(1, script::totalCalls());
   EXPECT_EQ("disconnect", script::calledMethod(0));
}

TEST_F(Edges, joinAsksForTheTimeOnlyWhenItHasSucceeded)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   script::forgetCalls();
   script::answerThrow(
         "joinFederationExecution_S_S_URLX", exceptions + "CouldNotOpenFDD", L"no such file");
   EXPECT_THROW(federate.rti->joinFederationExecution(L"T", L"F"), CouldNotOpenFDD);
   EXPECT_EQ(1, script::totalCalls());

   // The factory of the join before is still there.
   HLAinteger64Time time(1);
   script::answerBytes("queryLogicalTime", longInteger(5).bytes);
   federate.rti->queryLogicalTime(time);
   EXPECT_EQ(5, time.getTime());
}

// The join has succeeded by then; nothing is undone.
TEST_F(Edges, joinFailsUntranslatedWithoutTheNameOfTheTime)
{
   Federate federate;
   script::forgetCalls();
   script::answerThrow("getTimeFactory", exceptions + "NotConnected", L"gone");
   testing::internal::CaptureStderr();
   try {
      federate.rti->joinFederationExecution(L"N", L"T", L"F");
      ADD_FAILURE() << "joined";
   } catch (RTIinternalError const& e) {
      EXPECT_EQ(L"hla.rti1516e.exceptions.NotConnected: gone", e.what());
   }
   testing::internal::GetCapturedStderr();
   EXPECT_EQ(2, script::totalCalls());
   EXPECT_EQ("joinFederationExecution_S_S_S_URLX", script::calledMethod(0));
   EXPECT_EQ("getTimeFactory", script::calledMethod(1));
}

TEST_F(Edges, everyJoinReplacesTheTimeFactory)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   federate.rti->resignFederationExecution(NO_ACTION);
   federate.fire("timeAdvanceGrant_LT", longInteger(6));
   EXPECT_EQ(Texts{"HLAinteger64Time time 00 00 00 00 00 00 00 06"}, federate.record.arguments);
   federate.join(L"");
   federate.fire("timeAdvanceGrant_LT", longInteger(6));
   EXPECT_EQ(Texts{"HLAfloat64Time time 00 00 00 00 00 00 00 06"}, federate.record.arguments);
}

// Before a join nobody can decode a time; null is none of its own either, but for the two queries
// that say so.
TEST_F(Edges, timesThatCannotBeReadAreTold)
{
   Federate federate;
   HLAinteger64Time time(3);
   HLAinteger64Interval interval(4);
   struct Row {
      char const* method;
      std::function<void()> query;
      bool mayBeNull;
   };
   Row const rows[] = {{"queryGALT", [&] { federate.rti->queryGALT(time); }, true},
         {"queryLITS", [&] { federate.rti->queryLITS(time); }, true},
         {"queryLogicalTime", [&] { federate.rti->queryLogicalTime(time); }, false},
         {"queryLookahead", [&] { federate.rti->queryLookahead(interval); }, false}};
   std::wstring const noFactory = L"There is no time factory to decode the RTI's answer with";
   for (Row const& row : rows) {
      SCOPED_TRACE(row.method);
      script::answerBytes(row.method, longInteger(5).bytes);
      EXPECT_EQ(noFactory, failure(row.query));
      EXPECT_EQ(row.mayBeNull ? L"" : noFactory, failure(row.query)); // null now
   }
   federate.join(L"nothing");
   for (Row const& row : rows) {
      SCOPED_TRACE(row.method);
      EXPECT_EQ(row.mayBeNull ? L"" : L"The RTI answered null where a time or an interval was due",
            failure(row.query));
   }
   script::answerBytes("queryGALT", longInteger(5).bytes);
   EXPECT_EQ(L"The time factory made nothing of the RTI's answer", failure(rows[0].query));
   EXPECT_EQ(3, time.getTime());
   EXPECT_EQ(4, interval.getInterval());
}

TEST_F(Edges, timeFactoriesBelongToTheFederate)
{
   script::answerString("getTimeFactory", L"HLAfloat64Time", true);
   std::unique_ptr<LogicalTimeFactory> const one(ambassador().getTimeFactory().release());
   std::unique_ptr<LogicalTimeFactory> const two(ambassador().getTimeFactory().release());
   EXPECT_NE(one.get(), two.get());
   EXPECT_EQ(2, script::totalCalls());
}

TEST_F(Edges, handlesAreDecodedWithoutJava)
{
   std::unique_ptr<RTIambassador> const rti = newAmbassador();
   script::forgetCalls();
   VariableLengthData const encoded("\xFF\xFF\xFF\xFE", 4);
   EXPECT_EQ("FederateHandle<4294967294>", show(rti->decodeFederateHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeObjectClassHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeInteractionClassHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeObjectInstanceHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeAttributeHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeParameterHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeDimensionHandle(encoded)));
   EXPECT_EQ("HandleKind<4294967294>", show(rti->decodeRegionHandle(encoded)));
   EXPECT_EQ("MessageRetractionHandle<9> 00 00 00 09 00 00 00 01 78",
         show(rti->decodeMessageRetractionHandle(VariableLengthData("\0\0\0\x9\0\0\0\1x", 9))));
   EXPECT_EQ(0, script::totalCalls());
}

TEST_F(Edges, servicesAttachTheirThread)
{
   script::answerInt("getDimensionHandle_S", 12);
   std::string answered;
   std::thread([&] { answered = show(ambassador().getDimensionHandle(L"depth")); }).join();
   EXPECT_EQ("HandleKind<12>", answered);
   EXPECT_EQ(text(L"depth").whole(), script::lastBody("getDimensionHandle_S").bytes);
}
