// Every native against its row: what Java sends in a frame reaches the federate, and what the
// federate throws reaches Java.
#include "tests/contract/Rows.h"
#include "tests/support/Script.h"
#include <RTI/Exception.h>
#include <RTI/NullFederateAmbassador.h>

#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace rti1516e;
using namespace contract;

namespace {

class Callbacks : public testing::Test {
protected:
   Callbacks()
   {
      ambassador();
      script::reset();
   }
};

void deliverEveryCallback(Way way, wchar_t const* timeName,
      std::wstring (*fire)(std::string const&, std::string const&))
{
   Federate federate;
   federate.join(timeName);
   Federate bystander;
   for (CallbackRow const& row : callbackRows()) {
      for (int set = 0; set < sets; ++set) {
         SCOPED_TRACE(row.javaName + (", set " + std::to_string(set)));
         Fields fields(way, set);
         Texts const expected = row.arguments(fields);
         federate.record = CallbackRecord();
         EXPECT_EQ(L"",
               fire(row.javaName + std::string("_Native"), frame(federate.handle, fields.body())));
         ASSERT_EQ(1, federate.record.calls);
         EXPECT_EQ(row.javaName, federate.record.operation);
         ASSERT_EQ(expected.size(), federate.record.arguments.size());
         for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ("", difference(expected[i], federate.record.arguments[i]))
                  << "argument " << i << ": expected " << expected[i].substr(0, 200) << "\n got "
                  << federate.record.arguments[i].substr(0, 200);
         }
      }
   }
   EXPECT_EQ(0, bystander.record.calls);
}

struct Thrown {
   void (*raise)();
   wchar_t const* text; // in Java
};

Thrown const knownKinds[] = {
      {[] { throw FederateInternalError(L"internal \x141"); }, L"internal A"},
      {[] { throw NotConnected(L"not connected"); }, L"not connected"},
      {[] { throw RTIinternalError(L""); }, L""},
      {[] { throw std::out_of_range("range"); }, L"range"},
      {[] { throw std::string("x"); }, L"x"},
};

Thrown const unknownKinds[] = {
      {[] { throw 42; }, L"Unknown C++ exception"},
      {[] { throw std::wstring(L"wide"); }, L"Unknown C++ exception"},
      {[] { throw "literal"; }, L"Unknown C++ exception"},
};

void throwInEveryCallback(Thrown const& thrown)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   federate.record.inside = thrown.raise;
   for (CallbackRow const& row : callbackRows()) {
      SCOPED_TRACE(row.javaName);
      Fields fields(Way::IN_INTEGER_TIME, 0);
      row.arguments(fields);
      EXPECT_EQ(std::wstring(L"hla.rti1516e.exceptions.FederateInternalError\n") + thrown.text,
            federate.fire(row.javaName, fields.body()));
      EXPECT_EQ(row.javaName, federate.record.operation);
   }
}

} // namespace

TEST_F(Callbacks, arriveWithIntegerTime)
{
   deliverEveryCallback(Way::IN_INTEGER_TIME, L"HLAinteger64Time", script::fire);
}

TEST_F(Callbacks, arriveWithFloatTime)
{
   deliverEveryCallback(Way::IN_FLOAT_TIME, L"HLAfloat64Time", script::fire);
}

TEST_F(Callbacks, arriveOnAThreadOfJava)
{
   deliverEveryCallback(Way::IN_INTEGER_TIME, L"HLAinteger64Time", script::fireOnNewThread);
}

TEST_F(Callbacks, withoutATimeNeedNoJoin)
{
   Federate federate;
   int delivered = 0;
   for (CallbackRow const& row : callbackRows()) {
      if (!row.hasTime) {
         Fields fields(Way::IN_INTEGER_TIME, 1);
         Texts const expected = row.arguments(fields);
         EXPECT_EQ(L"", federate.fire(row.javaName, fields.body())) << row.javaName;
         EXPECT_EQ(expected, federate.record.arguments) << row.javaName;
         ++delivered;
      }
   }
   EXPECT_EQ(50, delivered);
}

namespace {

class TagHolder : public NullFederateAmbassador {
public:
   void requestAttributeOwnershipRelease(ObjectInstanceHandle, AttributeHandleSet const&,
         VariableLengthData const& theUserSuppliedTag) override
   {
      hasStorage = theUserSuppliedTag.data() != nullptr;
      size = theUserSuppliedTag.size();
   }

   bool hasStorage = false;
   unsigned long size = 99;
};

} // namespace

TEST_F(Callbacks, giveAnEmptyTagStorageToo)
{
   Federate federate;
   TagHolder holder;
   int const handle = takeHandle();
   federate.rti->connect(holder, HLA_EVOKED);
   script::fire("requestAttributeOwnershipRelease_OIH_AHS_BX_Native",
         frame(handle, integer(7) + integer(0) + block("")));
   EXPECT_TRUE(holder.hasStorage);
   EXPECT_EQ(0U, holder.size);
}

namespace {

// Lets another reflection arrive inside the first.
class Nester : public NullFederateAmbassador {
public:
   using NullFederateAmbassador::reflectAttributeValues;

   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const& values,
         VariableLengthData const& tag, OrderType, TransportationType,
         SupplementalReflectInfo) override
   {
      std::string const next = inner;
      inner.clear();
      if (!next.empty()) {
         script::fire(native, next);
      }
      std::string text = bytesOf(tag);
      for (auto const& entry : values) {
         text += " " + std::to_string(entry.first.hash() / 37) + bytesOf(entry.second);
      }
      seen.push_back(text);
   }

