// Every native against frames that are cut short or have one wrong byte, without a VM: the frame
// ends where memory ends, so that any read past it is seen.
#include "gen/cpp/CallbackFrame.h"
#include "gen/cpp/HandleTable.h"
#include "tests/contract/Show.h"
#include "tests/reliability/FrameModel.h"
#include "tests/support/LimitedNew.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

#include <csetjmp>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

using namespace rti1516e;
using namespace contract;
using namespace reliability;

namespace {

#if defined(__SANITIZE_ADDRESS__)
bool const isSanitized = true;
#elif defined(__has_feature)
bool const isSanitized = __has_feature(address_sanitizer);
#else
bool const isSanitized = false;
#endif

bool decoding; // a frame is being read
sigjmp_buf whenItEnds;
std::string assertion;
char const* faultAddress;

// While a frame is read, memory has a limit.
void setDecoding(bool on)
{
   decoding = on;
   support::allocationLimit = on ? reliability::allocationLimit : support::largeAllocation;
}

} // namespace

// In place of the platform's, so that one process sees them all.
#ifdef __APPLE__
extern "C" void __assert_rtn(char const* function, char const*, int, char const* condition)
#else
extern "C" void __assert_fail(
      char const* condition, char const*, unsigned int, char const* function) noexcept
#endif
{
   setDecoding(false);
   assertion = condition == std::string("false") ? function : condition;
   siglongjmp(whenItEnds, 1);
}

namespace {

void onFault(int, siginfo_t* info, void*)
{
   if (!decoding) { // not of our making
      std::signal(SIGSEGV, SIG_DFL);
      std::signal(SIGBUS, SIG_DFL);
      return;
   }
   setDecoding(false);
   faultAddress = static_cast<char const*>(info->si_addr);
   siglongjmp(whenItEnds, 2);
}

// Memory that nobody may read behind the last byte of a frame.
class Cliff {
public:
   Cliff()
         : _room(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) * 4),
           _begin(static_cast<char*>(mmap(nullptr, _room + guard, PROT_READ | PROT_WRITE,
                 MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)))
   {
      mprotect(_begin + _room, guard, PROT_NONE);
   }

   ~Cliff()
   {
      munmap(_begin, _room + guard);
   }

   char* place(std::string const& frame)
   {
      char* const at = _begin + _room - frame.size();
      std::memcpy(at, frame.data(), frame.size());
      return at;
   }

   bool isBehind(char const* address) const
   {
      return address >= _begin + _room && address < _begin + _room + guard;
   }

private:
   static std::size_t const guard = 4 * allocationLimit;

   std::size_t _room;
   char* _begin;
};

// As much of a VM as the natives call. An array is the address of its bytes.
int pinned;
std::map<std::string, void*> natives;

void* pin(JNIEnv*, jarray array, jboolean*)
{
   ++pinned;
   return array;
}

void unpin(JNIEnv*, jarray, void*, jint)
{
   --pinned;
}

jint keepNatives(JNIEnv*, jclass, JNINativeMethod const* methods, jint count)
{
   for (int i = 0; i < count; ++i) {
      natives[methods[i].name] = methods[i].fnPtr;
   }
   return 0;
}

JNINativeInterface_ makeFunctions()
{
   JNINativeInterface_ functions;
   std::memset(&functions, 0, sizeof functions);
   functions.GetPrimitiveArrayCritical = pin;
   functions.ReleasePrimitiveArrayCritical = unpin;
   functions.RegisterNatives = keepNatives;
   functions.FindClass = [](JNIEnv*, char const*) {
      static _jclass type;
      return &type;
   };
   functions.ExceptionOccurred = [](JNIEnv*) { return jthrowable(); };
   functions.DeleteLocalRef = [](JNIEnv*, jobject) {};
   return functions;
}

struct Outcome {
   Ending ending;
   std::string detail;
};

class HostileFrames : public testing::Test {
protected:
   HostileFrames()
   {
      _env.functions = &_functions;
      registerNatives(&_env);
      struct sigaction action;
      std::memset(&action, 0, sizeof action);
      action.sa_sigaction = onFault;
      action.sa_flags = SA_SIGINFO | SA_NODEFER;
      sigaction(SIGSEGV, &action, nullptr);
      sigaction(SIGBUS, &action, nullptr);
   }

   // All tests share the table's first handle.
   static void SetUpTestSuite()
   {
      ASSERT_EQ(knownHandle, makeHandle(&helper()));
   }

   static tarn1516e::FederateAmbassadorHelper& helper()
   {
      static tarn1516e::FederateAmbassadorHelper one;
      return one;
   }

   Outcome fire(std::string const& operation, std::string const& frame)
   {
      typedef void (*Native)(JNIEnv*, jobject, jbyteArray);
      Native const native = reinterpret_cast<Native>(natives.at(operation + "_Native"));
      jbyteArray const array = reinterpret_cast<jbyteArray>(_cliff.place(frame));
      _record = CallbackRecord();
      pinned = 0;
      _record.inside = [] { setDecoding(false); };
      switch (sigsetjmp(whenItEnds, 0)) {
      case 1:
         return {Ending::ASSERTION, assertion};
      case 2:
         return _cliff.isBehind(faultAddress) ? Outcome{Ending::PAST_THE_END, ""}
                                              : Outcome{Ending::NULL_POINTER, ""};
      }
      try {
         setDecoding(true);
         native(&_env, nullptr, array);
      } catch (std::bad_alloc const&) {
         setDecoding(false);
         return {Ending::EXCEPTION, ""};
      }
      setDecoding(false);
      return {Ending::DELIVERED, ""};
   }

