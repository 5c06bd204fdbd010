// What the check tells: a line for each finding as it comes, or one JSON text at the end.
#ifndef tarn1516e_check_Report_h
#define tarn1516e_check_Report_h

#include <string>
#include <vector>

namespace check {

class Report {
public:
   explicit Report(bool isJson);

   // Names the step that all findings belong to until the next one. Its line appears at once.
   void begin(std::string const& step);

   // The step's own finding, which ends its line; the answer is whether the next one may follow.
   bool found(std::string const& what);
   bool failed(std::string const& what, std::string const& remedy);

   // Something between right and wrong. It is told behind the step's own finding.
   void warn(std::string const& what, std::string const& remedy);

   struct Versions {
      std::string rti, vm, jar; // empty if unknown
   };
   struct Output {
      std::vector<std::string> trace; // lines of the library's own trace
      std::vector<std::string> other; // and of all else that start-up wrote
   };
   void end(Versions const& versions, Output const& output, bool isVerbose);

private:
   enum class Kind {
      found,
      warning,
      failed
   };
   struct Finding {
      std::string step;
      Kind kind;
      std::string what;
      std::string remedy;
   };

   void tell(Finding const& finding);
   void print(Finding const& finding) const;
   void printEnd(Output const& output, bool isVerbose) const;
   void printJson(Versions const& versions, Output const& output) const;

   bool const _isJson;
   std::string _step;
   bool _isLineOpen = false;
   std::vector<Finding> _findings;
   std::vector<Finding> _waiting; // warnings of this step
   bool _hasFailed = false;
};

} // namespace check

#endif
