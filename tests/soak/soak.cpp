// Eight threads on four ambassadors of one federation: services, callbacks and exceptions at once,
// with the process's figures after each of several rounds. Fails when they grow.
//
//    soak [--calls N] [--callbacks N] [--tags BYTES] [--may-grow KILOBYTES]
#include "tests/soak/Figures.h"
#include "tests/soak/Traveller.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace soak;

namespace {

int const rounds = 6; // the first is for warming up

// Lets the workers through while a round goes on, and tells when all of them wait.
class Gate {
public:
   explicit Gate(int workers) : _workers(workers) {}

   // False when there is no more work.
   bool pass()
   {
      std::unique_lock<std::mutex> lock(_mutex);
      if (!_isOpen && !_isOver) {
         ++_waiting;
         _changed.notify_all();
         _changed.wait(lock, [this] { return _isOpen || _isOver; });
         --_waiting;
      }
      return !_isOver;
   }

   void open()
   {
      set(_isOpen, true);
   }

   void close()
   {
      set(_isOpen, false);
      std::unique_lock<std::mutex> lock(_mutex);
      _changed.wait(lock, [this] { return _waiting == _workers; });
   }

   void finish()
   {
      set(_isOver, true);
   }

private:
   void set(bool& flag, bool value)
   {
      std::lock_guard<std::mutex> const lock(_mutex);
      flag = value;
      _changed.notify_all();
   }

   int const _workers;
   std::mutex _mutex;
   std::condition_variable _changed;
   bool _isOpen = false;
   bool _isOver = false;
   int _waiting = 0;
};

void travelOn(Traveller& traveller, Gate& gate)
{
   while (gate.pass()) {
      if (traveller.isAdvancing()) {
         traveller.wait();
      } else {
         traveller.travel();
      }
   }
}

void tradeOn(Traveller& traveller, Gate& gate)
{
   while (gate.pass()) {
      traveller.trade();
   }
}

struct Options {
   long calls = 100000;
   long callbacks = 100000;
   long tags = 512;
   long mayGrow = 16384;
};

Options read(int count, char** arguments)
{
   Options options;
   struct {
      char const* name;
      long& value;
   } const known[] = {{"--calls", options.calls}, {"--callbacks", options.callbacks},
         {"--tags", options.tags}, {"--may-grow", options.mayGrow}};
   for (int i = 1; i + 1 < count; i += 2) {
      bool isKnown = false;
      for (auto const& option : known) {
         if (option.name == std::string(arguments[i])) {
            option.value = std::atol(arguments[i + 1]);
            isKnown = true;
         }
      }
      if (!isKnown) {
         std::fprintf(stderr, "unknown option %s\n", arguments[i]);
         std::exit(2);
      }
   }
   return options;
}

// A round is over when both totals are a share further.
void workUntil(Totals const& totals, long calls, long callbacks)
{
   while (totals.calls < calls || totals.callbacks < callbacks) {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
   }
}

// What the stand-in's own threads still deliver.
void settle(Totals const& totals)
{
   for (long before = -1; before != totals.callbacks;) {
      before = totals.callbacks;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
   }
}

// Compiler threads of the VM come and go, each with a global reference.
bool isFlat(Figures const& first, Figures const& last, long mayGrow)
{
   return last.localReferences == first.localReferences
         && last.globalReferences <= first.globalReferences + 3
         && last.javaThreads == first.javaThreads && last.nativeThreads <= first.nativeThreads
         && last.heapKilobytes <= first.heapKilobytes + 4096
         && last.allocatedKilobytes <= first.allocatedKilobytes + mayGrow
         && last.residentKilobytes <= first.residentKilobytes + mayGrow;
}

typedef std::vector<std::unique_ptr<Traveller>> Travellers;

bool work(Travellers& travellers, Options const& options, Totals& totals)
{
   Gate gate(2 * static_cast<int>(travellers.size()));
   std::vector<std::thread> threads;
   for (auto const& traveller : travellers) {
      threads.emplace_back(travelOn, std::ref(*traveller), std::ref(gate));
      threads.emplace_back(tradeOn, std::ref(*traveller), std::ref(gate));
   }
   Figures first{}, last{};
   for (int round = 1; round <= rounds; ++round) {
      gate.open();
      workUntil(totals, options.calls * round / rounds, options.callbacks * round / rounds);
      gate.close();
      settle(totals);
      last = measure();
      if (round == 1) {
         first = last;
      }
      std::printf("%10ld calls, %10ld callbacks, %8ld exceptions\n", totals.calls.load(),
            totals.callbacks.load(), totals.exceptions.load());
      print(round == 1 ? "   warm" : "   round " + std::to_string(round), last);
   }
   gate.finish();
   for (std::thread& thread : threads) {
      thread.join();
   }
   return isFlat(first, last, options.mayGrow);
}

} // namespace

int main(int count, char** arguments)
{
   Options const options = read(count, arguments);
   Totals totals;
   Travellers travellers;
   for (int i = 0; i < 4; ++i) {
      travellers.emplace_back(
            new Traveller(i + 1, i < 2 ? rti1516e::HLA_EVOKED : rti1516e::HLA_IMMEDIATE,
                  static_cast<std::size_t>(options.tags), totals));
      travellers.back()->join(SOAK_OBJECT_MODEL);
   }
   for (auto const& traveller : travellers) {
      traveller->startTime();
   }
   auto const start = std::chrono::steady_clock::now();
   bool const flat = work(travellers, options, totals);
   std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - start;
   for (auto const& traveller : travellers) {
      traveller->leave();
   }
   std::printf("%.0f s; %ld messages to others, %ld arrived; %s; %s\n", seconds.count(),
         totals.messages.load(), totals.arrivals.load(),
         totals.wrong ? "something arrived WRONG" : "all that arrived was right",
         flat ? "figures are flat" : "figures GREW");
   return flat && !totals.wrong ? 0 : 1;
}
