// Writes the page. Where events are too dense to be seen one by one, a column of the picture stands
// for all that fall into it, so that a page does not grow with its recording.
#include "tools/tarn1516e-record/Page.h"

#include "tools/tarn1516e-record/Drawing.h"
#include "tools/tarn1516e-record/Report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <ostream>

namespace record {

namespace {

char const style[] =
      "body{font:14px/1.45 system-ui,'DejaVu Sans',sans-serif;color:#1d2730;margin:24px auto;"
      "width:1160px}h1{font-size:22px;margin:0}h2{font-size:17px;margin:28px 0 6px}"
      "p{margin:6px 0}svg{display:block;font:11px system-ui,'DejaVu Sans',sans-serif}"
      "svg text{fill:#1d2730}.plot{fill:#f6f8fa}.grid{stroke:#d5dce3;fill:none}"
      ".middle{text-anchor:middle}.end{text-anchor:end}rect.service,rect.callback,rect.failed{"
      "stroke:#f6f8fa;stroke-width:.6}.service{fill:#3f7fbf}"
      ".callback{fill:#3b9c6d}.start{fill:#9aa5af}.failed{fill:#c8402f}"
      "svg text.inside{fill:#fff;font-size:10px;pointer-events:none}"
      ".stair{stroke:#1d2730;stroke-width:1.6;fill:none}"
      ".wait{stroke:#b07d1a;stroke-dasharray:3 3;fill:none}"
      ".missing{stroke:#c8402f;stroke-width:2;stroke-dasharray:5 3;fill:none}"
      ".request{stroke:#b07d1a;fill:#fff;stroke-width:1.5}.received{fill:#3b9c6d}"
      ".sent{stroke:#3f7fbf;stroke-width:1.6;fill:none}.rate{fill:none;stroke-width:1.6}"
      "table{border-collapse:collapse;margin:6px 0 14px}"
      "td,th{padding:2px 10px;text-align:right;border-bottom:1px solid #e3e8ed}"
      "td:first-child,th:first-child{text-align:left}td.text{text-align:left}"
      ".remark{background:#fbeae7;border-left:4px solid #c8402f;padding:4px 10px}";

char const* className(Call const& call)
{
   if (!call.exception.empty()) {
      return "failed";
   }
   return call.category == Category::service   ? "service"
         : call.category == Category::callback ? "callback"
                                               : "start";
}

// ---- Timeline

int const laneHeight = 16;
int const mostLanes = 4; // of a thread
double const narrowest = 2;

// What falls into a column of a lane.
struct Column {
   std::size_t calls = 0;
   std::size_t failed = 0;
   double covered = 0;
   Call const* longest = nullptr;
};

void drawCall(Plot& plot, Trace const& trace, Call const& call, double y)
{
   double const x = plot.x(call.begin - trace.first);
   double const width = plot.x(call.end - trace.first) - x;
   std::string tip = callText(trace, call) + ", " + timeText(call.duration());
   if (!call.exception.empty()) {
      tip += ", " + call.exception + ": " + call.text;
   }
   plot.out << "<rect class=\"" << className(call) << "\" x=\"" << pixels(x) << "\" y=\""
            << pixels(y) << "\" width=\"" << pixels(width) << "\" height=\"" << laneHeight - 2
            << "\"><title>" << escaped(tip) << "</title></rect>";
   if (width > 6.2 * static_cast<double>(call.name.size()) + 6) {
      plot.out << "<text class=\"inside\" x=\"" << pixels(x + 3) << "\" y=\"" << pixels(y + 11)
               << "\">" << call.name << "</text>";
   }
   plot.out << '\n';
}

void drawColumn(Plot& plot, Column const& column, int x, double y)
{
   double const opacity = 0.6 + 0.4 * std::min(1.0, column.covered);
   plot.out << "<rect class=\"" << (column.failed > 0 ? "failed" : className(*column.longest))
            << "\" x=\"" << x << "\" y=\"" << pixels(y) << "\" width=\"" << narrowest
            << "\" height=\"" << laneHeight - 2 << "\" fill-opacity=\"" << pixels(opacity)
            << "\"><title>" << column.calls
            << (column.calls == 1 ? " call: " : " calls, the longest: ")
            << escaped(column.longest->name) << ' ' << timeText(column.longest->duration())
            << "</title></rect>\n";
}

void drawLane(Plot& plot, Trace const& trace, std::vector<Call const*> const& calls, double y)
{
   std::map<int, Column> columns;
   for (Call const* const call : calls) {
      double const x = plot.x(call->begin - trace.first);
      double const width = plot.x(call->end - trace.first) - x;
      if (width >= narrowest) {
         drawCall(plot, trace, *call, y);
         continue;
      }
      Column& column = columns[static_cast<int>(x)];
      ++column.calls;
      column.failed += call->exception.empty() ? 0 : 1;
      column.covered += width;
      if (column.longest == nullptr || call->duration() > column.longest->duration()) {
         column.longest = call;
      }
   }
   for (auto const& column : columns) {
      drawColumn(plot, column.second, column.first, y);
   }
}

// Threads by their first call; one without a call is not shown.
std::vector<std::size_t> threadsInOrder(Trace const& trace)
{
   std::map<std::size_t, double> first;
   for (Call const& call : trace.calls) {
      if (call.category != Category::start) {
         first.emplace(call.thread, call.begin);
      }
   }
   std::vector<std::size_t> order;
   for (auto const& entry : first) {
      order.push_back(entry.first);
   }
   std::sort(order.begin(), order.end(),
         [&](std::size_t a, std::size_t b) { return first[a] < first[b]; });
   return order;
}

void drawTimeline(std::ostream& out, Trace const& trace, Analysis const& analysis)
{
   std::map<std::pair<std::size_t, std::size_t>, std::vector<Call const*>> lanes;
   for (Call const& call : trace.calls) {
      if (call.category != Category::start && call.depth < mostLanes) {
         lanes[{call.thread, call.depth}].push_back(&call);
      }
   }
   std::map<std::size_t, double> tops; // of threads
   double height = 6;
   for (std::size_t const thread : threadsInOrder(trace)) {
      tops[thread] = height;
      for (std::size_t depth = 0; lanes.count({thread, depth}) != 0; ++depth) {
         height += laneHeight;
      }
      height += 10;
   }
   Plot plot(out, height, analysis.wall);
   plot.setRange(0, 1);
   plot.drawTimes();
   plot.legend("<rect class=\"service\" y=\"-6\" width=\"12\" height=\"12\"/>", "service");
   plot.legend("<rect class=\"callback\" y=\"-6\" width=\"12\" height=\"12\"/>", "callback");
   plot.legend(
         "<rect class=\"failed\" y=\"-6\" width=\"12\" height=\"12\"/>", "ended by an exception");
   for (auto const& thread : tops) {
      out << "<text class=\"end\" x=\"" << Plot::left - 8 << "\" y=\""
          << pixels(26 + thread.second + 12) << "\">" << escaped(trace.threads[thread.first].name)
          << "</text>\n";
   }
   for (auto const& lane : lanes) {
      double const y =
            26 + tops[lane.first.first] + laneHeight * static_cast<double>(lane.first.second);
      drawLane(plot, trace, lane.second, y);
   }
}

// ---- Logical time

double const beyondAnyPlot = 1e15; // the last time of a kind, for one

struct Advance {
   std::vector<Wait> waits;
   std::vector<Call const*> grants;
   std::vector<Call const*> sent;
   std::vector<Call const*> received;
   double low = beyondAnyPlot;
   double high = -beyondAnyPlot;

