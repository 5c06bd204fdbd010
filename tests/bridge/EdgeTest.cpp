// What no table of rows tells: what an ambassador keeps from one call to the next.
#include "tests/bridge/Rows.h"
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <RTI/time/HLAlogicalTimeFactoryFactory.h>

#include <gtest/gtest.h>

using namespace rti1516e;
using namespace net;

namespace {

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

class OwnFactory : public HLAinteger64TimeFactory {};

class FactoryThatReadsNothing : public HLAinteger64TimeFactory {
public:
   using HLAinteger64TimeFactory::decodeLogicalTime;

   std::auto_ptr<LogicalTime> decodeLogicalTime(void*, size_t)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return std::auto_ptr<LogicalTime>();
   }
};

class Edges : public testing::Test {
protected:
   Edges()
   {
      ambassador();
      java::reset();
   }

   static void refuse(std::string const& method, std::string const& exception)
   {
      java::answer(method, {'X', L"told", "hla/rti1516e/exceptions/" + exception, {}});
   }

   static void answerTime(std::string const& method)
   {
      java::answer(method, {'B', L"", longInteger(5).bytes, {}});
   }
};

} // namespace

// In the place of the one that the library was built with.
std::auto_ptr<LogicalTimeFactory> LogicalTimeFactoryFactory::makeLogicalTimeFactory(
      std::wstring const& name)
{
   if (name == L"own") {
      return std::auto_ptr<LogicalTimeFactory>(new OwnFactory);
   }
   return name == L"nothing" ? std::auto_ptr<LogicalTimeFactory>(new FactoryThatReadsNothing)
                             : HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory(name);
}

#ifndef NET_SANITIZED // which would complain of the value before the library sees it
TEST_F(Edges, everyOtherCallbackModelIsImmediate)
{
   Federate federate;
   for (int const other : {2, 7}) {
      federate.rti->connect(*federate.callbacks, static_cast<CallbackModel>(other));
      EXPECT_EQ(integer(2).bytes, java::takeCalls().back().body.substr(4, 4));
   }
}
#endif

// The sign of the integer, and not only its bits.
TEST_F(Edges, handlesOfJavaAreSigned)
{
   RTIambassador& rti = ambassador();
   std::pair<char const*, std::function<std::wstring()>> const rows[] = {
         {"getFederateHandle_S", [&] { return rti.getFederateHandle(L"").toString(); }},
         {"getObjectClassHandle_S", [&] { return rti.getObjectClassHandle(L"").toString(); }},
         {"getInteractionClassHandle_S",
               [&] { return rti.getInteractionClassHandle(L"").toString(); }},
         {"getObjectInstanceHandle_S", [&] { return rti.getObjectInstanceHandle(L"").toString(); }},
         {"getAttributeHandle_OCH_S",
               [&] { return rti.getAttributeHandle(ObjectClassHandle(), L"").toString(); }},
         {"getParameterHandle_ICH_S",
               [&] { return rti.getParameterHandle(InteractionClassHandle(), L"").toString(); }},
         {"getDimensionHandle_S", [&] { return rti.getDimensionHandle(L"").toString(); }},
         {"createRegion_DHS", [&] { return rti.createRegion(DimensionHandleSet()).toString(); }}};
   for (auto const& row : rows) {
      java::answer(row.first, {'I', L"", "", {-2}});
      std::wstring const text = row.second();
      EXPECT_EQ(L"<-2>", text.substr(text.find(L'<'))) << row.first;
   }
}

// A connect that fails has already replaced the ambassador and taken a handle.
TEST_F(Edges, connectStoresTheAmbassadorFirst)
{
   Federate federate;
   CallbackRecord record;
   auto const other = makeRecorder(record);
   refuse("connect_FA_CM_S", "AlreadyConnected");
   EXPECT_THROW(federate.rti->connect(*other, HLA_EVOKED), AlreadyConnected);
   int const refused = connectedHandle();
   EXPECT_EQ(federate.handle + 1, refused);
   federate.fire("federationSaved_Native", "");
   EXPECT_EQ(1, record.calls);
   EXPECT_EQ(0, federate.record.calls);
   java::fire("federationSaved_Native", frame(refused, "")); // both lead to the one ambassador
   EXPECT_EQ(2, record.calls);
}

