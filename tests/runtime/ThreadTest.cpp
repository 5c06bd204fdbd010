// Threads: their states, their numbers and their warnings.
#include <tarn1516e/thread.h>

#include <atomic>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <unistd.h>

using tarn1516e::lock_guard;
using tarn1516e::mutex;
using tarn1516e::thread;

namespace {

// What a thread shares with the test.
struct Shared {
   std::atomic<bool> go{false};
   std::atomic<bool> throws{false};
   pthread_t handle;
   thread::id id;
};

void wait(std::atomic<bool> const& flag)
{
   while (!flag) {
      usleep(100);
   }
}

void run(void* argument)
{
   Shared& shared = *static_cast<Shared*>(argument);
   shared.handle = pthread_self();
   shared.id = tarn1516e::this_thread::get_id();
   wait(shared.go);
   if (shared.throws) {
      throw std::runtime_error("out of the thread");
   }
}

// The object does not join a thread that has ended; the test does, and leaves nothing behind.
void waitForEnd(thread const& ended, Shared const& shared)
{
   while (ended.joinable()) {
      usleep(100);
   }
   pthread_join(shared.handle, nullptr);
}

TEST(ThreadTest, joinWaitsForTheEnd)
{
   Shared shared;
   thread running(&run, &shared);
   EXPECT_TRUE(running.joinable());
   std::thread later([&] {
      usleep(100000); // by then join() waits
      shared.go = true;
   });
   running.join();
   EXPECT_TRUE(shared.go);
   EXPECT_FALSE(running.joinable());
   running.join(); // does nothing
   EXPECT_TRUE(running.get_id() == thread::id());
   later.join();
}

TEST(ThreadTest, numbers)
{
   Shared first, second;
   thread one(&run, &first);
   thread two(&run, &second);
   thread::id const none;
   thread::id const me = tarn1516e::this_thread::get_id();
   thread::id const idOne = one.get_id();
   thread::id const idTwo = two.get_id();
   EXPECT_TRUE(me == tarn1516e::this_thread::get_id());
   EXPECT_TRUE(idOne == one.get_id());
   std::set<thread::id> const all = {none, me, idOne, idTwo};
   EXPECT_EQ(4U, all.size());
   EXPECT_TRUE(*all.begin() == none) << "the lowest";
   thread::id const ascending[] = {none, me};
   for (thread::id const& left : ascending) {
      for (thread::id const& right : ascending) {
         EXPECT_EQ(&left < &right, left < right);
         EXPECT_EQ(&left <= &right, left <= right);
         EXPECT_EQ(&left > &right, left > right);
         EXPECT_EQ(&left >= &right, left >= right);
         EXPECT_EQ(&left == &right, left == right);
         EXPECT_EQ(&left != &right, left != right);
      }
   }

   std::ostringstream narrow;
   std::wostringstream wide;
   narrow << none;
   wide << none;
   EXPECT_EQ("0", narrow.str());
   EXPECT_EQ(L"0", wide.str());
   narrow << ' ' << me;
   EXPECT_LT(0, std::stoi(narrow.str().substr(2)));

   first.go = second.go = true;
   waitForEnd(one, first);
   waitForEnd(two, second);
   EXPECT_TRUE(first.id == idOne) << "the thread sees its own number";
   EXPECT_TRUE(second.id == idTwo);
}

// In a process where no thread has been asked about.
TEST(ThreadTest, numbersBeginAtOne)
{
   testing::GTEST_FLAG(death_test_style) = "threadsafe";
   EXPECT_EXIT(
         {
            std::ostringstream text;
            text << tarn1516e::this_thread::get_id();
            _exit(text.str() == "1" ? 0 : 1);
         },
         testing::ExitedWithCode(0), "");
}

TEST(ThreadTest, exceptionsEndTheThreadOnly)
{
   Shared shared;
   shared.throws = true;
   shared.go = true;
   testing::internal::CaptureStderr();
   thread ended(&run, &shared);
   waitForEnd(ended, shared);
   EXPECT_EQ("Warning: Uncaught exceptions throw from thread function! Terminating...\n",
         testing::internal::GetCapturedStderr());
   ended.join(); // does nothing
   EXPECT_TRUE(ended.get_id() == thread::id());
}

TEST(ThreadTest, destroyedWhileRunning)
{
   testing::GTEST_FLAG(death_test_style) = "threadsafe";
   EXPECT_EXIT(
         {
            static Shared shared;
            {
               thread running(&run, &shared);
            }
            _exit(0); // the thread is still waiting
         },
         testing::ExitedWithCode(0),
         "^Warning: thread::~thread\\(\\) called before thread::join\\(\\)!\n$");
}

TEST(MutexTest, oneThreadAtATime)
{
   mutex lock;
   int count = 0;
   auto const countUp = [&] {
      for (int i = 0; i < 10000; ++i) {
         lock_guard<mutex> guard(lock);
         ++count;
      }
   };
   std::thread threads[] = {std::thread(countUp), std::thread(countUp), std::thread(countUp)};
   for (std::thread& running : threads) {
      running.join();
   }
   EXPECT_EQ(30000, count);
}

} // namespace
