// Every native against its row: what Java sends in a frame reaches the federate, and what the
// federate throws reaches Java.
#include "tests/bridge/Reader.h"
#include "tests/bridge/Rows.h"
#include <RTI/Exception.h>
#include <RTI/NullFederateAmbassador.h>

#include <gtest/gtest.h>
#include <stdexcept>

using namespace rti1516e;
using namespace net;

namespace {

void deliverEveryCallback(net::Time time, wchar_t const* timeName, bool onNewThread)
{
   Federate federate;
   if (timeName != nullptr) {
      federate.join(timeName);
   }
   Federate bystander;
   for (std::string const& native : natives()) {
      for (int set = 0; set < 9; ++set) {
         std::string const sent = frame(federate.handle, fieldsOf(native, set));
         Prediction const expected = predict(native, sent, time, federate.handle);
         if (timeName == nullptr && expected.ending != Ending::DELIVERED) {
            continue; // it has a time
         }
         SCOPED_TRACE(native + " " + hex(sent));
         ASSERT_EQ(Ending::DELIVERED, expected.ending);
         federate.record = CallbackRecord();
         int const held = java::heldReferences();
         EXPECT_EQ(L"", java::fire(native, sent, onNewThread));
         EXPECT_EQ(held, java::heldReferences());
         ASSERT_EQ(1, federate.record.calls);
         EXPECT_EQ(native, federate.record.native);
         EXPECT_TRUE(expected.arguments == federate.record.arguments);
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
   for (std::string const& native : natives()) {
      SCOPED_TRACE(native);
      EXPECT_EQ(std::wstring(L"hla.rti1516e.exceptions.FederateInternalError\n") + thrown.text,
            federate.fire(native, fieldsOf(native, 0)));
      EXPECT_EQ(native, federate.record.native);
   }
}

} // namespace

TEST(Callbacks, arriveWithEveryTimeAndOnEveryThread)
{
   deliverEveryCallback(net::Time::INTEGER, L"HLAinteger64Time", false);
   deliverEveryCallback(net::Time::FLOAT, L"HLAfloat64Time", false);
   deliverEveryCallback(net::Time::INTEGER, L"HLAinteger64Time", true);
   deliverEveryCallback(net::Time::INTEGER, L"own", false); // a factory of the federate's
   deliverEveryCallback(net::Time::NONE, nullptr, false);
}

namespace {

// Lets another reflection arrive inside the first, and then looks at what the first brought.
class Nester : public NullFederateAmbassador {
public:
   using NullFederateAmbassador::reflectAttributeValues;

   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const& values,
         VariableLengthData const& tag, OrderType, TransportationType,
         SupplementalReflectInfo) override
   {
      std::string next;
      next.swap(inner);
      if (!next.empty()) {
         java::fire(native, next);
      }
      seen.push_back((wire(values) + wire(tag)).bytes);
   }

   std::string const native = "reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native";
   std::string inner;
   std::vector<std::string> seen;
};

} // namespace

// Whatever the one before left behind, and while another is still at work.
TEST(Callbacks, areEachOthersNeighbours)
{
   Federate federate;
   Nester nester;
   federate.rti->connect(nester, HLA_EVOKED);
   int const handle = connectedHandle();
   auto const reflection = [handle](std::vector<Wire> const& values, std::string const& tag) {
      Wire const none = integer(0);
      return frame(
            handle, (none + counted(values) + block(tag) + none + integer(1) + none + none).bytes);
   };
   auto const told = [&](std::string const& frame) {
      Prediction const expected = predict(nester.native, frame, net::Time::NONE, handle);
      return expected.arguments.at(1) + expected.arguments.at(2);
   };
   Wire const one = integer(1), two = integer(2), three = integer(3);
   std::string const usual = reflection({one + block("a"), two + block("bc")}, "tag");
   for (std::string const& outer :
         {usual, usual, reflection({one + block("xyz"), two + block("")}, ""),
               reflection({two + block("b"), one + block("a"), two + block("c")}, "t"),
               reflection({one + block("a")}, "t"), reflection({}, "t"),
               reflection({one + block("a"), three + block("c")}, "t")}) {
      std::string const inner = reflection({one + block("A"), two + block("BC")}, "inner");
      nester.inner = inner;
      nester.seen.clear();
      java::fire(nester.native, outer);
      EXPECT_EQ((std::vector<std::string>{told(inner), told(outer)}), nester.seen) << hex(outer);
   }
}

TEST(Callbacks, turnExceptionsIntoFederateInternalErrors)
{
   for (Thrown const& thrown : knownKinds) {
      throwInEveryCallback(thrown);
   }
   for (Thrown const& thrown : unknownKinds) {
      throwInEveryCallback(thrown);
   }
   setenv("TARN1516_DONTCATCHALL", "", 1); // the last ambassador's setting counts
   for (Thrown const& thrown : knownKinds) {
      throwInEveryCallback(thrown);
   }
   unsetenv("TARN1516_DONTCATCHALL");
   throwInEveryCallback(unknownKinds[0]);
}

// A service from inside a callback, on the thread that delivers it.
TEST(Callbacks, mayCallServices)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   for (bool const onNewThread : {false, true}) {
      std::string answered;
      std::wstring refused;
      federate.record.inside = [&] {
         java::answer("getObjectClassHandle_S", {'I', L"", "", {77}});
         answered = wire(federate.rti->getObjectClassHandle(L"A")).bytes;
         java::answer("getObjectClassHandle_S",
               {'X', L"no B", "hla/rti1516e/exceptions/NameNotFound", {}});
         try {
            federate.rti->getObjectClassHandle(L"B");
         } catch (NameNotFound const& e) {
            refused = e.what();
         }
      };
      EXPECT_EQ(L"",
            java::fire("timeAdvanceGrant_LT_Native", frame(federate.handle, longInteger(3).bytes),
                  onNewThread));
      EXPECT_EQ(integer(77).bytes, answered);
      EXPECT_EQ(L"no B", refused);
      EXPECT_EQ(wire(std::wstring(L"B")).whole(), java::takeCalls().back().body);
   }
}
