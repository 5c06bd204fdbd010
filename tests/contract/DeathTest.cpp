// What ends the process, each in a child of its own whose standard error stream is compared whole.
#include "tests/contract/Rows.h"
#include "tests/support/Script.h"
#include <RTI/RTIambassadorFactory.h>
#include <RTI/time/HLAinteger64Time.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace rti1516e;
using namespace contract;

namespace {

// The platform's report of a failed assertion, as a regular expression.
std::string assertion(
      std::string const& condition, std::string const& file, std::string const& function)
{
#ifdef __APPLE__
   return "Assertion failed: \\(" + condition + "\\), function " + function + ", file \\.\\./"
         + file + "\\.cpp, line [0-9]+\\.\n";
#else
   return "[^\n]*: \\.\\./" + file + "\\.cpp:[0-9]+: " + function + ": Assertion `" + condition
         + "' failed\\.\n";
#endif
}

void expectDeath(std::function<void()> const& act, std::string const& errors)
{
   EXPECT_EXIT(act(), testing::KilledBySignal(SIGABRT), testing::MatchesRegex(errors));
}

void fireBare(std::string const& native, std::string const& bytes)
{
   Federate federate;
   script::fire(native, bytes);
}

void fireFields(std::string const& operation, Wire const& fields, wchar_t const* timeName)
{
   Federate federate;
   if (timeName != nullptr) {
      federate.join(timeName);
   }
   federate.fire(operation, fields);
}

class DeathTest : public testing::Test {
protected:
   DeathTest()
   {
      GTEST_FLAG_SET(death_test_style, "threadsafe");
   }
};

std::string const natives = "gen/cpp_generated/FederateAmbassadorC";
std::string const nativePrefix = "Java_skerry_tarn1516e_FederateAmbassadorC2007_";

} // namespace

TEST_F(DeathTest, wrongMagic)
{
   std::string const whole = frame(1, Wire{});
   for (std::string const name : {"federationSaved_Native", "federationRestored_Native"}) {
      expectDeath([&] { fireBare(name, "\x60\x61\x62\x63" + whole.substr(4)); },
            assertion("preMagic == PRE_MAGIC", natives, nativePrefix + name));
      expectDeath([&] { fireBare(name, whole.substr(0, 8) + "\x59\x58\x57\x55"); },
            assertion("postMagic == POST_MAGIC", natives, nativePrefix + name));
   }
}

TEST_F(DeathTest, timeThatNobodyCanDecode)
{
   std::string const name = "timeAdvanceGrant_LT";
   std::string const errors =
         assertion("postMagic == POST_MAGIC", natives, nativePrefix + name + "_Native");
   expectDeath([&] { fireFields(name, longInteger(5), nullptr); }, errors);
   expectDeath([&] { fireFields(name, longInteger(5), L"Beaufort"); }, errors);
}

// No clause of the native covers a decoder.
TEST_F(DeathTest, fieldOfNegativeSize)
{
   expectDeath([] { fireFields("connectionLost_S", integer(-1), nullptr); },
         "terminate called after throwing an instance of 'std::bad_alloc'\n[^\n]*\n");
}

TEST_F(DeathTest, codesFromJava)
{
   struct {
      char const* operation;
      Wire ahead;
      int last; // code
      char const* decoder;
   } const rows[] = {
         {"synchronizationPointRegistrationFailed_S_SPFR", text(L""), 1, "decodeSyncFailureReason"},
         {"federationNotSaved_SFR", Wire{}, 5, "decodeSaveFailureReason"},
         {"federationNotRestored_RFR", Wire{}, 4, "decodeRestoreFailureReason"},
         {"federationSaveStatusResponse_FHSSPX", integer(1) + integer(7), 3, "decodeSaveStatus"},
         {"federationRestoreStatusResponse_FRSX", integer(1) + integer(7) + integer(7), 5,
               "decodeRestoreStatus"},
         {"removeObjectInstance_OIH_BX_OT_FASRI", integer(7) + block(""), 1, "decodeOrderType"},
         {"confirmInteractionTransportationTypeChange_ICH_TTH", integer(7), 2,
               "decodeTransportationType"},
   };
   for (auto const& row : rows) {
      int const tooLow = row.decoder == std::string("decodeTransportationType") ? 0 : -1;
      for (int const code : {tooLow, row.last + 1}) {
         SCOPED_TRACE(row.operation);
         expectDeath([&] { fireFields(row.operation, row.ahead + integer(code), nullptr); },
               assertion("false", "gen/cpp/Decoder", row.decoder));
      }
   }
}

