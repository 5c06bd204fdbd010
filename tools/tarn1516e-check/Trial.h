// A start-up as a federate goes through it, in a process of its own, and what came of it.
#ifndef tarn1516e_check_Trial_h
#define tarn1516e_check_Trial_h

#include <string>
#include <vector>

namespace check {

struct Request {
   std::wstring settings; // local settings designator for connect
   bool hostVm = false;   // whether a VM is to be there before, with this class path
   std::string hostClassPath;
   std::string home; // where that VM may be found
};

struct Trial {
   std::vector<std::string> trace; // of the library, without its prefix
   std::string output;             // all else on the standard output and error streams
   std::string vm;                 // file of the VM library, empty if none was loaded
   std::string hostFailure;        // why there was no VM before
   bool created = false;           // whether there was an ambassador
   bool connected = false;
   std::string exception; // its class, without the namespace, and its text
   std::string text;
   int signal = 0; // that ended the process
   int status = 0; // with which it exited otherwise

   bool traced(std::string const& line) const;

   // What stands between quotes in the trace line that begins so; empty if there is none.
   std::string tracedValue(std::string const& beginning) const;

   // The first line of the output that holds the text, without blanks around it.
   std::string outputLine(std::string const& part) const;
};

Trial tryToStart(Request const& request);

} // namespace check

#endif
