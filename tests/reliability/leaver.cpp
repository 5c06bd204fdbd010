// A federate that ends in the way its first argument says, or gets the signal of its second on the
// way; check_endings.py knows how each has to end.
#include "tests/soak/Figures.h"
#include "tests/soak/Fire.h"
#include "tests/support/Script.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTIambassador.h>
#include <RTI/RTIambassadorFactory.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace rti1516e;

namespace {

class Federate : public NullFederateAmbassador {
public:
   Federate() : rti(RTIambassadorFactory().createRTIambassador().release())
   {
      script::scriptAll(true);
      rti->connect(*this, HLA_EVOKED);
   }

   void federationSaved() override
   {
      if (inside) {
         inside();
      }
      ++delivered;
   }

   std::function<void()> inside;
   std::atomic<int> delivered{0};
   std::unique_ptr<RTIambassador> rti;
};

// The callback of the first connect.
void deliver()
{
   std::string const frame("\x63\x62\x61\x60\0\0\0\1\x59\x58\x57\x56", 12);
   std::wstring const thrown = soak::fire("federationSaved_Native", frame, 1);
   if (!thrown.empty()) {
      std::fprintf(stderr, "delivery threw %ls\n", thrown.c_str());
   }
}

void deliverOnJavaThread()
{
   script::fireOnNewThread(
         "federationSaved_Native", std::string("\x63\x62\x61\x60\0\0\0\1\x59\x58\x57\x56", 12));
}

void useService(RTIambassador& rti)
{
   rti.getObjectClassName(rti.getObjectClassHandle(L"A"));
}

// Services and callbacks on threads that nobody waits for.
void startTraffic(Federate& federate)
{
   for (int i = 0; i < 2; ++i) {
      std::thread([&federate] {
         while (true) {
            useService(*federate.rti);
         }
      }).detach();
      std::thread([] {
         while (true) {
            deliver();
         }
      }).detach();
   }
   while (federate.delivered < 100) {
      std::this_thread::yield();
   }
}

// ---- Endings

int leaveByReturn()
{
   Federate federate;
   deliver();
   return 3;
}

int leaveByExit()
{
   static Federate federate; // destroyed by exit
   deliver();
   std::exit(4);
}

int leaveAmidTraffic()
{
   startTraffic(*new Federate);
   return 5;
}

int leaveFromCallback()
{
   static Federate federate;
   federate.inside = [] { std::exit(6); };
   deliver();
   return 1;
}

int leaveFromCallbackOnJavaThread()
{
   Federate* const federate = new Federate;
   federate->inside = [] { std::exit(7); };
   deliverOnJavaThread();
   return 1;
}

int leaveUncaught()
{
   Federate federate;
   script::answerThrow(
         "getObjectClassHandle_S", "hla/rti1516e/exceptions/NameNotFound", L"no such class");
   useService(*federate.rti);
   return 1;
}

int leaveUncaughtOnThread()
{
   startTraffic(*new Federate);
   std::thread([] { throw std::runtime_error("on a thread"); }).join();
   return 1;
}

// ---- Signals

void tell(int signal)
{
   char text[] = "the federate's handler got 00\n";
   text[27] = static_cast<char>('0' + signal / 10);
   text[28] = static_cast<char>('0' + signal % 10);
   (void)!write(2, text, sizeof text - 1);
   _exit(9);
}

void raiseOrFault(int signal)
{
   if (signal == SIGSEGV) {
      *static_cast<int volatile*>(nullptr) = 1;
   } else {
      kill(getpid(), signal);
   }
}

// `handled`: the federate has a handler of its own, set before the VM is there.
int getSignalInCallback(int signal, bool handled)
{
   if (handled) {
      std::signal(signal, tell);
   }
   Federate* const federate = new Federate;
   federate->inside = [signal] {
      raiseOrFault(signal);
      sleep(5); // for whoever deals with the signal
   };
   deliver();
   return 0;
}

// The handler is set when the VM is there, and is the federate's to the end.
int getSignalHandledLater(int signal)
{
   Federate* const federate = new Federate;
   std::signal(signal, tell);
   federate->inside = [signal] { raiseOrFault(signal); };
   deliver();
   sleep(5);
   return 0;
}

// ---- Fork

int statusOf(pid_t child)
{
   int status = 0;
   waitpid(child, &status, 0);
   return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

// A child that leaves at once, and one that becomes another program; the parent goes on.
int forkAndLeave()
{
   Federate federate;
   for (int i = 0; i < 20; ++i) {
      pid_t const leaver = fork();
      if (leaver == 0) {
         _exit(11);
      }
      pid_t const other = fork();
      if (other == 0) {
         execl("/bin/sh", "sh", "-c", "exit 12", static_cast<char*>(nullptr));
      }
      if (statusOf(leaver) != 11 || statusOf(other) != 12) {
         return 1;
      }
      useService(*federate.rti);
      deliver();
   }
   return federate.delivered == 20 ? 0 : 1;
}

// Services in a child, which has none of the VM's threads. Prints how that ends, by the alarm at
// the latest.
int forkAndUse()
{
   Federate federate;
   for (int const services : {1, 1000, 10000000}) {
      pid_t const child = fork();
      if (child == 0) {
         std::signal(SIGALRM, SIG_DFL);
         alarm(10);
         for (int i = 0; i < services; ++i) {
            useService(*federate.rti);
         }
         _exit(0);
      }
      std::printf("%d services in a child: %d\n", services, statusOf(child));
      std::fflush(stdout);
   }
   pid_t const child = fork();
   if (child == 0) {
      alarm(10);
      std::exit(0);
   }
   std::printf("exit in a child: %d\n", statusOf(child));
   return 0;
}

int leave(std::string const& way, int signal)
{
   struct {
      char const* name;
      std::function<int()> leave;
   } const ways[] = {
         {"return", leaveByReturn},
         {"exit", leaveByExit},
         {"traffic", leaveAmidTraffic},
         {"callback", leaveFromCallback},
         {"java-thread", leaveFromCallbackOnJavaThread},
         {"uncaught", leaveUncaught},
         {"uncaught-thread", leaveUncaughtOnThread},
         {"signal", [signal] { return getSignalInCallback(signal, false); }},
         {"handled", [signal] { return getSignalInCallback(signal, true); }},
         {"handled-later", [signal] { return getSignalHandledLater(signal); }},
         {"fork", forkAndLeave},
         {"fork-use", forkAndUse},
   };
   for (auto const& known : ways) {
      if (way == known.name) {
         return known.leave();
      }
   }
   return 2;
}

} // namespace

int main(int count, char** arguments)
{
   return leave(count > 1 ? arguments[1] : "", count > 2 ? std::atoi(arguments[2]) : 0);
}
