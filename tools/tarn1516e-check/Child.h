// A process of its own for what may end or hang it. It ends with this one.
#ifndef tarn1516e_check_Child_h
#define tarn1516e_check_Child_h

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <sys/types.h>

namespace check {

class Child {
public:
   // How the process tells a value under a name.
   typedef std::function<void(std::string const& name, std::string const& value)> Tell;

   explicit Child(std::chrono::seconds limit);
   ~Child();
   Child(Child const&) = delete;
   Child& operator=(Child const&) = delete;

   // Runs `body` in the new process, whose output streams are read here.
   void start(std::function<void(Tell const&)> const& body);

   // Until the condition holds, which is tried when there is news, or the process ends. One that is
   // late is asked for its threads' stacks, as a Java VM answers SIGQUIT, and killed.
   void waitUntil(std::function<bool()> const& condition);
   void waitForEnd();

   std::string const& output() const;
   bool told(std::string const& name) const;
   std::string valueOf(std::string const& name) const; // empty if it was not told
   bool isLate() const;
   int signal() const; // that ended it, or 0
   int status() const; // with which it exited

private:
   typedef std::chrono::steady_clock Clock;

   void readUntil(std::function<bool()> const& condition, Clock::time_point end);
   void readReport();
   void takeEnd();

   std::chrono::seconds _limit;
   Clock::time_point _end;
   pid_t _process = 0; // 0 before the start and behind the end
   int _outputPipe = -1;
   int _reportPipe = -1; // closed at the other side when the process ends
   std::string _output;
   std::string _report; // not yet whole records
   std::map<std::string, std::string> _values;
   bool _isLate = false;
   int _waitStatus = 0;
};

} // namespace check

#endif
