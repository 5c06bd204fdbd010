// Sums up a recording.
#include "tools/tarn1516e-record/Analysis.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace record {

namespace {

std::size_t const slowestShown = 10;

Operation summary(std::vector<double>& durations)
{
   Operation result;
   std::sort(durations.begin(), durations.end());
   result.calls = durations.size();
   for (double const duration : durations) {
      result.total += duration;
   }
   double const count = static_cast<double>(durations.size());
   result.mean = result.total / count;
   // The least of them that so many do not exceed.
   auto const rank = [&](double share) {
      return durations[static_cast<std::size_t>(std::ceil(share * count)) - 1];
   };
   result.median = rank(0.5);
   result.highest99 = rank(0.99);
   result.most = durations.back();
   return result;
}

// The requests in the order of time, each with the next grant of its ambassador.
std::vector<Wait> findWaits(Trace const& trace)
{
   std::vector<std::size_t> order;
   for (std::size_t i = 0; i < trace.calls.size(); ++i) {
      if (isAdvanceRequest(trace.calls[i]) || trace.calls[i].name == "timeAdvanceGrant") {
         order.push_back(i);
      }
   }
   std::stable_sort(order.begin(), order.end(),
         [&](std::size_t a, std::size_t b) { return trace.calls[a].begin < trace.calls[b].begin; });
   std::vector<Wait> waits;
   std::map<int, std::size_t> pending; // by ambassador, the index of its wait
   for (std::size_t const i : order) {
      Call const& call = trace.calls[i];
      auto const before = pending.find(call.ambassador);
      if (isAdvanceRequest(call)) {
         if (!call.exception.empty()) {
            continue;
         }
         if (before != pending.end()) { // the grant was not seen, and can't come any more
            waits[before->second].request = i;
         } else {
            pending[call.ambassador] = waits.size();
            waits.push_back(Wait{i, Call::none});
         }
      } else if (before != pending.end()) {
         waits[before->second].grant = i;
         pending.erase(before);
      }
   }
   return waits;
}

} // namespace

std::vector<std::pair<std::string, Operation>> byTotal(Analysis const& analysis, Category category)
{
   std::vector<std::pair<std::string, Operation>> rows;
   for (auto const& entry : analysis.operations) {
      if (entry.first.first == category) {
         rows.emplace_back(entry.first.second, entry.second);
      }
   }
   std::stable_sort(rows.begin(), rows.end(),
         [](auto const& a, auto const& b) { return a.second.total > b.second.total; });
   return rows;
}

bool isAdvanceRequest(Call const& call)
{
   static std::set<std::string> const names{"timeAdvanceRequest", "timeAdvanceRequestAvailable",
         "nextMessageRequest", "nextMessageRequestAvailable", "flushQueueRequest"};
   return names.count(call.name) != 0;
}

Analysis::Analysis(Trace const& trace) : wall(trace.last - trace.first), waits(findWaits(trace))
{
   std::map<std::pair<Category, std::string>, std::vector<double>> durations;
   for (std::size_t i = 0; i < trace.calls.size(); ++i) {
      Call const& call = trace.calls[i];
      if (!call.hasEnded) {
         open.push_back(i);
      }
      if (call.category == Category::start) {
         starting = std::max(starting, call.duration());
         continue;
      }
      bool const isService = call.category == Category::service;
      ++(isService ? services : callbacks);
      (isService ? inServices : inCallbacks) += call.duration() - call.inner;
      durations[{call.category, call.name}].push_back(call.duration());
      slowest.push_back(i);
   }
   for (auto& entry : durations) {
      operations[entry.first] = summary(entry.second);
   }
   for (Call const& call : trace.calls) {
      if (!call.exception.empty()) {
         ++operations[{call.category, call.name}].exceptions;
         ++failures[{call.name, call.exception + (call.text.empty() ? "" : ": " + call.text)}];
      }
   }
   for (Wait const& wait : waits) {
      double const until = wait.grant == Call::none ? trace.last : trace.calls[wait.grant].begin;
      waiting += until - trace.calls[wait.request].begin;
   }
   std::size_t const shown = std::min(slowest.size(), slowestShown);
   std::partial_sort(slowest.begin(), slowest.begin() + static_cast<std::ptrdiff_t>(shown),
         slowest.end(), [&](std::size_t a, std::size_t b) {
            return trace.calls[a].duration() > trace.calls[b].duration();
         });
   slowest.resize(shown);
}

} // namespace record
