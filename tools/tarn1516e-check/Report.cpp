#include "tools/tarn1516e-check/Report.h"

#include "tools/tarn1516e-check/Json.h"

#include <algorithm>
#include <cstdio>

namespace check {

Report::Report(bool isJson) : _isJson(isJson) {}

void Report::begin(std::string const& step)
{
   _step = step;
   _isLineOpen = true;
   if (!_isJson) {
      std::printf("%-15s ", step.c_str());
      std::fflush(stdout);
   }
}

bool Report::found(std::string const& what)
{
   tell({_step, Kind::found, what, ""});
   return true;
}

bool Report::failed(std::string const& what, std::string const& remedy)
{
   _hasFailed = true;
   tell({_step, Kind::failed, what, remedy});
   return false;
}

void Report::warn(std::string const& what, std::string const& remedy)
{
   if (_isLineOpen) {
      _waiting.push_back({_step, Kind::warning, what, remedy});
   } else {
      tell({_step, Kind::warning, what, remedy});
   }
}

void Report::tell(Finding const& finding)
{
   _findings.push_back(finding);
   if (!_isJson) {
      print(finding);
   }
   _isLineOpen = false;
   std::vector<Finding> const waiting = std::move(_waiting);
   _waiting.clear();
   for (Finding const& one : waiting) {
      tell(one);
   }
}

void Report::print(Finding const& finding) const
{
   if (!_isLineOpen) {
      std::printf("%-15s ", finding.step.c_str());
   }
   char const* const kinds[] = {"", "WARNING: ", "FAILED: "};
   std::printf("%s%s\n", kinds[static_cast<int>(finding.kind)], finding.what.c_str());
   if (finding.kind != Kind::found) {
      std::printf("What to do: %s\n", finding.remedy.c_str());
   }
}

void Report::end(Versions const& versions, Output const& output, bool isVerbose)
{
   if (_isJson) {
      printJson(versions, output);
   } else {
      printEnd(output, isVerbose);
   }
}

void Report::printEnd(Output const& output, bool isVerbose) const
{
   auto const warnings = std::count_if(_findings.begin(), _findings.end(),
         [](Finding const& finding) { return finding.kind == Kind::warning; });
   if (!_hasFailed && warnings == 0) {
      std::puts("All is well: a federate starts here.");
   } else if (!_hasFailed) {
      std::printf("A federate starts here; warnings: %d.\n", static_cast<int>(warnings));
   }
   for (std::string const& line : isVerbose ? output.trace : std::vector<std::string>()) {
      std::printf("   > %s\n", line.c_str());
   }
   bool const isOtherWanted = isVerbose || _hasFailed;
   for (std::string const& line : isOtherWanted ? output.other : std::vector<std::string>()) {
      std::printf("   | %s\n", line.c_str());
   }
}

void Report::printJson(Versions const& versions, Output const& output) const
{
   char const* const kinds[] = {"found", "warning", "failed"};
   std::vector<std::string> findings;
   for (Finding const& finding : _findings) {
      findings.push_back("{\"step\": " + json::text(finding.step) + ", \"result\": \""
            + kinds[static_cast<int>(finding.kind)] + "\", \"finding\": " + json::text(finding.what)
            + ", \"remedy\": " + json::textOrNull(finding.remedy) + "}");
   }
   auto const quoted = [](std::vector<std::string> lines) {
      std::transform(lines.begin(), lines.end(), lines.begin(), json::text);
      return json::list(lines, "   ");
   };
   std::printf("{\n   \"starts\": %s,\n", _hasFailed ? "false" : "true");
   std::printf("   \"versions\": {\"library\": %s, \"vm\": %s, \"jar\": %s},\n",
         json::textOrNull(versions.rti).c_str(), json::textOrNull(versions.vm).c_str(),
         json::textOrNull(versions.jar).c_str());
   std::printf("   \"findings\": %s,\n", json::list(findings, "   ").c_str());
   std::printf("   \"trace\": %s,\n", quoted(output.trace).c_str());
   std::printf("   \"output\": %s\n}\n", quoted(output.other).c_str());
}

} // namespace check
