#include "tests/support/Child.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

unsigned int const timeLimit = 120; // seconds

std::vector<char*> pointers(std::vector<std::string> const& texts)
{
   std::vector<char*> result;
   for (std::string const& text : texts) {
      result.push_back(const_cast<char*>(text.c_str()));
   }
   result.push_back(nullptr);
   return result;
}

// A file without a name, so that the child can write all it wants and nobody has to read meanwhile.
class Stream {
public:
   Stream() : _file(std::tmpfile())
   {
      if (_file == nullptr) {
         throw std::runtime_error("cannot make a temporary file");
      }
   }

   ~Stream()
   {
      std::fclose(_file);
   }

   int descriptor() const
   {
      return fileno(_file);
   }

   std::string content() const
   {
      std::string text;
      std::rewind(_file);
      for (int character; (character = std::fgetc(_file)) != EOF;) {
         text += static_cast<char>(character);
      }
      return text;
   }

private:
   Stream(Stream const&) = delete;
   Stream& operator=(Stream const&) = delete;

   std::FILE* _file;
};

// The options of sanitizers go with every child: they are the build's affair, not the test's.
std::vector<std::string> withSanitizers(std::vector<std::string> environment)
{
   for (char const* const variable : {"ASAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"}) {
      if (char const* const value = std::getenv(variable)) {
         environment.push_back(std::string(variable) + "=" + value);
      }
   }
   return environment;
}

std::string describe(int status)
{
   return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                              : "exit " + std::to_string(WEXITSTATUS(status));
}

} // namespace

Outcome runChild(std::string const& program, std::vector<std::string> const& arguments,
      std::vector<std::string> const& environment, std::string const& directory)
{
   std::vector<std::string> command = {program};
   command.insert(command.end(), arguments.begin(), arguments.end());
   std::vector<char*> const argv = pointers(command);
   std::vector<std::string> const settings = withSanitizers(environment);
   std::vector<char*> const envp = pointers(settings);
   Stream const out;
   Stream const err;
   pid_t const child = fork();
   if (child == 0) {
      int const in = open("/dev/null", O_RDONLY);
      bool const isSet = in >= 0 && dup2(in, 0) == 0 && dup2(out.descriptor(), 1) == 1
            && dup2(err.descriptor(), 2) == 2 && chdir(directory.c_str()) == 0;
      alarm(timeLimit); // goes on counting in the program
      if (isSet) {
         execve(program.c_str(), argv.data(), envp.data());
      }
      std::perror(program.c_str());
      _exit(127);
   }
   int status = 0;
   if (child < 0 || waitpid(child, &status, 0) != child) {
      throw std::runtime_error("cannot run " + program);
   }
   return {describe(status), out.content(), err.content()};
}
