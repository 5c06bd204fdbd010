// Every native against frames that are cut short or have one wrong byte, without Java: the frame
// ends where memory ends, so that any read past it is seen.
#include "tests/bridge/Reader.h"
#include "tests/bridge/Rows.h"
#include "tests/support/BareVm.h"
#include "tests/support/Memory.h"

#include <csetjmp>
#include <csignal>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace net;

namespace {

bool decoding; // a frame is being read
sigjmp_buf whenItEnds;
std::string assertion;
char const* faultAddress;

// While a frame is read, memory has a limit.
void setDecoding(bool on)
{
   decoding = on;
   memory::limit = on ? allocationLimit : memory::noLimit;
}

} // namespace

// In place of the platform's, so that one process sees them all. Elsewhere than in a frame it ends
// the process, as that does.
#ifdef __APPLE__
extern "C" RTI_EXPORT void __assert_rtn(
      char const* function, char const* file, int line, char const* condition)
#else
extern "C" RTI_EXPORT void __assert_fail(
      char const* condition, char const* file, unsigned int line, char const* function) noexcept
#endif
{
   if (!decoding) {
      std::fprintf(stderr, "test: %s:%d: %s: Assertion `%s' failed.\n", file,
            static_cast<int>(line), function, condition);
      std::abort();
   }
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

// Memory that nobody may read behind the last byte of a frame. It stays.
class Cliff {
public:
   Cliff()
         : _edge(static_cast<char*>(mmap(nullptr, room + guard, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
               + room)
   {
      mprotect(_edge, guard, PROT_NONE);
   }

   jbyteArray place(std::string const& frame)
   {
      std::memcpy(_edge - frame.size(), frame.data(), frame.size());
      return bare::arrayOver(_edge - frame.size(), frame.size());
   }

   bool isBehind(char const* address) const
   {
      return address >= _edge && address < _edge + guard;
   }

private:
   static std::size_t const room = 1 << 16;
   static std::size_t const guard = 4 * allocationLimit;

   char* const _edge;
};

struct Outcome {
   Ending ending;
   std::string detail;
};

class Frames : public testing::TestWithParam<net::Time> {
protected:
   Frames()
   {
      if (GetParam() != net::Time::NONE) {
         _federate.join(GetParam() == net::Time::INTEGER ? L"HLAinteger64Time" : L"HLAfloat64Time");
      }
      _federate.record.inside = [] { setDecoding(false); };
      struct sigaction action;
      std::memset(&action, 0, sizeof action);
      action.sa_sigaction = onFault;
      action.sa_flags = SA_SIGINFO | SA_NODEFER;
      sigaction(SIGSEGV, &action, nullptr);
      sigaction(SIGBUS, &action, nullptr);
   }

   ~Frames() override
   {
      std::signal(SIGSEGV, SIG_DFL);
      std::signal(SIGBUS, SIG_DFL);
   }

   std::string right(std::string const& native) const
   {
      return frame(_federate.handle, fieldsOf(native, 0));
   }

   Outcome fire(std::string const& native, std::string const& frame)
   {
      typedef void (*Native)(JNIEnv*, jobject, jbyteArray);
      Native const function = reinterpret_cast<Native>(bare::state().natives.at(native + "([B)V"));
      jbyteArray const array = _cliff.place(frame);
      _federate.record.calls = 0;
      bare::state().pinned = 0;
      switch (sigsetjmp(whenItEnds, 0)) {
      case 1:
         return {Ending::ASSERTION, assertion};
      case 2:
         return {_cliff.isBehind(faultAddress) ? Ending::PAST_THE_END : Ending::NULL_POINTER, ""};
      }
      try {
         setDecoding(true);
         function(bare::environment(), nullptr, array);
      } catch (std::bad_alloc const&) {
         setDecoding(false);
         return {Ending::EXCEPTION, ""};
      }
      setDecoding(false);
      return {Ending::DELIVERED, ""};
   }

   void check(std::string const& native, std::string const& frame)
   {
      Prediction const expected = predict(native, frame, GetParam(), _federate.handle);
      ++counts[expected.ending];
      if (!mayFire(expected.ending)) {
         return;
      }
      Outcome const outcome = fire(native, frame);
      ASSERT_EQ(expected.ending, outcome.ending) << hex(frame);
      if (expected.ending == Ending::ASSERTION) {
         ASSERT_NE(std::string::npos, outcome.detail.find(expected.detail)) << outcome.detail;
      } else if (expected.ending == Ending::DELIVERED) {
         ASSERT_EQ(1, _federate.record.calls);
         ASSERT_EQ(native, _federate.record.native);
         ASSERT_TRUE(expected.arguments == _federate.record.arguments) << hex(frame);
      }
      // Whoever gets the callback, gets it with the array let go; nobody else lets it go.
      if (expected.ending != Ending::NULL_POINTER) {
         ASSERT_EQ(expected.ending == Ending::DELIVERED ? 0 : 1, bare::state().pinned);
      }
   }

   // What lies elsewhere is nobody's to tell. A sanitizer ends the process at the first use of a
   // null pointer.
   static bool mayFire(Ending ending)
   {
#ifdef NET_SANITIZED
      if (ending == Ending::NULL_POINTER) {
         return false;
      }
#endif
      return ending != Ending::ELSEWHERE;
   }

   std::map<Ending, long> counts;

private:
   Cliff _cliff;
   Federate _federate;
};

// The values at the edges and one bit away, and the next.
std::set<char> wrongValues(char right)
{
   std::set<char> values{'\0', '\x7F', '\x80', '\xF8', '\xFF', static_cast<char>(right + 1)};
   for (int bit = 0; bit < 8; ++bit) {
      values.insert(static_cast<char>(right ^ 1 << bit));
   }
   values.erase(right);
   return values;
}

} // namespace

TEST_P(Frames, everyTruncation)
{
   for (std::string const& native : natives()) {
      SCOPED_TRACE(native);
      std::string const whole = right(native);
      for (std::size_t size = 0; size < whole.size(); ++size) {
         check(native, whole.substr(0, size));
         ASSERT_FALSE(HasFatalFailure()) << "cut to " << size;
      }
   }
   EXPECT_EQ(0, counts[Ending::DELIVERED]);
   EXPECT_LT(1500, counts[Ending::PAST_THE_END]);
}

TEST_P(Frames, everyByteWrong)
{
   for (std::string const& native : natives()) {
      SCOPED_TRACE(native);
      for (std::size_t at = 0; at < right(native).size(); ++at) {
         std::string wrong = right(native);
         for (char const value : wrongValues(wrong[at])) {
            wrong[at] = value;
            check(native, wrong);
            ASSERT_FALSE(HasFatalFailure()) << "byte " << at;
         }
      }
   }
   for (Ending const ending : {Ending::DELIVERED, Ending::ASSERTION, Ending::EXCEPTION,
              Ending::NULL_POINTER, Ending::ELSEWHERE, Ending::PAST_THE_END}) {
      EXPECT_LT(0, counts[ending]) << static_cast<int>(ending);
   }
}

INSTANTIATE_TEST_SUITE_P(
      Times, Frames, testing::Values(net::Time::NONE, net::Time::INTEGER, net::Time::FLOAT));
