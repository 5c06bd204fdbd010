// Goes through start-up step by step, tells what was found, and stops where it fails.
#ifndef tarn1516e_check_Diagnosis_h
#define tarn1516e_check_Diagnosis_h

#include "tools/tarn1516e-check/Trial.h"

#include <string>

namespace check {

class Diagnosis {
public:
   // Makes the trial.
   explicit Diagnosis(Request request);

   // Writes a line for each step to the standard output stream, and at the first one that fails
   // what to do about it. True if none does.
   bool tell() const;

   // What was written while starting, behind a bar; the library's own trace behind a '>'.
   void tellOutput() const;
   void tellTrace() const;

private:
   // The steps, each true if the next one may follow.
   bool library() const;
   bool home() const;
   bool options() const;
   bool vm() const;
   bool classPath() const;
   bool jar() const;
   bool classes() const;
   bool natives() const;
   bool ambassador() const;
   bool firstConnect() const;

   // Their failures.
   bool noVm() const;
   bool vmOfAnotherKind(std::string const& file) const;
   bool vmRefuses() const;
   bool noJar() const;
   bool classNotLoaded(std::string const& step, std::string const& className) const;
   bool otherVersion(std::string const& step, std::string const& what) const;
   bool ended(std::string const& step) const;

   bool joined() const;
   std::string ownJar() const;
   std::string jarWithCore() const;

   std::string _home; // without a '/' at its end; empty if there is none
   Trial _trial;
};

} // namespace check

#endif
