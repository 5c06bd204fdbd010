// What follows from a recording: figures by operation, shares of the time, waits for grants.
#ifndef tarn1516e_record_Analysis_h
#define tarn1516e_record_Analysis_h

#include "tools/tarn1516e-record/Trace.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace record {

// Times are microseconds.
struct Operation {
   std::size_t calls = 0;
   std::size_t exceptions = 0;
   double total = 0;
   double mean = 0;
   double median = 0;
   double highest99 = 0; // the 99th percentile
   double most = 0;
};

// From a request to advance to its grant.
struct Wait {
   std::size_t request; // index of the call
   std::size_t grant;   // or Call::none
};

struct Analysis {
   explicit Analysis(Trace const& trace);

   double wall = 0;
   double inServices = 0;  // without the callbacks inside
   double inCallbacks = 0; // without the services inside
   double waiting = 0;     // of all federates; one that is never granted waits to the end
   double starting = 0;    // of the VM, with the first ambassador
   std::size_t services = 0;
   std::size_t callbacks = 0;
   std::map<std::pair<Category, std::string>, Operation> operations;
   std::vector<Wait> waits;
   std::vector<std::size_t> slowest;                                    // calls, slowest first
   std::map<std::pair<std::string, std::string>, std::size_t> failures; // by operation and what
   std::vector<std::size_t> open;                                       // calls without an end
};

// Those of a category, the one with the most time first.
std::vector<std::pair<std::string, Operation>> byTotal(Analysis const& analysis, Category category);

// Begins a request to advance the federate's time.
bool isAdvanceRequest(Call const& call);

} // namespace record

#endif
