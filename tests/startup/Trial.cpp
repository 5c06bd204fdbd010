#include "tests/startup/Trial.h"

#include "jvm/Platform.h"
#include "tests/support/Child.h"
#include "tests/support/Scratch.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

typedef std::vector<std::string> Texts;

class Place {
public:
   Place()
   {
      std::string const libraries = "home/lib/x/";
      link(libraries + RTI_LIBRARY_NAME, RTI_LIBRARY);
      link(libraries + FEDTIME_LIBRARY_NAME, FEDTIME_LIBRARY);
      // A copy: the system takes a link's target for the place of a program.
      std::ifstream const program(STARTER, std::ios::binary);
      std::ofstream(starter(), std::ios::binary) << program.rdbuf();
      chmod(starter().c_str(), 0755);
      mkdir(_scratch.place("work").c_str(), 0755);
   }

   void lay(Trial::File const& file) const
   {
      std::string const content = named(file.content);
      if (content.compare(0, 3, "-> ") == 0) {
         link(named(file.name), content.substr(3));
      } else {
         _scratch.write(named(file.name), content);
      }
   }

   std::string named(std::string text) const
   {
      std::string const home = _scratch.path() + "/home/lib/x/../../";
      std::string const library = _scratch.path() + "/home/lib/x/" RTI_LIBRARY_NAME;
      std::pair<char const*, std::string> const names[] = {
            {"{scratch}", _scratch.path()},
            {"{home}", home},
            {"{library}", library},
            {"{libjvm}", tarn1516e::vmLibraryName},
            {"{search}", SEARCH_PATH},
            {"{jdk}", jdk()},
            {"{jar}", STAND_IN_JAR},
            {"{classes}", CLASSES},
            {"{fake}", VM_WITH_BOTH_ENTRIES},
            {"{entries-0}", VM_WITHOUT_ENTRIES},
            {"{entries-1}", VM_WITH_ONE_ENTRY},
      };
      for (auto const& name : names) {
         std::string::size_type at;
         while ((at = text.find(name.first)) != std::string::npos) {
            text.replace(at, std::string(name.first).size(), name.second);
         }
      }
      return text;
   }

   Texts named(Texts texts) const
   {
      for (std::string& text : texts) {
         text = named(text);
      }
      return texts;
   }

   Outcome start(Trial const& trial) const
   {
      Texts environment = named(trial.environment);
      environment.insert(environment.end(), {"VM_TELLS=", "VM_NULL="}); // for the VM that is none
      return runChild(starter(), named(trial.steps), environment, work());
   }

private:
   std::string starter() const
   {
      return _scratch.place("home/lib/x/starter");
   }

   std::string work() const
   {
      return _scratch.path() + "/work";
   }

   void link(std::string const& name, std::string const& target) const
   {
      if (symlink(target.c_str(), _scratch.place(name).c_str()) != 0) {
         throw std::runtime_error("cannot link " + name);
      }
   }

   static std::string jdk()
   {
      char const* const other = std::getenv("STARTUP_JDK");
      return other != nullptr ? other : JDK_HOME;
   }

   Scratch _scratch;
};

Texts lines(std::string const& text)
{
   Texts result;
   std::istringstream in(text);
   for (std::string line; std::getline(in, line);) {
      result.push_back(line + (in.eof() ? "" : "\\n"));
   }
   return result;
}

bool isStackFrame(std::string const& line)
{
   return line.compare(0, 4, "\tat ") == 0 || line.compare(0, 5, "\t... ") == 0;
}

void expectSame(std::string const& what, std::string const& expected, std::string const& actual)
{
   Texts const expectedLines = lines(expected);
   Texts actualLines = lines(actual);
   actualLines.erase(
         std::remove_if(actualLines.begin(), actualLines.end(), isStackFrame), actualLines.end());
   for (Texts::size_type i = 0; i < std::max(expectedLines.size(), actualLines.size()); ++i) {
      std::string const end = "(nothing)";
      std::string const wanted = i < expectedLines.size() ? expectedLines[i] : end;
      std::string const came = i < actualLines.size() ? actualLines[i] : end;
      if (wanted != came) {
         ADD_FAILURE() << what << ", line " << i + 1 << "\n  expected " << wanted << "\n  came     "
                       << came << "\nwhole:\n"
                       << actual;
         return;
      }
   }
}

} // namespace

void run(Trial const& trial)
{
   Place const place;
   for (Trial::File const& file : trial.files) {
      place.lay(file);
   }
   Outcome const outcome = place.start(trial);
   EXPECT_EQ("exit 0", outcome.ending) << trial.name;
   expectSame(trial.name + ", standard output", place.named(trial.out), outcome.out);
   expectSame(trial.name + ", standard error", place.named(trial.err), outcome.err);
}

void run(std::vector<Trial> const& trials)
{
   for (Trial const& trial : trials) {
      run(trial);
   }
}
