// A start-up as a federate goes through it, in a process of its own, and what came of it.
#ifndef tarn1516e_check_Trial_h
#define tarn1516e_check_Trial_h

#include "tools/tarn1516e-check/Child.h"

#include <string>
#include <vector>

namespace check {

struct Request {
   std::wstring settings; // local settings designator for connect
   bool hostVm = false;   // whether a VM is to be there before, with this class path
   std::string hostClassPath;
   std::chrono::seconds limit = std::chrono::seconds(60); // for each process that is started
};

class Trial {
public:
   // A home may name a VM that the library path does not.
   Trial(Request const& request, std::string const& home);

   void start();

   // How far it has come; each waits until that is known.
   void waitForVm();
   void waitForCore();
   void waitForAmbassador();
   void waitForEnd();

   bool isCreated() const; // whether there was an ambassador
   bool isConnected() const;
   bool isLate() const;
   bool isJoined() const;           // to a VM that was there before
   std::string hostFailure() const; // why there was none
   std::string vm() const;          // file of the VM library, known at the end; empty if none
   std::string exception() const;   // its class, without the namespace, and its text
   std::string text() const;
   std::string vmVersion() const; // these too are known at the end
   std::string jarVersion() const;
   int signal() const; // that ended the process
   int status() const; // with which it exited otherwise

   // Of what was written: the lines of the library's trace without its prefix, and the others.
   std::vector<std::string> trace() const;
   std::vector<std::string> output() const;

   bool traced(std::string const& line) const;

   // What stands between quotes in the trace line that begins so; empty if there is none.
   std::string tracedValue(std::string const& beginning) const;

   // The first line of the output that holds the text, without blanks around it.
   std::string outputLine(std::string const& part) const;

private:
   std::vector<std::string> lines(bool ofTrace) const;

   Request _request;
   std::string _home;
   Child _child;
};

// Of one of the library's texts: what stands in front of its first hole, and what begins so.
std::string beginningOf(std::string const& pattern);
bool isOf(std::string const& text, std::string const& pattern);

// Of options that a VM has started with: those that it does not know, and passed over.
std::vector<std::size_t> unknownOptions(
      Request const& request, std::string const& home, std::vector<std::string> const& options);

} // namespace check

#endif
