#include "tools/tarn1516e-check/Surroundings.h"

#include "jvm/Platform.h"
#include "tools/tarn1516e-check/Archive.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>

extern "C" void tarn1516e_exported_symbol_for_dlsym();

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

// ---- The environment

bool isSet(char const* variable)
{
   return std::getenv(variable) != nullptr;
}

std::string valueOf(char const* variable)
{
   char const* const value = std::getenv(variable);
   return value != nullptr ? value : "";
}

std::vector<std::string> elementsOf(std::string const& path)
{
   std::vector<std::string> elements;
   std::istringstream stream(path);
   std::string element;
   while (std::getline(stream, element, ':')) {
      if (!element.empty()) {
         elements.push_back(element);
      }
   }
   return elements;
}

char const* libraryPathVariable()
{
#if defined(__APPLE__)
   return "DYLD_LIBRARY_PATH";
#else
   return "LD_LIBRARY_PATH";
#endif
}

char const* const optionFile = "tarn.vmoptions";

std::vector<Option> optionsGiven()
{
   std::vector<Option> options;
   for (int i = 1; i <= 19; ++i) {
      std::string const variable = "TARN1516_OPTION" + std::to_string(i);
      if (isSet(variable.c_str())) {
         options.push_back({valueOf(variable.c_str()), variable});
      }
   }
   std::ifstream file(optionFile);
   std::string line;
   while (std::getline(file, line)) {
      if (!line.empty() && line[0] != '#') {
         options.push_back({line, optionFile});
      }
   }
   return options;
}

// ---- Libraries

std::string libraryFile()
{
   Dl_info library;
   void* const address = reinterpret_cast<void*>(&tarn1516e_exported_symbol_for_dlsym);
   return dladdr(address, &library) != 0 ? library.dli_fname : "";
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
   return machineOf(libraryFile());
#endif
}

std::string vmOnLibraryPath()
{
   for (std::string const& folder : elementsOf(valueOf(libraryPathVariable()))) {
      std::string file = folder + "/" + tarn1516e::vmLibraryName;
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

} // namespace check
