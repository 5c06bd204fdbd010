// What many threads, exceptions and ambassadors leave behind. Each test prints what it found; how
// many there are of each is divided by RELIABILITY_DIVISOR.
#include "tests/contract/Wire.h"
#include "tests/reliability/FrameModel.h"
#include "tests/soak/Figures.h"
#include "tests/soak/Fire.h"
#include "tests/support/Script.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTIambassadorFactory.h>

#include <cstdlib>
#include <gtest/gtest.h>
#include <pthread.h>
#include <stdexcept>
#include <thread>

using namespace rti1516e;
using namespace soak;

namespace {

int share(int whole)
{
   char const* const divisor = std::getenv("RELIABILITY_DIVISOR");
   return whole / (divisor != nullptr ? std::atoi(divisor) : 1);
}

std::unique_ptr<RTIambassador> newAmbassador()
{
   return std::unique_ptr<RTIambassador>(RTIambassadorFactory().createRTIambassador().release());
}

class Load : public testing::Test {
protected:
   Load() : _rti(newAmbassador())
   {
      script::reset();
      script::scriptAll(true);
   }

   static Figures measured(std::string const& title)
   {
      Figures const figures = measure();
      print(title, figures);
      return figures;
   }

   std::unique_ptr<RTIambassador> const _rti;
};

void* callService(void* rti)
{
   static_cast<RTIambassador*>(rti)->enableCallbacks();
   return nullptr;
}

void* callServiceAndDetach(void* rti)
{
   callService(rti);
   JavaVM* vm = nullptr;
   environment()->GetJavaVM(&vm);
   vm->DetachCurrentThread();
   return nullptr;
}

void runThreads(int count, void* (*function)(void*), RTIambassador& rti)
{
   for (int i = 0; i < count; ++i) {
      pthread_t thread;
      ASSERT_EQ(0, pthread_create(&thread, nullptr, function, &rti));
      ASSERT_EQ(0, pthread_join(thread, nullptr));
   }
}

} // namespace

// The VM keeps a record of every thread that was attached and never detached.
TEST_F(Load, threadsThatEnd)
{
   int const count = share(10000);
   runThreads(share(1000), callServiceAndDetach, *_rti);
   Figures const before = measured("warm");
   runThreads(count, callServiceAndDetach, *_rti);
   Figures const detached = measured("threads detached");
   EXPECT_EQ(before.javaThreads, detached.javaThreads);
   EXPECT_EQ(before.localReferences, detached.localReferences);
   EXPECT_GT(8192, detached.residentKilobytes - before.residentKilobytes);
   runThreads(count, callService, *_rti);
   Figures const after = measured("threads not detached");
   EXPECT_EQ(before.javaThreads + count, after.javaThreads);
   EXPECT_EQ(before.localReferences, after.localReferences);
   EXPECT_EQ(before.nativeThreads, after.nativeThreads);
   EXPECT_GT(
         20.0 * count, static_cast<double>(after.residentKilobytes - detached.residentKilobytes));
   std::printf("each thread not detached: %.1f KB resident, %.2f KB of Java heap\n",
         static_cast<double>(after.residentKilobytes - detached.residentKilobytes) / count,
         static_cast<double>(after.heapKilobytes - detached.heapKilobytes) / count);
}

// Many alive at once, each of which calls services while the others come and go.
TEST_F(Load, threadsAtOnce)
{
   int const rounds = share(100);
   for (int round = 0; round < rounds; ++round) {
      std::vector<std::thread> threads;
      for (int i = 0; i < 20; ++i) {
         threads.emplace_back(callServiceAndDetach, _rti.get());
      }
      for (std::thread& thread : threads) {
         thread.join();
      }
   }
   Figures const figures = measured("threads at once");
   EXPECT_GT(100, figures.nativeThreads);
}