   void include(Call const& call)
   {
      if (std::fabs(call.time) < beyondAnyPlot) {
         low = std::min(low, call.time);
         high = std::max(high, call.time);
      }
   }
};

bool isMessage(Call const& call)
{
   return call.name.compare(0, 21, "updateAttributeValues") == 0
         || call.name.compare(0, 15, "sendInteraction") == 0
         || call.name.compare(0, 20, "deleteObjectInstance") == 0
         || call.name == "reflectAttributeValues" || call.name == "receiveInteraction"
         || call.name == "removeObjectInstance";
}

bool isGrant(Call const& call)
{
   return call.name == "timeAdvanceGrant" || call.name == "timeRegulationEnabled"
         || call.name == "timeConstrainedEnabled";
}

// Of the federates that have a time, though they may never advance it.
std::map<int, Advance> findAdvances(Trace const& trace, Analysis const& analysis)
{
   std::map<int, Advance> advances;
   for (Call const& call : trace.calls) {
      if (call.hasTime && isGrant(call)) {
         advances[call.ambassador].grants.push_back(&call);
         advances[call.ambassador].include(call);
      }
   }
   for (Wait const& wait : analysis.waits) {
      Call const& request = trace.calls[wait.request];
      if (request.hasTime) {
         advances[request.ambassador].waits.push_back(wait);
         advances[request.ambassador].include(request);
      }
   }
   for (Call const& call : trace.calls) {
      if (!call.hasTime || advances.count(call.ambassador) == 0) {
         continue;
      }
      if (isMessage(call)) {
         Advance& advance = advances[call.ambassador];
         (call.category == Category::service ? advance.sent : advance.received).push_back(&call);
         advance.include(call);
      }
   }
   for (auto& entry : advances) {
      std::sort(entry.second.grants.begin(), entry.second.grants.end(),
            [](Call const* a, Call const* b) { return a->begin < b->begin; });
   }
   return advances;
}

std::string tipOf(Trace const& trace, Call const& call)
{
   return "<title>" + escaped(callText(trace, call)) + "</title>";
}

void drawMessages(Plot& plot, Trace const& trace, Advance const& advance)
{
   for (Call const* const call : advance.received) {
      double const x = plot.x(call->begin - trace.first);
      double const y = plot.y(call->time);
      if (plot.isFree('r', x, y)) {
         plot.out << "<circle class=\"received\" cx=\"" << pixels(x) << "\" cy=\"" << pixels(y)
                  << "\" r=\"3\">" << tipOf(trace, *call) << "</circle>\n";
      }
   }
   for (Call const* const call : advance.sent) {
      double const x = plot.x(call->begin - trace.first);
      double const y = plot.y(call->time);
      if (plot.isFree('s', x, y)) {
         plot.out << "<path class=\"sent\" d=\"M" << pixels(x - 3) << ' ' << pixels(y - 3)
                  << "l6 6m0-6l-6 6\">" << tipOf(trace, *call) << "</path>\n";
      }
   }
}

void drawWaits(Plot& plot, Trace const& trace, Advance const& advance)
{
   for (Wait const& wait : advance.waits) {
      Call const& request = trace.calls[wait.request];
      double const x = plot.x(request.begin - trace.first);
      double const y = plot.y(request.time);
      bool const isMissing = wait.grant == Call::none;
      double const until = isMissing ? trace.last : trace.calls[wait.grant].begin;
      if (!isMissing && !plot.isFree('w', x, y)) {
         continue;
      }
      plot.out << "<path class=\"" << (isMissing ? "missing" : "wait") << "\" d=\"M" << pixels(x)
               << ' ' << pixels(y) << "H" << pixels(plot.x(until - trace.first)) << "\"/>"
               << "<path class=\"request\" d=\"M" << pixels(x - 4) << ' ' << pixels(y + 4)
               << "l4-8l4 8z\">" << tipOf(trace, request) << "</path>\n";
   }
}

void drawStairs(Plot& plot, Trace const& trace, Advance const& advance)
{
   if (advance.grants.empty()) {
      return;
   }
   std::string path;
   double lastX = 0;
   for (Call const* const grant : advance.grants) {
      double const x = plot.x(grant->begin - trace.first);
      double const y = plot.y(grant->time);
      if (path.empty()) {
         path = "M" + pixels(x) + " " + pixels(y);
      } else if (x - lastX < 0.5 && grant != advance.grants.back()) {
         continue; // a step that nobody sees
      } else {
         path += "H" + pixels(x) + "V" + pixels(y);
      }
      lastX = x;
   }
   plot.out << "<path class=\"stair\" d=\"" << path << "H"
            << pixels(plot.x(trace.last - trace.first)) << "\"/>\n";
}

void drawLogicalTime(std::ostream& out, Trace const& trace, Analysis const& analysis)
{
   std::map<int, Advance> const advances = findAdvances(trace, analysis);
   if (advances.empty()) {
      out << "<p>No federate has a logical time that is told by a number.</p>\n";
   }
   for (auto const& entry : advances) {
      Advance const& advance = entry.second;
      Plot plot(out, 220, analysis.wall);
      plot.setRange(std::min(advance.low, advance.high), std::max(advance.low, advance.high));
      plot.drawTimes();
      plot.drawRange(ambassadorText(trace, entry.first));
      plot.legend("<path class=\"stair\" d=\"M0 4h6v-8h6\"/>", "granted time");
      plot.legend("<path class=\"request\" d=\"M2 4l4-8l4 8z\"/>", "request, to its grant");
      plot.legend("<circle class=\"received\" cx=\"6\" r=\"3\"/>", "message received");
      plot.legend("<path class=\"sent\" d=\"M3-3l6 6m0-6l-6 6\"/>", "message sent");
      plot.legend("<path class=\"missing\" d=\"M0 0h12\"/>", "no grant");
      drawStairs(plot, trace, advance);
      drawWaits(plot, trace, advance);
      drawMessages(plot, trace, advance);
   }
}

// ---- Rates

struct Series {
   char const* name;
   char const* colour;
   std::vector<std::size_t> counts;
};

void drawRates(std::ostream& out, Trace const& trace, Analysis const& analysis)
{
   std::size_t const bins = 100;
   std::vector<std::size_t> const none(bins, 0);
   std::array<Series, 4> series{{{"services", "#3f7fbf", none}, {"callbacks", "#3b9c6d", none},
         {"messages sent", "#7b4fa3", none}, {"messages received", "#b07d1a", none}}};
   double const width = std::max(analysis.wall, 1e-3) / static_cast<double>(bins);
   std::size_t most = 1;
   for (Call const& call : trace.calls) {
      if (call.category == Category::start) {
         continue;
      }
      std::size_t const bin = std::min(
            bins - 1, static_cast<std::size_t>(std::max(0.0, (call.begin - trace.first) / width)));
      std::size_t const isCallback = call.category == Category::callback ? 1 : 0;
      most = std::max(most, ++series[isCallback].counts[bin]);
      if (isMessage(call)) {
         ++series[2 + isCallback].counts[bin];
      }
   }
   double const perSecond = 1e6 / width;
   Plot plot(out, 160, analysis.wall);
   plot.setRange(0, static_cast<double>(most) * perSecond);
   plot.drawTimes();
   plot.drawRange("per second");
   for (Series const& one : series) {
      std::string const stroke =
            std::string("<path class=\"rate\" stroke=\"") + one.colour + "\" d=\"";
      plot.legend(stroke + "M0 0h12\"/>", one.name);
      out << stroke << 'M' << Plot::left << ' ' << pixels(plot.y(0));
      for (std::size_t i = 0; i < bins; ++i) {
         out << 'V' << pixels(plot.y(static_cast<double>(one.counts[i]) * perSecond)) << 'H'
             << pixels(plot.x(static_cast<double>(i + 1) * width));
      }
      out << "\"/>\n";
   }
}

// ---- Tables

void cell(std::ostream& out, std::string const& text)
{
   out << "<td>" << escaped(text) << "</td>";
}

void writeOperations(std::ostream& out, Analysis const& analysis, Category category)
{
   for (auto const& row : byTotal(analysis, category)) {
      Operation const& operation = row.second;
      out << "<tr>";
      cell(out, row.first);
      cell(out, std::to_string(operation.calls));
      cell(out, std::to_string(operation.exceptions));
      for (double const time : {operation.total, operation.mean, operation.median,
                 operation.highest99, operation.most}) {
         cell(out, timeText(time));
      }
      out << "</tr>\n";
   }
}

void writeFlows(std::ostream& out, std::map<std::string, std::map<std::string, Flow>> const& flows)
{
   for (auto const& owner : flows) {
      for (auto const& entry : owner.second) {
         out << "<tr>";
         cell(out, owner.first + "." + entry.first);
         for (std::size_t const figure : {entry.second.sent, entry.second.bytesSent,
                    entry.second.received, entry.second.bytesReceived}) {
            cell(out, std::to_string(figure));
         }
         out << "</tr>\n";
      }
   }
}

void writeLists(std::ostream& out, Trace const& trace, Analysis const& analysis)
{
   out << "<h2>Slowest calls</h2><table>\n";
   for (std::size_t const i : analysis.slowest) {
      out << "<tr><td>" << timeText(trace.calls[i].duration()) << "</td><td class=\"text\">"
          << escaped(callText(trace, trace.calls[i])) << "</td></tr>\n";
   }
   out << "</table>\n";
   if (!analysis.failures.empty()) {
      out << "<h2>Exceptions</h2><table>\n";
      for (auto const& failure : analysis.failures) {
         out << "<tr><td>" << failure.second << "</td><td class=\"text\">"
             << escaped(failure.first.first + ": " + failure.first.second) << "</td></tr>\n";
      }
      out << "</table>\n";
   }
}

} // namespace

void writePage(
      std::ostream& out, std::string const& title, Trace const& trace, Analysis const& analysis)
{
   out << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>"
       << escaped(title) << "</title><style>" << style << "</style></head><body>\n<h1>"
       << escaped(title) << "</h1>\n<p>" << analysis.services << " services called, "
       << analysis.callbacks << " callbacks received, in " << timeText(analysis.wall)
       << ". Of that time, summed over the threads, "
       << shareText(analysis.inServices, analysis.wall) << " in services and "
       << shareText(analysis.inCallbacks, analysis.wall)
       << " in callbacks; summed over the federates, " << shareText(analysis.waiting, analysis.wall)
       << " between a request to advance and its grant. Before, making the ambassador took "
       << timeText(analysis.starting) << ".</p>\n";
   for (std::string const& remark : remarks(trace, analysis)) {
      out << "<p class=\"remark\">" << escaped(remark) << "</p>\n";
   }
   out << "<h2>Threads</h2>\n";
   drawTimeline(out, trace, analysis);
   out << "<h2>Logical time</h2>\n";
   drawLogicalTime(out, trace, analysis);
   out << "<h2>Rates</h2>\n";
   drawRates(out, trace, analysis);
   out << "<h2>Operations</h2>\n<table><tr><th>operation</th><th>calls</th><th>exceptions</th>"
          "<th>total</th><th>mean</th><th>median</th><th>99th "
          "percentile</th><th>maximum</th></tr>\n";
   writeOperations(out, analysis, Category::service);
   writeOperations(out, analysis, Category::callback);
   out << "</table>\n";
   out << "<h2>Attributes and parameters</h2>\n<table><tr><th>attribute or parameter</th>"
          "<th>sent</th><th>bytes</th><th>received</th><th>bytes</th></tr>\n";
   writeFlows(out, trace.objects);
   writeFlows(out, trace.interactions);
   out << "</table>\n";
   writeLists(out, trace, analysis);
   out << "</body></html>\n";
}

} // namespace record
