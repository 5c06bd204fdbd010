// The recorder's settings travel by the environment, as does its way in front of the library.
#include "tools/tarn1516e-record/Launch.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace record {

namespace {

int const failed = 2;

int fail(std::string const& what, char const* why)
{
   std::fprintf(stderr, "tarn1516e-record: %s: %s\n", what.c_str(), why);
   return failed;
}

// This program's folder.
std::string ownFolder()
{
   char path[PATH_MAX] = "";
#ifdef __APPLE__
   uint32_t size = sizeof path;
   _NSGetExecutablePath(path, &size);
#else
   static_cast<void>(readlink("/proc/self/exe", path, sizeof path - 1) > 0);
#endif
   std::string const text = path;
   return text.substr(0, text.rfind('/'));
}

std::string absolute(std::string const& path)
{
   char folder[PATH_MAX];
   return path[0] == '/' || getcwd(folder, sizeof folder) == nullptr
         ? path
         : std::string(folder) + "/" + path;
}

// Whether the file can be written; what it held is gone.
bool isWritable(std::string const& path)
{
   if (path.find("%p") != std::string::npos) {
      return true; // a name for each process
   }
   int const file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
   if (file < 0) {
      return false;
   }
   close(file);
   return true;
}

void prepareEnvironment(
      std::string const& library, std::string const& output, Settings const& settings, int statusFd)
{
#ifdef __APPLE__
   char const variable[] = "DYLD_INSERT_LIBRARIES";
   setenv("DYLD_FORCE_FLAT_NAMESPACE", "1", 1);
#else
   char const variable[] = "LD_PRELOAD";
#endif
   char const* const others = std::getenv(variable);
   std::string const all = others != nullptr && *others != '\0' ? library + ":" + others : library;
   setenv(variable, all.c_str(), 1);
   setenv("TARN1516E_RECORD_OUTPUT", output.c_str(), 1);
   setenv("TARN1516E_RECORD_LIMIT", std::to_string(settings.limit).c_str(), 1);
   setenv("TARN1516E_RECORD_VALUES", std::to_string(settings.values).c_str(), 1);
   setenv("TARN1516E_RECORD_STATUS", std::to_string(statusFd).c_str(), 1);
}

pid_t child = 0;

void passOn(int signal)
{
   kill(child, signal);
}

// What the terminal sends reaches the program too; what others send is passed on.
void handleSignals()
{
   struct sigaction ignored = {};
   ignored.sa_handler = SIG_IGN;
   sigaction(SIGINT, &ignored, nullptr);
   sigaction(SIGQUIT, &ignored, nullptr);
   struct sigaction passed = {};
   passed.sa_handler = passOn;
   passed.sa_flags = SA_RESTART;
   sigaction(SIGTERM, &passed, nullptr);
   sigaction(SIGHUP, &passed, nullptr);
}

// Whether there is something in the pipe; its writing end may still be open in processes that the
// program has left behind.
bool hasByte(int pipe)
{
   char byte;
   fcntl(pipe, F_SETFL, O_NONBLOCK);
   return read(pipe, &byte, 1) == 1;
}

} // namespace

int launch(char** command, Settings const& settings)
{
   std::string const library = ownFolder() + TARN_RECORD_LIBRARY;
   std::string const output = absolute(settings.output);
   if (access(library.c_str(), R_OK) != 0) {
      return fail(library, std::strerror(errno));
   }
   if (!isWritable(output)) {
      return fail(settings.output, std::strerror(errno));
   }
   int status[2];
   int started[2]; // closes at the start, or tells why there is none
   if (pipe(status) != 0 || pipe(started) != 0) {
      return fail(command[0], std::strerror(errno));
   }
   fcntl(started[1], F_SETFD, FD_CLOEXEC);
   fcntl(status[0], F_SETFD, FD_CLOEXEC);
   std::fflush(nullptr);
   child = fork();
   if (child == 0) {
      prepareEnvironment(library, output, settings, status[1]);
      execvp(command[0], command);
      int const error = errno;
      static_cast<void>(write(started[1], &error, sizeof error) > 0);
      _exit(failed);
   }
   if (child < 0) {
      return fail(command[0], std::strerror(errno));
   }
   handleSignals();
   close(started[1]);
   close(status[1]);
   int error = 0;
   bool const isStarted = read(started[0], &error, sizeof error) <= 0;
   int ended = 0;
   while (waitpid(child, &ended, 0) < 0 && errno == EINTR) {
   }
   if (!isStarted) {
      return fail(command[0], std::strerror(error));
   }
   if (WIFSIGNALED(ended)) {
      return 128 + WTERMSIG(ended);
   }
   return WEXITSTATUS(ended) == 0 && hasByte(status[0]) ? failed : WEXITSTATUS(ended);
}

} // namespace record
