// Files, variables, libraries and classes, looked at from outside.
#include "tools/tarn1516e-check/Surroundings.h"

#include "jvm/Installation.h"
#include "jvm/Platform.h"
#include "tools/tarn1516e-check/Archive.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <langinfo.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

#if defined(__APPLE__)
#include <cstdint>
#include <mach-o/dyld.h>

extern char** environ;
#endif

namespace check {

// ---- Files

bool exists(std::string const& path)
{
   struct stat status;
   return stat(path.c_str(), &status) == 0;
}

bool isDirectory(std::string const& path)
{
   struct stat status;
   return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isDanglingLink(std::string const& path)
{
   struct stat status;
   return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode) && !exists(path);
}

std::string targetOf(std::string const& link)
{
   char target[4096];
   ssize_t const size = readlink(link.c_str(), target, sizeof target);
   return std::string(target, size > 0 ? static_cast<std::size_t>(size) : 0);
}

std::string directoryOf(std::string const& path)
{
   std::string::size_type const slash = path.rfind('/');
   return slash == std::string::npos ? "." : path.substr(0, slash);
}

std::string resolved(std::string const& path)
{
   char* const result = realpath(path.c_str(), nullptr);
   std::string text = result != nullptr ? result : path;
   std::free(result);
   return text;
}

bool isUnreadable(std::string const& path)
{
   struct stat status;
   if (lstat(path.c_str(), &status) != 0) {
      return false;
   }
   return isDirectory(path) || !std::ifstream(path).is_open();
}

// Java splits a class path at each colon, and knows no bytes beyond ASCII where the locale has
// none.
std::string whyJavaCannotRead(std::string const& path)
{
   if (path.find(':') != std::string::npos) {
      return "holds a colon, at which Java splits its class path";
   }
   std::string const encoding = nl_langinfo(CODESET);
   bool const isAscii = encoding == "ANSI_X3.4-1968" || encoding == "US-ASCII";
   bool const isBeyond = std::any_of(path.begin(), path.end(),
         [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
   return isAscii && isBeyond ? "holds letters that Java can't read in this locale" : "";
}

// ---- The environment

std::string valueOf(char const* variable)
{
   char const* const value = std::getenv(variable);
   return value != nullptr ? value : "";
}

std::vector<std::string> elementsOf(std::string const& path)
{
   std::vector<std::string> elements;
   std::string::size_type begin = 0, colon;
   while ((colon = path.find(':', begin)) != std::string::npos) {
      elements.push_back(path.substr(begin, colon - begin));
      begin = colon + 1;
   }
   elements.push_back(path.substr(begin));
   return elements;
}

std::vector<std::string> variablesLike(std::string const& beginning)
{
   std::vector<std::string> names;
   for (char** setting = environ; *setting != nullptr; ++setting) {
      std::string const text = *setting;
      if (text.compare(0, beginning.size(), beginning) == 0) {
         names.push_back(text.substr(0, text.find('=')));
      }
   }
   return names;
}

std::string visible(std::string const& text)
{
   std::map<char, std::string> const escapes = {{'\r', "\\r"}, {'\t', "\\t"}, {'\f', "\\f"}};
   std::string shown;
   for (char const character : text) {
      auto const escape = escapes.find(character);
      shown += escape != escapes.end() ? escape->second : std::string(1, character);
   }
   return shown;
}

// ---- Libraries

// OWN_LIBRARY is where it lies, seen from this program's folder.
std::string ownLibrary()
{
#if defined(__APPLE__)
   char program[4096];
   uint32_t size = sizeof program;
   std::string const path = _NSGetExecutablePath(program, &size) == 0 ? program : "";
#else
   std::string const path = resolved("/proc/self/exe");
#endif
   std::string const library = directoryOf(path) + "/" OWN_LIBRARY;
   return exists(library) ? resolved(library) : std::string();
}

namespace {

#if defined(__APPLE__)

// A file for one processor begins with a mark and the processor, 4 bytes each, in the order of the
// processors that there are. One for several begins with another mark, a count, and 20 bytes for
// each, of which the first 4 are the processor; there the most significant byte comes first.
std::string machineIn(std::string const& head)
{
   std::map<unsigned long, std::string> const names = {
         {0x01000007, "x86-64"}, {0x0100000c, "arm64"}};
   auto const number = [&head](std::size_t offset, bool bigEndian) {
      unsigned long value = 0;
      for (std::size_t i = 0; i < 4; ++i) {
         std::size_t const place = bigEndian ? i : 3 - i;
         value = value << 8 | static_cast<unsigned char>(head[offset + place]);
      }
      return value;
   };
   auto const name = [&names](unsigned long machine) {
      auto const found = names.find(machine);
      return found != names.end() ? found->second : "processor " + std::to_string(machine);
   };
   if (head.size() >= 8 && number(0, false) == 0xfeedfacf) {
      return name(number(4, false));
   }
   if (head.size() < 8 || number(0, true) != 0xcafebabe) {
      return std::string();
   }
   std::string machine;
   for (std::size_t i = 0, offset = 8; i < number(4, true) && offset + 20 <= head.size();
         ++i, offset += 20) {
      std::string const one = name(number(offset, true));
      if (one == ownMachine()) {
         return one;
      }
      machine = one;
   }
   return machine;
}

#else

// An ELF file: 4 bytes mark, 1 byte 1 for 32 bits or 2 for 64, 1 byte 1 for the least significant
// byte first or 2 for the most, and at 18 the processor in 2 bytes.
std::string machineIn(std::string const& head)
{
   std::map<int, std::string> const names = {{3, "x86 (32 bits)"}, {21, "ppc64"}, {22, "s390x"},
         {40, "arm (32 bits)"}, {62, "x86-64"}, {183, "arm64"}, {243, "riscv"}};
   if (head.size() < 20 || head.compare(0, 4, "\177ELF") != 0) {
      return std::string();
   }
   bool const bigEndian = head[5] == 2;
   int const first = static_cast<unsigned char>(head[18]);
   int const second = static_cast<unsigned char>(head[19]);
   int const machine = bigEndian ? first << 8 | second : second << 8 | first;
   auto const found = names.find(machine);
   return found != names.end() ? found->second : "processor " + std::to_string(machine);
}

#endif

} // namespace

std::string machineOf(std::string const& file)
{
   std::ifstream stream(file, std::ios::binary);
   std::string head(256, '\0');
   stream.read(&head[0], static_cast<std::streamsize>(head.size()));
   head.resize(static_cast<std::size_t>(stream.gcount()));
   return machineIn(head);
}

std::string ownMachine()
{
#if defined(__x86_64__)
   return "x86-64";
#elif defined(__aarch64__)
   return "arm64";
#else
   return machineOf(tarn1516e::libraryFile());
#endif
}

std::string onLibraryPath(std::string const& name)
{
   std::string const path = valueOf(tarn1516e::libraryPathVariable);
   for (std::string const& folder : path.empty() ? std::vector<std::string>() : elementsOf(path)) {
      std::string file = (folder.empty() ? "." : folder) + "/" + name;
      if (exists(file)) {
         return file;
      }
   }
   return std::string();
}

// A Java runtime has lib/server/<VM library>, and a file "release" with lines NAME="VALUE".
std::string versionOfVm(std::string const& vmFile)
{
   std::ifstream file(directoryOf(resolved(vmFile)) + "/../../release");
   std::string const key = "JAVA_VERSION=\"";
   std::string line;
   while (std::getline(file, line)) {
      if (line.compare(0, key.size(), key) == 0) {
         return line.substr(key.size(), line.find('"', key.size()) - key.size());
      }
   }
   return std::string();
}

// ---- Classes

bool holdsClass(std::string const& element, std::string const& className)
{
   std::string const file = className + ".class";
   if (isDirectory(element)) {
      return exists(element + "/" + file);
   }
   return readArchive(element).names.count(file) != 0;
}

bool holdsPackage(std::string const& element, std::string const& package)
{
   if (isDirectory(element)) {
      return isDirectory(element + "/" + package);
   }
   std::set<std::string> const names = readArchive(element).names;
   auto const first = names.lower_bound(package + "/");
   return first != names.end() && first->compare(0, package.size() + 1, package + "/") == 0;
}

} // namespace check
