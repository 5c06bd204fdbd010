// Prints a recording as tables.
#include "tools/tarn1516e-record/Report.h"

#include <cstdio>
#include <iomanip>
#include <ostream>

namespace record {

namespace {

int const nameWidth = 44;
std::size_t const mostRemarks = 10;

void printOperations(
      std::ostream& out, Analysis const& analysis, Category category, char const* title)
{
   out << std::left << std::setw(nameWidth) << title << std::right << std::setw(8) << "calls"
       << std::setw(7) << "excpt" << std::setw(11) << "total" << std::setw(11) << "mean"
       << std::setw(11) << "median" << std::setw(11) << "p99" << std::setw(11) << "max" << '\n';
   for (auto const& row : byTotal(analysis, category)) {
      Operation const& operation = row.second;
      out << "  " << std::left << std::setw(nameWidth - 2) << row.first << std::right
          << std::setw(8) << operation.calls << std::setw(7) << operation.exceptions;
      for (double const time : {operation.total, operation.mean, operation.median,
                 operation.highest99, operation.most}) {
         out << std::setw(11) << timeText(time);
      }
      out << '\n';
   }
   out << '\n';
}

void printFlows(std::ostream& out, std::map<std::string, std::map<std::string, Flow>> const& flows,
      char const* title)
{
   if (flows.empty()) {
      return;
   }
   out << std::left << std::setw(nameWidth) << title << std::right << std::setw(10) << "sent"
       << std::setw(12) << "bytes" << std::setw(10) << "received" << std::setw(12) << "bytes"
       << '\n';
   for (auto const& owner : flows) {
      for (auto const& entry : owner.second) {
         Flow const& flow = entry.second;
         out << "  " << std::left << std::setw(nameWidth - 2) << owner.first + "." + entry.first
             << std::right << std::setw(10) << flow.sent << std::setw(12) << flow.bytesSent
             << std::setw(10) << flow.received << std::setw(12) << flow.bytesReceived << '\n';
      }
   }
   out << '\n';
}

} // namespace

std::string timeText(double microseconds)
{
   struct Unit {
      double size;
      char const* name;
   };
   static Unit const units[] = {{1e6, "s"}, {1e3, "ms"}, {1, "us"}, {1e-3, "ns"}};
   if (microseconds == 0) {
      return "0 s";
   }
   Unit const* unit = units;
   while (unit->size > 1e-3 && microseconds < unit->size) {
      ++unit;
   }
   double const value = microseconds / unit->size;
   char text[40];
   std::snprintf(text, sizeof text, "%.*f %s",
         value < 10          ? 2
               : value < 100 ? 1
                             : 0,
         value, unit->name);
   return text;
}

std::string shareText(double part, double whole)
{
   char text[40];
   std::snprintf(text, sizeof text, "%.1f %%", whole > 0 ? 100 * part / whole : 0.0);
   return text;
}

std::string ambassadorText(Trace const& trace, int ambassador)
{
   auto const found = trace.ambassadors.find(ambassador);
   return found != trace.ambassadors.end() && !found->second.empty()
         ? found->second
         : "ambassador " + std::to_string(ambassador);
}

std::string callText(Trace const& trace, Call const& call)
{
   return ambassadorText(trace, call.ambassador) + ": " + call.name + "(" + call.arguments
         + ") in thread " + trace.threads[call.thread].name + " at "
         + timeText(call.begin - trace.first);
}

std::vector<std::string> remarks(Trace const& trace, Analysis const& analysis)
{
   std::vector<std::string> result;
   for (Wait const& wait : analysis.waits) {
      if (wait.grant == Call::none) {
         Call const& request = trace.calls[wait.request];
         result.push_back("no grant in the last " + timeText(trace.last - request.begin) + ": "
               + callText(trace, request));
      }
   }
   for (std::size_t const i : analysis.open) {
      result.push_back("not ended: " + callText(trace, trace.calls[i]));
   }
   if (result.size() > mostRemarks) {
      std::string const more = std::to_string(result.size() - mostRemarks);
      result.resize(mostRemarks);
      result.push_back("and " + more + " more without a grant or an end");
   }
   if (!trace.broken.empty()) {
      result.push_back("the file " + trace.broken);
   }
   return result;
}

void printReport(std::ostream& out, Trace const& trace, Analysis const& analysis)
{
   out << analysis.services << " services called, " << analysis.callbacks
       << " callbacks received, in " << trace.threads.size()
       << (trace.threads.size() == 1 ? " thread and " : " threads and ") << timeText(analysis.wall)
       << "\n\n";
   for (std::string const& remark : remarks(trace, analysis)) {
      out << "! " << remark << '\n';
   }
   out << "Of the wall time, summed over the threads: "
       << shareText(analysis.inServices, analysis.wall) << " in services, "
       << shareText(analysis.inCallbacks, analysis.wall)
       << " in callbacks.\nBetween a request to advance and its grant, summed over the federates: "
       << shareText(analysis.waiting, analysis.wall) << ".\nMaking the ambassador took "
       << timeText(analysis.starting) << ", before that.\n\n";
   printOperations(out, analysis, Category::service, "Services");
   printOperations(out, analysis, Category::callback, "Callbacks");
   printFlows(out, trace.objects, "Attributes");
   printFlows(out, trace.interactions, "Parameters");
   out << "The slowest calls\n";
   for (std::size_t const i : analysis.slowest) {
      Call const& call = trace.calls[i];
      out << std::setw(11) << timeText(call.duration()) << "  " << callText(trace, call) << '\n';
   }
   if (!analysis.failures.empty()) {
      out << "\nExceptions\n";
      for (auto const& failure : analysis.failures) {
         out << std::setw(8) << failure.second << "  " << failure.first.first << ": "
             << failure.first.second << '\n';
      }
   }
}

} // namespace record
