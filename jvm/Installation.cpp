// Where an installation is looked for, and what the environment gives a new VM.
#include "jvm/Installation.h"

#include <cstdlib>
#include <dlfcn.h>
#include <fstream>
#include <unistd.h>

namespace tarn1516e {

bool fileExists(std::string const& path)
{
   return access(path.c_str(), F_OK) == 0;
}

std::string getDirName(std::string const& path)
{
   std::string::size_type const slash = path.rfind('/');
   return slash == std::string::npos ? path : path.substr(0, slash + 1);
}

bool isTarnHome(std::string const& directory)
{
   return fileExists(directory + markerBelowHome);
}

char const* libraryFile()
{
   Dl_info library;
   void* const inside = reinterpret_cast<void*>(&tarn1516e_exported_symbol_for_dlsym);
   return dladdr(inside, &library) != 0 ? library.dli_fname : nullptr;
}

std::vector<std::string> homeCandidates(std::string const& libraryFile)
{
   std::vector<std::string> candidates;
   if (!libraryFile.empty()) {
      candidates.push_back(getDirName(libraryFile) + "../../");
   }
   if (char const* const value = std::getenv(homeVariable)) {
      candidates.push_back(std::string(value) + "/");
   }
   return candidates;
}

std::string classPath(std::string const& home)
{
   char const* const value = std::getenv("CLASSPATH");
   std::string path = value != nullptr ? value : "";
   if (fileExists(home + jarBelowHome)) {
      path += ":" + home + jarBelowHome;
   }
   return path;
}

std::vector<GivenOption> givenOptions()
{
   std::vector<GivenOption> options;
   for (int i = 1; i <= optionVariables; ++i) {
      std::string const variable = optionVariable + std::to_string(i);
      if (char const* const value = std::getenv(variable.c_str())) {
         options.push_back({value, variable});
      }
   }
   std::ifstream file(optionFile);
   std::string line;
   while (file.good() && ownOptions + static_cast<int>(options.size()) < optionLimit) {
      std::getline(file, line);
      if (!line.empty() && line[0] != '#') {
         options.push_back({line, optionFile});
      }
   }
   return options;
}

} // namespace tarn1516e