   void check(std::string const& operation, std::string const& frame, Time time)
   {
      Prediction const expected = predict(operation, frame, time);
      ++counts[expected.ending];
      if (!mayFire(expected.ending)) {
         return;
      }
      Outcome const outcome = fire(operation, frame);
      ASSERT_STREQ(name(expected.ending), name(outcome.ending)) << hex(frame.data(), frame.size());
      if (expected.ending == Ending::ASSERTION) {
         ASSERT_NE(std::string::npos, outcome.detail.find(expected.detail)) << outcome.detail;
      } else if (expected.ending == Ending::DELIVERED) {
         ASSERT_EQ(1, _record.calls);
         ASSERT_EQ(operation, _record.operation);
         ASSERT_EQ(expected.arguments, _record.arguments);
      }
      // Whoever gets the callback, gets it with the array let go; nobody else lets it go.
      int const held = expected.ending == Ending::DELIVERED ? 0 : 1;
      if (expected.ending != Ending::NULL_POINTER) {
         ASSERT_EQ(held, pinned);
      }
   }

   // Outside the table lies memory of the process, and behind a short copy the heap: what is there
   // is nobody's to tell. A sanitizer ends the process at the first use of a null pointer.
   static bool mayFire(Ending ending)
   {
      return ending != Ending::OUTSIDE_TABLE && ending != Ending::SHORT_COPY
            && !(isSanitized && ending == Ending::NULL_POINTER);
   }

   void useTime(Time time)
   {
      helper().federateAmbassador = _callbacks.get();
      helper().timeFactory.reset();
      if (time == Time::INTEGER) {
         helper().timeFactory.reset(new HLAinteger64TimeFactory);
      } else if (time == Time::FLOAT) {
         helper().timeFactory.reset(new HLAfloat64TimeFactory);
      }
   }

   void report(char const* what)
   {
      for (auto const& count : counts) {
         std::printf("%s: %7ld %s%s\n", what, count.second, name(count.first),
               mayFire(count.first) ? "" : " (not fired)");
      }
   }

   std::map<Ending, long> counts;

private:
   JNINativeInterface_ const _functions = makeFunctions();
   JNIEnv _env;
   Cliff _cliff;
   CallbackRecord _record;
   std::unique_ptr<FederateAmbassador> const _callbacks = makeRecorder(_record);
};

// All 255 wrong values, or those at the edges and one bit away.
std::vector<char> wrongValues(char right)
{
   std::vector<char> values;
   bool const all = std::getenv("RELIABILITY_LONG") != nullptr;
   int const octet = static_cast<unsigned char>(right);
   for (int value = 0; value < 256; ++value) {
      int const flipped = value ^ octet;
      bool const isOneBitAway = (flipped & (flipped - 1)) == 0;
      bool const isEdge =
            value == 0 || value == 127 || value == 128 || value == 248 || value == 255;
      if (value != octet && (all || isOneBitAway || isEdge || value == octet + 1)) {
         values.push_back(static_cast<char>(value));
      }
   }
   return values;
}

} // namespace

TEST_F(HostileFrames, wellFormed)
{
   for (Time const time : {Time::INTEGER, Time::FLOAT}) {
      useTime(time);
      for (std::string const& operation : operations()) {
         SCOPED_TRACE(operation);
         check(operation, sampleFrame(operation, knownHandle), time);
      }
   }
   EXPECT_EQ(120, counts[Ending::DELIVERED]);
}

// Takes everything and does nothing; an exception would call into the VM.
TEST_F(HostileFrames, ignoredByTheNullAmbassador)
{
   NullFederateAmbassador federate;
   useTime(Time::INTEGER);
   helper().federateAmbassador = &federate;
   for (std::string const& operation : operations()) {
      SCOPED_TRACE(operation);
      Outcome const outcome = fire(operation, sampleFrame(operation, knownHandle));
      EXPECT_EQ(Ending::DELIVERED, outcome.ending);
      EXPECT_EQ(0, pinned);
   }
}

TEST_F(HostileFrames, everyTruncation)
{
   for (Time const time : {Time::NONE, Time::INTEGER, Time::FLOAT}) {
      useTime(time);
      for (std::string const& operation : operations()) {
         SCOPED_TRACE(operation);
         std::string const whole = sampleFrame(operation, knownHandle);
         for (std::size_t size = 0; size < whole.size(); ++size) {
            check(operation, whole.substr(0, size), time);
            ASSERT_FALSE(HasFatalFailure()) << "cut to " << size;
         }
      }
   }
   report("truncations");
   EXPECT_EQ(0, counts[Ending::DELIVERED]);
   EXPECT_LT(5000, counts[Ending::PAST_THE_END]);
}

TEST_F(HostileFrames, everyByteWrong)
{
   for (Time const time : {Time::NONE, Time::INTEGER, Time::FLOAT}) {
      useTime(time);
      for (std::string const& operation : operations()) {
         SCOPED_TRACE(operation);
         std::string const right = sampleFrame(operation, knownHandle);
         for (std::size_t at = 0; at < right.size(); ++at) {
            for (char const value : wrongValues(right[at])) {
               std::string wrong = right;
               wrong[at] = value;
               check(operation, wrong, time);
               ASSERT_FALSE(HasFatalFailure()) << "byte " << at;
            }
         }
      }
   }
   report("single bytes");
   for (Ending const ending :
         {Ending::DELIVERED, Ending::ASSERTION, Ending::EXCEPTION, Ending::NULL_POINTER,
               Ending::OUTSIDE_TABLE, Ending::PAST_THE_END, Ending::SHORT_COPY}) {
      EXPECT_LT(0, counts[ending]) << name(ending);
   }
}
