#include "tools/tarn1516e-check/Trial.h"

#include "tools/tarn1516e-check/HostVm.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>

#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <typeinfo>
#include <unistd.h>

namespace check {

namespace {

std::string const tracePrefix = "TARN1516E_TRACE_LOAD: ";

// ---- In the child. It writes records "name=value" to a pipe, each with a zero behind it

class Report {
public:
   explicit Report(int pipe) : _pipe(pipe) {}

   // A value is cut so that all records together fit into the pipe.
   void tell(std::string const& name, std::string const& value) const
   {
      std::string const record = name + "=" + value.substr(0, 4096);
      if (write(_pipe, record.c_str(), record.size() + 1) < 0) {
         _exit(1);
      }
   }

private:
   int _pipe;
};

std::string narrowed(std::wstring const& wide)
{
   std::string narrow;
   for (wchar_t const character : wide) {
      narrow += character < 0x80 ? static_cast<char>(character) : '?';
   }
   return narrow;
}

std::string className(std::type_info const& type)
{
   int status = 0;
   std::unique_ptr<char, void (*)(void*)> const name(
         abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
   std::string const text = status == 0 ? name.get() : type.name();
   std::string::size_type const colon = text.rfind(':');
   return colon == std::string::npos ? text : text.substr(colon + 1);
}

void tellVm(Report const& report)
{
   Dl_info library;
   void* const entry = dlsym(RTLD_DEFAULT, "JNI_CreateJavaVM");
   if (entry != nullptr && dladdr(entry, &library) != 0) {
      report.tell("vm", library.dli_fname);
   }
}

void startAsFederate(Request const& request, Report const& report)
{
   if (request.hostVm) {
      std::string const failure = startHostVm(request.home, request.hostClassPath);
      if (!failure.empty()) {
         report.tell("hostFailure", failure);
         return;
      }
   }
   try {
      rti1516e::NullFederateAmbassador callbacks;
      rti1516e::RTIambassadorFactory factory;
      std::unique_ptr<rti1516e::RTIambassador> const rti(factory.createRTIambassador().release());
      report.tell("created", "");
      rti->connect(callbacks, rti1516e::HLA_EVOKED, request.settings);
      report.tell("connected", "");
      rti->disconnect();
   } catch (rti1516e::Exception const& e) {
      report.tell("exception", className(typeid(e)));
      report.tell("text", narrowed(e.what()));
   }
   tellVm(report);
}

[[noreturn]] void runChild(Request const& request, int reportPipe, int outputPipe)
{
   dup2(outputPipe, STDOUT_FILENO);
   dup2(outputPipe, STDERR_FILENO);
   close(outputPipe);
   rlimit const noCore = {0, 0}; // an end by a signal is an answer here
   setrlimit(RLIMIT_CORE, &noCore);
   setenv("TARN1516E_TRACE_LOAD", "", 1);
   startAsFederate(request, Report(reportPipe));
   _exit(0);
}

// ---- In the parent

struct Pipe {
   int ends[2]; // to read from, to write to

   Pipe()
   {
      if (pipe(ends) != 0) {
         throw std::runtime_error("no pipe for the trial's process");
      }
   }
};

std::string readAll(int pipe)
{
   std::string text;
   char buffer[4096];
   ssize_t count;
   while ((count = read(pipe, buffer, sizeof buffer)) > 0) {
      text.append(buffer, static_cast<std::size_t>(count));
   }
   close(pipe);
   return text;
}

void takeOutput(Trial& trial, std::string const& output)
{
   std::istringstream lines(output);
   std::string line;
   while (std::getline(lines, line)) {
      std::string::size_type const prefix = line.find(tracePrefix);
      if (prefix != std::string::npos) {
         trial.trace.push_back(line.substr(prefix + tracePrefix.size()));
      } else if (!line.empty()) {
         trial.output += line + "\n";
      }
   }
}

void takeReport(Trial& trial, std::string const& report)
{
   std::istringstream records(report);
   std::string record;
   while (std::getline(records, record, '\0')) {
      std::string::size_type const equals = record.find('=');
      std::string const name = record.substr(0, equals);
      std::string const value = record.substr(equals + 1);
      trial.created = trial.created || name == "created";
      trial.connected = trial.connected || name == "connected";
      if (name == "vm") {
         trial.vm = value;
      } else if (name == "hostFailure") {
         trial.hostFailure = value;
      } else if (name == "exception") {
         trial.exception = value;
      } else if (name == "text") {
         trial.text = value;
      }
   }
}

} // namespace

bool Trial::traced(std::string const& line) const
{
   for (std::string const& one : trace) {
      if (one == line) {
         return true;
      }
   }
   return false;
}

std::string Trial::tracedValue(std::string const& beginning) const
{
   for (std::string const& line : trace) {
      if (line.compare(0, beginning.size(), beginning) == 0) {
         std::string::size_type const first = line.find('\'') + 1;
         return line.substr(first, line.rfind('\'') - first);
      }
   }
   return std::string();
}

std::string Trial::outputLine(std::string const& part) const
{
   std::istringstream lines(output);
   std::string line;
   while (std::getline(lines, line)) {
      if (line.find(part) != std::string::npos) {
         std::string::size_type const first = line.find_first_not_of(" \t");
         return line.substr(first, line.find_last_not_of(" \t") + 1 - first);
      }
   }
   return std::string();
}

Trial tryToStart(Request const& request)
{
   Pipe report, output;
   pid_t const child = fork();
   if (child < 0) {
      throw std::runtime_error("no process for the trial");
   }
   if (child == 0) {
      close(report.ends[0]);
      close(output.ends[0]);
      runChild(request, report.ends[1], output.ends[1]);
   }
   close(report.ends[1]);
   close(output.ends[1]);

   Trial trial;
   takeOutput(trial, readAll(output.ends[0]));
   takeReport(trial, readAll(report.ends[0]));
   int status = 0;
   waitpid(child, &status, 0);
   trial.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
   trial.status = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
   return trial;
}

} // namespace check
