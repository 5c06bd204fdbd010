// Goes through start-up step by step, reports what was found, and stops where it fails.
#ifndef tarn1516e_check_Diagnosis_h
#define tarn1516e_check_Diagnosis_h

#include "jvm/Installation.h"
#include "tools/tarn1516e-check/Report.h"
#include "tools/tarn1516e-check/Trial.h"

#include <string>
#include <vector>

namespace check {

class Diagnosis {
public:
   Diagnosis(Request const& request, Report& report);

   // Whether a federate starts.
   bool run();

   Report::Versions versions() const;
   Report::Output output() const;

private:
   // The steps, each true if the next one may follow.
   bool library();
   bool home();
   bool options();
   bool vm();
   bool classPath();
   bool jar();
   bool classes();
   bool natives();
   bool ambassador();
   bool firstConnect();

   // Their failures.
   bool noVm();
   bool vmOfAnotherKind(std::string const& file);
   bool vmRefuses();
   bool noJar();
   bool classNotLoaded(std::string const& className);
   bool otherVersion(std::string const& what);
   bool ended();

   // What is between right and wrong.
   void warnOfOptions();
   void warnOfVm();
   void warnOfJars();

   std::string vmFile();
   std::string below(char const* path) const; // of the home, as it is shown
   std::string optionIn(std::vector<std::string> const& lines) const;
   bool isReplaced() const;         // the class path, by an option
   std::string replacement() const; // that option, as it is shown
   std::string classPathText() const;
   std::vector<std::string> classPathElements() const;
   std::string elementWith(std::string const& className) const;

   Request _request;
   Report& _report;
   std::string _home; // with a '/' at its end; empty if there is none
   std::vector<tarn1516e::GivenOption> _options;
   tarn1516e::GivenOption _classPathOption; // without a text if there is none
   Trial _trial;
};

} // namespace check

#endif