namespace {

// The last rung of the ladder, a subclass of it, and what no rung names.
void raiseInJava(RTIambassador& rti, int count, char const* className, wchar_t const* text)
{
   script::answerThrow("getObjectClassHandle_S", className, L"told", true);
   int caught = 0;
   for (int i = 0; i < count; ++i) {
      try {
         rti.getObjectClassHandle(L"A");
      } catch (RTIinternalError const& e) {
         caught += e.what() == std::wstring(text);
      } catch (NameNotFound const& e) {
         caught += e.what() == std::wstring(text);
      }
   }
   EXPECT_EQ(count, caught);
}

void expectNothingLeft(Figures const& before, Figures const& after)
{
   EXPECT_EQ(before.localReferences, after.localReferences);
   EXPECT_GE(before.globalReferences + 3, after.globalReferences);
   EXPECT_GT(8192, after.residentKilobytes - before.residentKilobytes);
   EXPECT_GT(4096, after.allocatedKilobytes - before.allocatedKilobytes);
   EXPECT_GT(2048, after.heapKilobytes - before.heapKilobytes);
}

class Thrower : public NullFederateAmbassador {
public:
   void federationSaved() override
   {
      switch (++_calls % 4) {
      case 0:
         throw FederateInternalError(L"told");
      case 1:
         throw std::runtime_error("told");
      case 2:
         throw std::string("told");
      default:
         throw 42;
      }
   }

private:
   int _calls = 0;
};

} // namespace

TEST_F(Load, exceptionsOfJava)
{
   struct {
      char const* className;
      wchar_t const* text;
   } const rows[] = {
         {"hla/rti1516e/exceptions/NameNotFound", L"told"},
         {"skerry/tarn1516e/standin/SubclassedRTIinternalError", L"told"},
   };
   int const count = share(500000);
   for (auto const& row : rows) {
      raiseInJava(*_rti, count / 5, row.className, row.text);
   }
   Figures const before = measured("warm");
   for (auto const& row : rows) {
      raiseInJava(*_rti, count, row.className, row.text);
   }
   expectNothingLeft(before, measured("exceptions of Java"));
}

TEST_F(Load, exceptionsOfTheFederate)
{
   Thrower thrower;
   script::record(true);
   _rti->connect(thrower, HLA_EVOKED);
   std::string const connected = script::lastBody("connect_FA_CM_S").bytes;
   script::record(false);
   std::string const frame = "\x63\x62\x61\x60" + connected.substr(0, 4) + "\x59\x58\x57\x56";
   auto const raise = [&](int count) {
      int raised = 0;
      for (int i = 0; i < count; ++i) {
         raised += fire("federationSaved_Native", frame, 1)
                         .find(L"hla.rti1516e.exceptions.FederateInternalError\n")
               == 0;
      }
      EXPECT_EQ(count, raised);
   };
   raise(share(200000));
   Figures const before = measured("warm");
   raise(share(1000000));
   expectNothingLeft(before, measured("exceptions of federates"));
}

// Each construction leaves the references to its two classes on the thread that made it, until
// that leaves a frame of its own or is detached.
TEST_F(Load, ambassadors)
{
   int const count = share(1000);
   auto const churn = [count] {
      for (int i = 0; i < count; ++i) {
         newAmbassador()->enableCallbacks();
      }
   };
   {
      script::LocalFrame const frame;
      churn();
   }
   Figures const before = measured("warm");
   {
      script::LocalFrame const frame;
      churn();
   }
   expectNothingLeft(before, measured("ambassadors in a frame"));
   churn();
   Figures const after = measured("ambassadors without one");
   EXPECT_EQ(before.localReferences + 2 * count, after.localReferences);
   EXPECT_GE(before.globalReferences + 3, after.globalReferences);
}

// A table's worth of connects and more, each of an ambassador that lives only for it. Handle 0 is
// what the last slot has and what all get when no slot is left.
TEST_F(Load, connectsPastTheTable)
{
   NullFederateAmbassador callbacks;
   script::LocalFrame const frame;
   script::record(true);
   testing::internal::CaptureStderr();
   int last = -1;
   int connects = 0;
   int zeros = 0;
   for (; connects < 4200; ++connects) {
      script::forgetCalls();
      auto const rti = newAmbassador();
      rti->connect(callbacks, HLA_EVOKED);
      std::string const body = script::lastBody("connect_FA_CM_S").bytes;
      last = static_cast<unsigned char>(body[2]) << 8 | static_cast<unsigned char>(body[3]);
      ASSERT_EQ(connects < 4095 ? connects + 1 : 0, last);
      zeros += last == 0;
   }
   std::string const told = testing::internal::GetCapturedStderr();
   std::string const line = "No more FederateAmbassador handles\n";
   std::size_t lines = 0;
   for (auto at = told.find(line); at != std::string::npos; at = told.find(line, at + 1)) {
      ++lines;
   }
   EXPECT_EQ(105, zeros);
   EXPECT_EQ(104u, lines); // the first zero was a slot
}