TEST_F(DeathTest, codesOfResults)
{
   for (int const code : {-1, 2}) {
      expectDeath(
            [&] {
               Federate federate;
               script::answerInt("getOrderType_S", code);
               federate.rti->getOrderType(L"");
            },
            assertion("false", "gen/cpp/Encoder", "returnOrderType"));
   }
   for (int const code : {0, 3}) {
      expectDeath(
            [&] {
               Federate federate;
               script::answerInt("getTransportationTypeHandle_S", code);
               federate.rti->getTransportationType(L"");
            },
            assertion("false", "gen/cpp/Encoder", "returnTransportationType"));
   }
}

TEST_F(DeathTest, enumeratorsWithoutACode)
{
   struct {
      int value;
      void (*send)(RTIambassador& rti, int value);
      char const* encoder;
   } const rows[] = {
         {0, [](RTIambassador& rti, int value) { rti.getOrderName(OrderType(value)); },
               "encodeOrderType"},
         {3, [](RTIambassador& rti, int value) { rti.getOrderName(OrderType(value)); },
               "encodeOrderType"},
         {0,
               [](RTIambassador& rti, int value) {
                  rti.getTransportationName(TransportationType(value));
               },
               "encodeTransportationType"},
         {3,
               [](RTIambassador& rti, int value) {
                  rti.getTransportationName(TransportationType(value));
               },
               "encodeTransportationType"},
         {6,
               [](RTIambassador& rti, int value) {
                  rti.resignFederationExecution(ResignAction(value));
               },
               "encodeResignAction"},
         {7,
               [](RTIambassador& rti, int value) {
                  rti.setAutomaticResignDirective(ResignAction(value));
               },
               "encodeResignAction"},
         {7, [](RTIambassador& rti, int value) { rti.normalizeServiceGroup(ServiceGroup(value)); },
               "encodeServiceGroup"},
   };
   for (auto const& row : rows) {
      expectDeath([&] { row.send(*Federate().rti, row.value); },
            assertion("false", "gen/cpp/Encoder", row.encoder));
   }
}

TEST_F(DeathTest, javaMethodMissing)
{
   expectDeath(
         [] {
            setenv("CLASSPATH", LACKING_CLASS_PATH, 1);
            RTIambassadorFactory().createRTIambassador();
         },
         "Cannot locate retract_MRH\\.\n" + assertion("id != 0", "gen/cpp/BridgeObject", "bind"));
}

// ---- Exceptions outside a list

namespace {

// A federate's own time, which no time can be assigned to.
class Stubborn : public HLAinteger64Time {
public:
   LogicalTime& operator=(LogicalTime const&) RTI_THROW((InvalidLogicalTime)) override
   {
      throw InvalidLogicalTime(L"stubborn");
   }
};

void askForStubbornTime()
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   script::answerBytes("queryLogicalTime", longInteger(5).bytes);
   Stubborn time;
   federate.rti->queryLogicalTime(time);
}

} // namespace

TEST_F(DeathTest, exceptionOutsideAList)
{
   expectDeath(askForStubbornTime,
         "terminate called after throwing an instance of 'rti1516e::InvalidLogicalTime'\n");
}

TEST_F(DeathTest, exceptionOutsideAListWithTheFederatesHandler)
{
   EXPECT_EXIT(
         {
            std::set_unexpected([] {
               std::fputs("the federate's handler\n", stderr);
               _exit(7);
            });
            askForStubbornTime();
         },
         testing::ExitedWithCode(7), testing::MatchesRegex("the federate's handler\n"));
}

TEST_F(DeathTest, unknownExceptionThatIsNotToBeCaught)
{
   expectDeath(
         [] {
            setenv("TARN1516_DONTCATCHALL", "", 1);
            Federate federate;
            federate.record.inside = [] { throw 42; };
            federate.fire("federationSaved", Wire{});
         },
         "terminate called after throwing an instance of 'int'\n");
}

// ---- The table of handles, which only a fresh process can fill

namespace {

std::string connectedHandle(Federate& federate)
{
   federate.rti->connect(*federate.callbacks, HLA_EVOKED);
   return script::lastBody("connect_FA_CM_S").bytes.substr(0, 4);
}

void connectUntilTheTableIsFull()
{
   Federate federate; // took the first
   script::record(true);
   bool asExpected = true;
   for (int connect = 2; connect <= 4098; ++connect) {
      script::forgetCalls();
      int const handle = connect <= 4095 ? connect : 0;
      std::string const expected = integer(handle).bytes;
      if (connectedHandle(federate) != expected) {
         std::fprintf(stderr, "connect %d got another handle than %d\n", connect, handle);
         asExpected = false;
      }
   }
   _exit(asExpected ? 0 : 1);
}

} // namespace

TEST_F(DeathTest, tableOfHandlesIsFull)
{
   std::string const full = "No more FederateAmbassador handles\n";
   EXPECT_EXIT(connectUntilTheTableIsFull(), testing::ExitedWithCode(0),
         testing::MatchesRegex(full + full));
}
