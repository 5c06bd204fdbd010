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
      std::vector<int> codes;
      char const* decoder;
   } const rows[] = {
         {"synchronizationPointRegistrationFailed_S_SPFR", text(L""), {-1, 2},
               "decodeSyncFailureReason"},
         {"federationNotSaved_SFR", Wire{}, {-1, 6}, "decodeSaveFailureReason"},
         {"federationNotRestored_RFR", Wire{}, {-1, 5}, "decodeRestoreFailureReason"},
         {"federationSaveStatusResponse_FHSSPX", integer(1) + integer(7), {-1, 4},
               "decodeSaveStatus"},
         {"federationRestoreStatusResponse_FRSX", integer(1) + integer(7) + integer(7), {-1, 6},
               "decodeRestoreStatus"},
         {"removeObjectInstance_OIH_BX_OT_FASRI", integer(7) + block(""), {-1, 2},
               "decodeOrderType"},
         {"confirmInteractionTransportationTypeChange_ICH_TTH", integer(7), {0, 3},
               "decodeTransportationType"},
   };
   for (auto const& row : rows) {
      for (int const code : row.codes) {
         expectDeath([&] { fireFields(row.operation, row.ahead + integer(code), nullptr); },
               assertion("false", "gen/cpp/Decoder", row.decoder));
      }
   }
}

TEST_F(DeathTest, codesOfResults)
{
   struct {
      char const* method;
      std::vector<jint> codes;
      void (*ask)(RTIambassador& rti);
      char const* conversion;
   } const rows[] = {
         {"getOrderType_S", {-1, 2}, [](RTIambassador& rti) { rti.getOrderType(L""); },
               "returnOrderType"},
         {"getTransportationTypeHandle_S", {0, 3},
               [](RTIambassador& rti) { rti.getTransportationType(L""); },
               "returnTransportationType"},
   };
   for (auto const& row : rows) {
      for (jint const code : row.codes) {
         auto const act = [&] {
            Federate federate;
            script::answerInt(row.method, code);
            row.ask(*federate.rti);
         };
         expectDeath(act, assertion("false", "gen/cpp/Encoder", row.conversion));
      }
   }
}

TEST_F(DeathTest, enumeratorsWithoutACode)
{
   typedef RTIambassador RTI;
   struct {
      std::vector<int> values;
      void (*send)(RTI& rti, int value);
      char const* encoder;
   } const rows[] = {
         {{0, 3}, [](RTI& rti, int value) { rti.getOrderName(OrderType(value)); },
               "encodeOrderType"},
         {{0, 3}, [](RTI& rti, int value) { rti.getTransportationName(TransportationType(value)); },
               "encodeTransportationType"},
         {{6, 7}, [](RTI& rti, int value) { rti.resignFederationExecution(ResignAction(value)); },
               "encodeResignAction"},
         {{7}, [](RTI& rti, int value) { rti.normalizeServiceGroup(ServiceGroup(value)); },
               "encodeServiceGroup"},
   };
   for (auto const& row : rows) {
      for (int const value : row.values) {
         expectDeath([&] { row.send(*Federate().rti, value); },
               assertion("false", "gen/cpp/Encoder", row.encoder));
      }
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
   using HLAinteger64Time::operator=; // of which g++ 14 finds the virtual ones hidden otherwise

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