   static std::string bytesOf(VariableLengthData const& data)
   {
      return std::string(static_cast<char const*>(data.data()), data.size());
   }

   std::string const native = "reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native";
   std::string inner;
   Texts seen;
};

} // namespace

// Whatever the one before left behind, and while another is still at work.
TEST_F(Callbacks, areEachOthersNeighbours)
{
   Federate federate;
   Nester nester;
   int const handle = takeHandle();
   federate.rti->connect(nester, HLA_EVOKED);
   auto const reflection = [&](std::vector<Wire> const& values, std::string const& tag) {
      return frame(handle,
            integer(1) + counted(values) + block(tag) + integer(0) + integer(1) + integer(0)
                  + integer(0));
   };
   Wire const one = integer(1), two = integer(2), three = integer(3);
   std::string const usual = reflection({one + block("a"), two + block("bc")}, "tag");
   struct Row {
      std::string frame;
      char const* seen;
   };
   Row const rows[] = {{usual, "tag 1a 2bc"}, {usual, "tag 1a 2bc"},
         {reflection({one + block("xyz"), two + block("")}, ""), " 1xyz 2"},
         {reflection({two + block("b"), one + block("a"), two + block("c")}, "t"), "t 1a 2c"},
         {reflection({one + block("a")}, "t"), "t 1a"}, {reflection({}, "t"), "t"},
         {reflection({one + block("a"), three + block("c")}, "t"), "t 1a 3c"}};
   for (Row const& row : rows) {
      nester.seen.clear();
      nester.inner = reflection({one + block("A"), two + block("BC")}, "inner");
      script::fire(nester.native, row.frame);
      EXPECT_EQ((Texts{"inner 1A 2BC", row.seen}), nester.seen);
   }
}

TEST_F(Callbacks, turnExceptionsIntoFederateInternalErrors)
{
   for (Thrown const& thrown : knownKinds) {
      throwInEveryCallback(thrown);
   }
   for (Thrown const& thrown : unknownKinds) {
      throwInEveryCallback(thrown);
   }
}

TEST_F(Callbacks, turnKnownExceptionsAlsoWhenOthersMayPass)
{
   setenv("TARN1516_DONTCATCHALL", "", 1);
   for (Thrown const& thrown : knownKinds) {
      throwInEveryCallback(thrown);
   }
   unsetenv("TARN1516_DONTCATCHALL");
   throwInEveryCallback(unknownKinds[0]); // the last ambassador's setting counts
}

// A service from inside a callback, on the thread that delivers it.
TEST_F(Callbacks, mayCallServices)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   for (auto fire : {script::fire, script::fireOnNewThread}) {
      script::answerInt("getObjectClassHandle_S", 77);
      script::record(true);
      std::string answered, refused;
      federate.record.inside = [&] {
         answered = show(federate.rti->getObjectClassHandle(L"A"));
         script::answerThrow(
               "getObjectClassHandle_S", "hla/rti1516e/exceptions/NameNotFound", L"no B");
         try {
            federate.rti->getObjectClassHandle(L"B");
         } catch (NameNotFound const& e) {
            refused = show(e.what());
         }
      };
      EXPECT_EQ(L"", fire("timeAdvanceGrant_LT_Native", frame(federate.handle, longInteger(3))));
      EXPECT_EQ("HandleKind<77>", answered);
      EXPECT_EQ("no B", refused);
      EXPECT_EQ(text(L"B").whole(), script::lastBody("getObjectClassHandle_S").bytes);
      EXPECT_EQ(Texts{"HLAinteger64Time time 00 00 00 00 00 00 00 03"}, federate.record.arguments);
   }
}

// The stand-in's own federation delivers here, inside evokeCallback or on a thread of Java.
TEST_F(Callbacks, mayCallServicesInBothModels)
{
   for (CallbackModel const model : {HLA_EVOKED, HLA_IMMEDIATE}) {
      SCOPED_TRACE(model);
      Federate federate;
      script::reset();
      federate.rti->disconnect();
      std::mutex mutex;
      std::condition_variable delivered;
      std::string answered;
      std::thread::id thread;
      federate.record.inside = [&] {
         std::wstring const name = federate.rti->getObjectClassName(
               federate.rti->getObjectClassHandle(L"HLAobjectRoot"));
         std::lock_guard<std::mutex> const lock(mutex);
         answered = show(name);
         thread = std::this_thread::get_id();
         delivered.notify_one();
      };
      takeHandle();
      federate.rti->connect(*federate.callbacks, model);
      federate.rti->createFederationExecution(L"models", OBJECT_MODEL);
      federate.rti->joinFederationExecution(L"type", L"models");
      federate.rti->reserveObjectInstanceName(L"buoy");
      if (model == HLA_EVOKED) {
         federate.rti->evokeCallback(10);
      }
      std::unique_lock<std::mutex> lock(mutex);
      EXPECT_TRUE(
            delivered.wait_for(lock, std::chrono::seconds(10), [&] { return !answered.empty(); }));
      EXPECT_EQ("HLAobjectRoot", answered);
      EXPECT_EQ(model == HLA_EVOKED, thread == std::this_thread::get_id());
      EXPECT_EQ("objectInstanceNameReservationSucceeded_S", federate.record.operation);
      lock.unlock();
      federate.rti->resignFederationExecution(NO_ACTION);
      federate.rti->destroyFederationExecution(L"models");
   }
}
