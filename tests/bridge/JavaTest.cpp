// What only a Java VM shows: its class hierarchy, its threads, and how a process with it ends.
#include "tests/bridge/Rows.h"
#include <RTI/Exception.h>
#include <RTI/NullFederateAmbassador.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <limits>
#include <thread>

using namespace rti1516e;
using namespace net;

namespace {

// What the federate catches when Java throws one of the stand-in's odd exceptions.
std::wstring caught(std::string const& className, std::wstring const& message)
{
   ambassador();
   java::reset();
   java::answer("disconnect", {'X', message, "skerry/tarn1516e/standin/" + className, {}});
   try {
      ambassador().disconnect();
   } catch (RTIinternalError const& e) {
      return e.what();
   }
   return L"nothing";
}

} // namespace

TEST(Java, exceptionsAreCaughtByTheirSuperclassesRung)
{
   EXPECT_EQ(L"sub", caught("SubclassedRTIinternalError", L"sub"));
   EXPECT_EQ(L"skerry.tarn1516e.standin.SilentException", caught("SilentException", L"unheard"));
}

// The plan's letters say what getMessage and toString do: raise, answer null, or a text. A script
// is not taken while an exception is pending.
TEST(Java, nothingIsPendingWhateverATextRaises)
{
   struct {
      wchar_t const* plan;
      wchar_t const* rung;
      wchar_t const* stranger;
   } const rows[] = {{L"rt", L"t", L"t"}, {L"nt", L"t", L"t"}, {L"rr", L"", L""}, {L"nr", L"", L""},
         {L"rn", L"", L""}, {L"nn", L"", L""}, {L"mr", L"m", L""}};
   for (auto const& row : rows) {
      EXPECT_EQ(row.rung, caught("UnreadableException", row.plan));
      testing::internal::CaptureStderr();
      EXPECT_EQ(row.stranger, caught("UnreadableException$Stranger", row.plan));
      EXPECT_EQ(0U, testing::internal::GetCapturedStderr().find("Unhandled exception\n"));
   }
}

// Whoever watches the VM's warnings waits for the one that the call brings.
TEST(Java, isTheVmThatWasAskedForAndChecksCalls)
{
   ambassador();
   char const* const home = std::getenv("NET_JDK");
   ASSERT_NE(nullptr, home);
   Dl_info library;
   ASSERT_NE(0, dladdr(dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"), &library));
   EXPECT_EQ(
         std::string(home) + "/lib/server", std::string(library.dli_fname, std::strlen(home) + 11));
   java::callUnchecked();
}

// ---- Several threads at once, and the ends of a process

namespace {

char const scopeNative[] = "attributesInScope_OIH_AHS_Native";

// A federate for several threads.
class Counter : public NullFederateAmbassador {
public:
   Counter() : rti(newAmbassador())
   {
      java::reset();
      rti->connect(*this, HLA_EVOKED);
      _frame = frame(connectedHandle(), fieldsOf(scopeNative, 0));
   }

   void attributesInScope(ObjectInstanceHandle, AttributeHandleSet const& attributes) override
   {
      delivered += static_cast<int>(attributes.size());
      if (inside) {
         inside();
      }
   }

   void deliver(bool onNewThread = false)
   {
      java::fire(scopeNative, _frame, onNewThread);
   }

   void useServices(int times)
   {
      for (int i = 0; i < times; ++i) {
         rti->getObjectClassName(rti->getObjectClassHandle(L"A"));
         ++answered;
      }
   }

   // On threads that nobody waits for.
   void startTraffic()
   {
      for (int i = 0; i < 4; ++i) {
         std::thread([this] { useServices(std::numeric_limits<int>::max()); }).detach();
      }
      while (answered < 100) {
         std::this_thread::yield();
      }
   }

   std::atomic<int> answered{0};
   std::atomic<int> delivered{0};
   void (*inside)() = nullptr;
   std::unique_ptr<RTIambassador> const rti;

private:
   std::string _frame;
};

void expectEnd(std::function<void(Counter&)> const& leave, int code)
{
   GTEST_FLAG_SET(death_test_style, "threadsafe");
   EXPECT_EXIT(leave(*new Counter), testing::ExitedWithCode(code), testing::MatchesRegex(""));
}

} // namespace

TEST(Java, severalThreadsShareAnAmbassador)
{
   Counter federate;
   for (int round = 0; round < 20; ++round) {
      std::vector<std::thread> threads;
      for (int i = 0; i < 4; ++i) {
         threads.emplace_back([&federate] {
            federate.useServices(50);
            federate.deliver();
         });
      }
      for (std::thread& thread : threads) {
         thread.join();
      }
   }
   EXPECT_EQ(20 * 4 * 50, federate.answered);
   EXPECT_EQ(20 * 4, federate.delivered);
}

TEST(DeathTest, processesEndAsTheFederateSays)
{
   expectEnd(
         [](Counter& federate) {
            static std::unique_ptr<Counter> const destroyedByExit(&federate);
            federate.deliver();
            std::exit(4);
         },
         4);
   expectEnd(
         [](Counter& federate) {
            federate.startTraffic();
            std::exit(5);
         },
         5);
   for (bool const onNewThread : {false, true}) {
      expectEnd(
            [=](Counter& federate) {
               federate.inside = [] { std::exit(6); };
               federate.deliver(onNewThread);
            },
            6);
   }
}
