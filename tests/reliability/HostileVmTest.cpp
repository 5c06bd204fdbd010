// The same frames in a VM: those that are to be delivered in this process, a sample of those that
// end the process in children.
#include "tests/contract/Show.h"
#include "tests/reliability/FrameModel.h"
#include "tests/support/Script.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

using namespace contract;
using namespace reliability;

namespace {

char const values[] = {0, 1, 2, 5, 127};

// Calls `use` with every frame of the operation that has one of the values for one of its bytes.
template <class Use>
void eachWrong(std::string const& operation, Use const& use)
{
   std::string const right = sampleFrame(operation, knownHandle);
   for (std::size_t at = 0; at < right.size(); ++at) {
      for (char const value : values) {
         std::string wrong = right;
         wrong[at] = value;
         use(wrong);
      }
   }
}

// The first wrong frame of the operation that ends so; empty if none does.
std::string firstWrong(std::string const& operation, Ending ending)
{
   std::string found;
   eachWrong(operation, [&](std::string const& frame) {
      if (found.empty() && predict(operation, frame, Time::INTEGER).ending == ending) {
         found = frame;
      }
   });
   return found;
}

void fireInFreshVm(std::string const& operation, std::string const& frame)
{
   Federate federate;
   federate.join(L"HLAinteger64Time");
   script::fire(operation + "_Native", frame);
   std::fputs("the process goes on\n", stderr);
}

void expectAbort(std::string const& operation, std::string const& frame, std::string const& text)
{
   SCOPED_TRACE(operation + " " + hex(frame.data(), frame.size()));
   EXPECT_EXIT(fireInFreshVm(operation, frame), testing::KilledBySignal(SIGABRT),
         testing::ContainsRegex(text));
}

} // namespace

TEST(HostileVm, framesToBeDelivered)
{
   Federate federate;
   ASSERT_EQ(knownHandle, federate.handle);
   federate.join(L"HLAinteger64Time");
   int delivered = 0;
   for (std::string const& operation : operations()) {
      eachWrong(operation, [&](std::string const& frame) {
         Prediction const expected = predict(operation, frame, Time::INTEGER);
         if (expected.ending == Ending::DELIVERED) {
            federate.record = CallbackRecord();
            EXPECT_EQ(L"", script::fire(operation + "_Native", frame));
            EXPECT_EQ(operation, federate.record.operation);
            EXPECT_EQ(expected.arguments, federate.record.arguments);
            ++delivered;
         }
      });
   }
   std::printf("%d wrong frames delivered as they read\n", delivered);
   EXPECT_LT(4000, delivered);
}

// One in twelve of the natives, or all.
TEST(HostileVmDeathTest, framesThatEndTheProcess)
{
   GTEST_FLAG_SET(death_test_style, "threadsafe");
   std::size_t const step = std::getenv("RELIABILITY_LONG") != nullptr ? 1 : 12;
   for (std::size_t i = 1; i < operations().size(); i += step) {
      std::string const& operation = operations()[i];
      std::string const whole = sampleFrame(operation, knownHandle);
      for (std::size_t const missing : {1u, 4u}) {
         expectAbort(operation, whole.substr(0, whole.size() - missing),
               "Assertion.*postMagic == POST_MAGIC");
      }
      std::string const asserting = firstWrong(operation, Ending::ASSERTION);
      ASSERT_FALSE(asserting.empty());
      expectAbort(operation, asserting, "Assertion.*failed");
   }
}
