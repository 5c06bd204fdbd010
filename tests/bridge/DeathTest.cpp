// What ends the process, each in a child of its own whose standard error stream is compared whole.
#include "tests/bridge/Rows.h"
#include <RTI/RTIambassadorFactory.h>
#include <RTI/time/HLAinteger64Time.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace rti1516e;
using namespace net;

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

std::string inNative(std::string const& condition, std::string const& native)
{
   return assertion(condition, "gen/cpp_generated/FederateAmbassadorC",
         "Java_skerry_tarn1516e_FederateAmbassadorC2007_" + native);
}

void expectDeath(std::function<void()> const& act, std::string const& errors)
{
   GTEST_FLAG_SET(death_test_style, "threadsafe");
   EXPECT_EXIT(act(), testing::KilledBySignal(SIGABRT), testing::MatchesRegex(errors));
}

void fire(std::string const& native, std::string const& fields, wchar_t const* timeName = nullptr)
{
   Federate federate;
   if (timeName != nullptr) {
      federate.join(timeName);
   }
   federate.fire(native, fields);
}

void fireBare(std::string const& native, std::string const& bytes)
{
   Federate const federate;
   java::fire(native, bytes);
}

} // namespace

TEST(DeathTest, framesThatJavaAndTheLibraryDisagreeOn)
{
   std::string const native = "federationSaved_Native";
   std::string const timed = "timeAdvanceGrant_LT_Native";
   std::string const whole = frame(1, "");
   expectDeath([&] { fireBare(native, "\x60\x61\x62\x63" + whole.substr(4)); },
         inNative("preMagic == PRE_MAGIC", native));
   expectDeath([&] { fireBare(native, whole.substr(0, 8) + "\x59\x58\x57\x55"); },
         inNative("postMagic == POST_MAGIC", native));
   // Times that nobody can decode.
   expectDeath(
         [&] { fire(timed, longInteger(5).bytes); }, inNative("postMagic == POST_MAGIC", timed));
   expectDeath([&] { fire(timed, longInteger(5).bytes, L"Beaufort"); },
         inNative("postMagic == POST_MAGIC", timed));
   // No clause of the native covers a decoder.
   expectDeath([] { fire("connectionLost_S_Native", integer(-1).bytes); },
         "terminate called after throwing an instance of 'std::bad_alloc'\n[^\n]*\n");
}

TEST(DeathTest, codesFromJava)
{
   std::string const word = integer(1).bytes;
   struct {
      char const* native;
      std::string ahead;
      std::vector<int> codes;
      char const* decoder;
   } const rows[] = {
         {"synchronizationPointRegistrationFailed_S_SPFR_Native", integer(0).bytes, {-1, 2},
               "decodeSyncFailureReason"},
         {"federationNotSaved_SFR_Native", "", {-1, 6}, "decodeSaveFailureReason"},
         {"federationNotRestored_RFR_Native", "", {-1, 5}, "decodeRestoreFailureReason"},
         {"federationSaveStatusResponse_FHSSPX_Native", word + word, {-1, 4}, "decodeSaveStatus"},
         {"federationRestoreStatusResponse_FRSX_Native", word + word + word, {-1, 6},
               "decodeRestoreStatus"},
         {"removeObjectInstance_OIH_BX_OT_FASRI_Native", word + integer(0).bytes, {-1, 2},
               "decodeOrderType"},
         {"confirmInteractionTransportationTypeChange_ICH_TTH_Native", word, {0, 3},
               "decodeTransportationType"},
   };
   for (auto const& row : rows) {
      for (int const code : row.codes) {
         expectDeath([&] { fire(row.native, row.ahead + integer(code).bytes); },
               assertion("false", "gen/cpp/Decoder", row.decoder));
      }
   }
}

// Of results, and of enumerators that have none.
TEST(DeathTest, codesOfServices)
{
   typedef RTIambassador RTI;
   struct {
      char const* method; // that answers with the code, or null
      std::vector<int> codes;
      void (*call)(RTI& rti, int code);
      char const* conversion;
   } const rows[] = {
         {"getOrderType_S", {-1, 2}, [](RTI& rti, int) { rti.getOrderType(L""); },
               "returnOrderType"},
         {"getTransportationTypeHandle_S", {0, 3},
               [](RTI& rti, int) { rti.getTransportationType(L""); }, "returnTransportationType"},
         {nullptr, {0, 3}, [](RTI& rti, int code) { rti.getOrderName(OrderType(code)); },
               "encodeOrderType"},
         {nullptr, {0, 3},
               [](RTI& rti, int code) { rti.getTransportationName(TransportationType(code)); },
               "encodeTransportationType"},
         {nullptr, {6, 7},
               [](RTI& rti, int code) { rti.resignFederationExecution(ResignAction(code)); },
               "encodeResignAction"},
         {nullptr, {7}, [](RTI& rti, int code) { rti.normalizeServiceGroup(ServiceGroup(code)); },
               "encodeServiceGroup"},
   };
   for (auto const& row : rows) {
      for (int const code : row.codes) {
         expectDeath(
               [&] {
                  Federate const federate;
                  if (row.method != nullptr) {
                     java::answer(row.method, {'I', L"", "", {code}});
                  }
                  row.call(*federate.rti, code);
               },
               assertion("false", "gen/cpp/Encoder", row.conversion));
      }
   }
}

// ---- Exceptions outside a list, or that nobody is to catch

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
   java::answer("queryLogicalTime", {'B', L"", longInteger(5).bytes, {}});
   Stubborn time;
   federate.rti->queryLogicalTime(time);
}

} // namespace

TEST(DeathTest, exceptionsThatMayNotPass)
{
   expectDeath(askForStubbornTime,
         "terminate called after throwing an instance of 'rti1516e::InvalidLogicalTime'\n");
   expectDeath(
         [] {
            setenv("TARN1516_DONTCATCHALL", "", 1);
            Federate federate;
            federate.record.inside = [] { throw 42; };
            federate.fire("federationSaved_Native", "");
         },
         "terminate called after throwing an instance of 'int'\n");
}

// ---- The table of handles, which only a fresh process can fill

namespace {

void connectUntilTheTableIsFull()
{
   Federate federate; // took the first
   bool asExpected = federate.handle == 1;
   for (int connect = 2; connect <= 4098; ++connect) {
      federate.rti->connect(*federate.callbacks, HLA_EVOKED);
      asExpected = asExpected && connectedHandle() == (connect <= 4095 ? connect : 0);
   }
   _exit(asExpected ? 0 : 1);
}

} // namespace

TEST(DeathTest, tableOfHandlesIsFull)
{
   GTEST_FLAG_SET(death_test_style, "threadsafe");
   std::string const full = "No more FederateAmbassador handles\n";
   EXPECT_EXIT(connectUntilTheTableIsFull(), testing::ExitedWithCode(0),
         testing::MatchesRegex(full + full));
}
