#include "tools/tarn1516e-check/Child.h"

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__linux__)
#include <sys/prctl.h>
#endif

namespace check {

namespace {

struct Pipe {
   int ends[2]; // to read from, to write to

   Pipe()
   {
      if (pipe(ends) != 0) {
         throw std::runtime_error("no pipe for the trial's process");
      }
      // What the process starts in its turn does not keep it open.
      fcntl(ends[1], F_SETFD, FD_CLOEXEC);
      fcntl(ends[0], F_SETFL, O_NONBLOCK);
   }
};

void writeAll(int pipe, std::string const& text)
{
   std::string::size_type done = 0;
   while (done < text.size()) {
      ssize_t const count = write(pipe, text.data() + done, text.size() - done);
      if (count < 0) {
         _exit(1);
      }
      done += static_cast<std::string::size_type>(count);
   }
}

// Appends what can be read now. False at the end of the stream.
bool readNow(int pipe, std::string& text)
{
   char buffer[4096];
   ssize_t count;
   while ((count = read(pipe, buffer, sizeof buffer)) > 0) {
      text.append(buffer, static_cast<std::size_t>(count));
   }
   return count < 0;
}

} // namespace

Child::Child(std::chrono::seconds limit) : _limit(limit) {}

Child::~Child()
{
   if (_process != 0) {
      kill(_process, SIGKILL);
      takeEnd();
   }
}

void Child::start(std::function<void(Tell const&)> const& body)
{
   Pipe report, output;
   std::fflush(stdout); // so that the process does not write it again
   pid_t const parent = getpid();
   _process = fork();
   if (_process < 0) {
      _process = 0;
      throw std::runtime_error("no process for the trial");
   }
   if (_process == 0) {
#if defined(__linux__)
      prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
      if (getppid() != parent) {
         _exit(1);
      }
      dup2(output.ends[1], STDOUT_FILENO);
      dup2(output.ends[1], STDERR_FILENO);
      rlimit const noCore = {0, 0}; // an end by a signal is an answer here
      setrlimit(RLIMIT_CORE, &noCore);
      body([&report](std::string const& name, std::string const& value) {
         writeAll(report.ends[1], name + "=" + value + '\0');
      });
      std::fflush(nullptr);
      _exit(0);
   }
   close(report.ends[1]);
   close(output.ends[1]);
   _reportPipe = report.ends[0];
   _outputPipe = output.ends[0];
   _end = Clock::now() + _limit;
}

void Child::waitUntil(std::function<bool()> const& condition)
{
   readUntil(condition, _end);
   if (_process != 0 && !condition()) {
      _isLate = true;
      kill(_process, SIGQUIT);
      readUntil([] { return false; }, Clock::now() + std::chrono::seconds(1));
      if (_process != 0) {
         kill(_process, SIGKILL);
         takeEnd();
      }
   }
}

void Child::waitForEnd()
{
   waitUntil([] { return false; });
}

void Child::readUntil(std::function<bool()> const& condition, Clock::time_point end)
{
   while (_process != 0 && !condition()) {
      auto const left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
      if (left <= 0) {
         return;
      }
      pollfd pipes[] = {{_reportPipe, POLLIN, 0}, {_outputPipe, POLLIN, 0}};
      if (poll(pipes, 2, static_cast<int>(left)) <= 0) {
         continue;
      }
      bool const lives = readNow(_reportPipe, _report);
      if (!readNow(_outputPipe, _output)) {
         close(_outputPipe);
         _outputPipe = -1; // which poll passes over
      }
      readReport();
      if (!lives) {
         takeEnd();
      }
   }
}

// Records are "name=value", each with a zero behind it.
void Child::readReport()
{
   std::string::size_type end;
   while ((end = _report.find('\0')) != std::string::npos) {
      std::string::size_type const equals = _report.find('=');
      _values[_report.substr(0, equals)] = _report.substr(equals + 1, end - equals - 1);
      _report.erase(0, end + 1);
   }
}

void Child::takeEnd()
{
   waitpid(_process, &_waitStatus, 0);
   _process = 0;
   readNow(_outputPipe, _output);
   close(_outputPipe);
   close(_reportPipe);
}

std::string const& Child::output() const
{
   return _output;
}

bool Child::told(std::string const& name) const
{
   return _values.count(name) != 0;
}

std::string Child::valueOf(std::string const& name) const
{
   auto const found = _values.find(name);
   return found != _values.end() ? found->second : std::string();
}

bool Child::isLate() const
{
   return _isLate;
}

int Child::signal() const
{
   return WIFSIGNALED(_waitStatus) ? WTERMSIG(_waitStatus) : 0;
}

int Child::status() const
{
   return WIFEXITED(_waitStatus) ? WEXITSTATUS(_waitStatus) : 0;
}

} // namespace check