TEST_F(Edges, theEndDisconnectsWhateverTheState)
{
   std::unique_ptr<RTIambassador> rti = newAmbassador();
   int const held = java::heldReferences(); // the Java object's among them
   java::reset();
   refuse("disconnect", "FederateIsExecutionMember");
   testing::internal::CaptureStderr();
   rti.reset();
   EXPECT_EQ("", testing::internal::GetCapturedStderr());
   std::vector<java::Call> const calls = java::takeCalls();
   ASSERT_EQ(1U, calls.size());
   EXPECT_EQ("disconnect", calls[0].method);
   EXPECT_EQ(held == 0 ? 0 : held - 1, java::heldReferences());
}

TEST_F(Edges, joinAsksForTheTimeOnlyWhenItHasSucceeded)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   refuse("joinFederationExecution_S_S_URLX", "CouldNotOpenFDD");
   EXPECT_THROW(federate.rti->joinFederationExecution(L"T", L"F"), CouldNotOpenFDD);
   EXPECT_EQ(1U, java::takeCalls().size());

   HLAinteger64Time time(1); // the factory of the join before is still there
   answerTime("queryLogicalTime");
   federate.rti->queryLogicalTime(time);
   EXPECT_EQ(5, time.getTime());
}

// The join has succeeded by then; nothing is undone.
TEST_F(Edges, joinFailsUntranslatedWithoutTheNameOfTheTime)
{
   Federate federate;
   java::reset();
   refuse("getTimeFactory", "NotConnected");
   testing::internal::CaptureStderr();
   EXPECT_EQ(L"hla.rti1516e.exceptions.NotConnected: told",
         failure([&] { federate.rti->joinFederationExecution(L"N", L"T", L"F"); }));
   testing::internal::GetCapturedStderr();
   std::vector<java::Call> const calls = java::takeCalls();
   ASSERT_EQ(2U, calls.size());
   EXPECT_EQ("joinFederationExecution_S_S_S_URLX", calls[0].method);
   EXPECT_EQ("getTimeFactory", calls[1].method);
}

TEST_F(Edges, everyJoinReplacesTheTimeFactory)
{
   Federate federate;
   for (wchar_t const* const name : {L"HLAinteger64Time", L""}) {
      federate.join(name);
      federate.rti->resignFederationExecution(NO_ACTION);
      java::takeCalls();
      answerTime("queryLogicalTime");
      HLAinteger64Time integerTime;
      HLAfloat64Time floatTime;
      bool const isInteger = *name != L'\0';
      LogicalTime& time = isInteger ? static_cast<LogicalTime&>(integerTime) : floatTime;
      federate.rti->queryLogicalTime(time);
      EXPECT_EQ(longInteger(5).bytes, wire(time).bytes);
   }
}

// Before a join nobody can decode a time; null is none either, but for the two queries that say so.
TEST_F(Edges, timesThatCannotBeReadAreTold)
{
   Federate federate;
   HLAinteger64Time time(3);
   HLAinteger64Interval interval(4);
   struct {
      char const* method;
      std::function<void()> query;
      bool mayBeNull;
   } const rows[] = {{"queryGALT", [&] { federate.rti->queryGALT(time); }, true},
         {"queryLITS", [&] { federate.rti->queryLITS(time); }, true},
         {"queryLogicalTime", [&] { federate.rti->queryLogicalTime(time); }, false},
         {"queryLookahead", [&] { federate.rti->queryLookahead(interval); }, false}};
   std::wstring const noFactory = L"There is no time factory to decode the RTI's answer with";
   std::wstring const null = L"The RTI answered null where a time or an interval was due";
   for (auto const& row : rows) {
      answerTime(row.method);
      EXPECT_EQ(noFactory, failure(row.query)) << row.method;
      EXPECT_EQ(row.mayBeNull ? L"" : noFactory, failure(row.query)) << row.method; // null now
   }
   federate.join(L"nothing");
   for (auto const& row : rows) {
      EXPECT_EQ(row.mayBeNull ? L"" : null, failure(row.query)) << row.method;
   }
   answerTime("queryGALT");
   EXPECT_EQ(L"The time factory made nothing of the RTI's answer", failure(rows[0].query));
   EXPECT_EQ(3, time.getTime());
   EXPECT_EQ(4, interval.getInterval());
}
