// A directory of a test's own, with files and folders of the test's choosing.
#ifndef tests_support_Scratch_h
#define tests_support_Scratch_h

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <ftw.h>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

// Lies below TMPDIR or /tmp and is removed with the object.
class Scratch {
public:
   Scratch()
   {
      char const* const parent = std::getenv("TMPDIR");
      std::string pattern = std::string(parent != nullptr ? parent : "/tmp") + "/tarn-test-XXXXXX";
      if (mkdtemp(&pattern[0]) == nullptr) {
         throw std::runtime_error("cannot make " + pattern);
      }
      // Without links, as a process is told its current directory.
      char* const resolved = realpath(pattern.c_str(), nullptr);
      _path = resolved;
      std::free(resolved);
   }

   ~Scratch()
   {
      nftw(_path.c_str(), removeEntry, 16, FTW_DEPTH | FTW_PHYS);
   }

   // With no '/' at its end.
   std::string const& path() const
   {
      return _path;
   }

   // The path of a name below the directory, whose folders are made.
   std::string place(std::string const& name) const
   {
      for (auto slash = name.find('/'); slash != std::string::npos;
            slash = name.find('/', slash + 1)) {
         mkdir((_path + "/" + name.substr(0, slash)).c_str(), 0755);
      }
      return _path + "/" + name;
   }

   void write(std::string const& name, std::string const& content) const
   {
      std::ofstream(place(name), std::ios::binary) << content;
   }

private:
   Scratch(Scratch const&) = delete;
   Scratch& operator=(Scratch const&) = delete;

   static int removeEntry(char const* path, struct stat const*, int, struct FTW*)
   {
      return std::remove(path);
   }

   std::string _path;
};

// Makes a directory the current one for as long as the object lives.
class CurrentDirectory {
public:
   explicit CurrentDirectory(std::string const& path) : _before(current())
   {
      if (chdir(path.c_str()) != 0) {
         throw std::runtime_error("cannot go to " + path);
      }
   }

   ~CurrentDirectory()
   {
      if (chdir(_before.c_str()) != 0) {
         std::abort();
      }
   }

private:
   static std::string current()
   {
      char* const path = getcwd(nullptr, 0);
      std::string const result = path;
      std::free(path);
      return result;
   }

   std::string const _before;
};

#endif
