#include "tools/tarn1516e-check/Trial.h"

#include "jvm/Installation.h"
#include "jvm/StartTexts.h"
#include "tools/tarn1516e-check/Json.h"
#include "tools/tarn1516e-check/VmStart.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>

#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <memory>
#include <sstream>
#include <typeinfo>

namespace check {

namespace {

namespace text = tarn1516e::text;

// ---- In the child

void appendUtf8(std::string& bytes, unsigned long character)
{
   static unsigned const marks[] = {0, 0, 0xc0, 0xe0, 0xf0}; // of the first byte, by their number
   std::size_t const count = character < 0x80 ? 1
         : character < 0x800                  ? 2
         : character < 0x10000                ? 3
                                              : 4;
   std::string character8;
   for (std::size_t i = 1; i < count; ++i) {
      character8.insert(0, 1, static_cast<char>(0x80 | (character & 0x3f)));
      character >>= 6;
   }
   bytes += static_cast<char>(marks[count] | character);
   bytes += character8;
}

// The library widens the environment's values byte by byte, Java's texts come character by
// character. What reads as UTF-8 when it is narrowed again was the former.
std::string narrowed(std::wstring const& wide)
{
   std::string bytes, encoded;
   bool isBytes = true;
   for (wchar_t const character : wide) {
      isBytes = isBytes && static_cast<unsigned long>(character) < 0x100;
      bytes += static_cast<char>(character);
      appendUtf8(encoded, static_cast<unsigned long>(character));
   }
   for (std::size_t place = 0; isBytes && place < bytes.size();) {
      std::size_t const length = characterAt(bytes, place);
      isBytes = length != 0;
      place += length;
   }
   return isBytes ? bytes : encoded;
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

void tellVm(Child::Tell const& tell)
{
   Dl_info library;
   void* const entry = dlsym(RTLD_DEFAULT, "JNI_CreateJavaVM");
   if (entry != nullptr && dladdr(entry, &library) != 0) {
      tell("vm", library.dli_fname);
      tell("vmVersion", versionOfRunningVm());
      tell("jarVersion", versionOfCoreJar());
   }
}

void startAsFederate(Request const& request, std::string const& home, Child::Tell const& tell)
{
   setenv(text::traceVariable, "", 1);
   if (request.hostVm) {
      std::string const failure =
            startVm(home, {tarn1516e::classPathProperty + request.hostClassPath}, true);
      if (!failure.empty()) {
         tell("hostFailure", failure);
         return;
      }
   }
   try {
      rti1516e::NullFederateAmbassador callbacks;
      rti1516e::RTIambassadorFactory factory;
      std::unique_ptr<rti1516e::RTIambassador> const rti(factory.createRTIambassador().release());
      tell("created", "");
      rti->connect(callbacks, rti1516e::HLA_EVOKED, request.settings);
      tell("connected", "");
      rti->disconnect();
   } catch (rti1516e::Exception const& e) {
      tell("text", narrowed(e.what()));
      tell("exception", className(typeid(e)));
   }
   tellVm(tell);
}

// ---- In the parent

std::vector<std::string> linesOf(std::string const& text)
{
   std::istringstream stream(text);
   std::vector<std::string> lines;
   std::string line;
   while (std::getline(stream, line)) {
      lines.push_back(line);
   }
   return lines;
}

} // namespace

Trial::Trial(Request const& request, std::string const& home)
      : _request(request),
        _home(home),
        _child(request.limit)
{
}

void Trial::start()
{
   _child.start([this](Child::Tell const& tell) { startAsFederate(_request, _home, tell); });
}

void Trial::waitForVm()
{
   _child.waitUntil([this] { return traced(text::created) || traced(text::attached); });
}

void Trial::waitForCore()
{
   _child.waitUntil(
         [this] { return traced(text::locatingAdapter) || traced(text::coreNotLocated); });
}

void Trial::waitForAmbassador()
{
   _child.waitUntil([this] { return isCreated() || !exception().empty(); });
}

void Trial::waitForEnd()
{
   _child.waitForEnd();
}

bool Trial::isCreated() const
{
   return _child.told("created");
}

bool Trial::isConnected() const
{
   return _child.told("connected");
}

bool Trial::isLate() const
{
   return _child.isLate();
}

bool Trial::isJoined() const
{
   return traced(text::attaching);
}

std::string Trial::hostFailure() const
{
   return _child.valueOf("hostFailure");
}

std::string Trial::vm() const
{
   return _child.valueOf("vm");
}

std::string Trial::exception() const
{
   return _child.valueOf("exception");
}

std::string Trial::text() const
{
   return _child.valueOf("text");
}

std::string Trial::vmVersion() const
{
   return _child.valueOf("vmVersion");
}

std::string Trial::jarVersion() const
{
   return _child.valueOf("jarVersion");
}

int Trial::signal() const
{
   return _child.signal();
}

int Trial::status() const
{
   return _child.status();
}

// The second line of a failure's text has no prefix in the trace either.
std::vector<std::string> Trial::lines(bool ofTrace) const
{
   std::string const prefix = text::tracePrefix;
   std::vector<std::string> lines;
   bool isContinued = false;
   for (std::string line : linesOf(_child.output())) {
      std::string::size_type const place = line.find(prefix);
      bool const isPrefixed = place != std::string::npos;
      if (isPrefixed) {
         line.erase(0, place + prefix.size());
      }
      bool const isTrace = isPrefixed || isContinued;
      isContinued = isPrefixed && (isOf(line, text::noVm) || isOf(line, text::noClasses));
      if (isTrace == ofTrace && (ofTrace || !line.empty())) {
         lines.push_back(line);
      }
   }
   return lines;
}

std::vector<std::string> Trial::trace() const
{
   return lines(true);
}

std::vector<std::string> Trial::output() const
{
   return lines(false);
}

bool Trial::traced(std::string const& line) const
{
   return _child.output().find(text::tracePrefix + line + "\n") != std::string::npos;
}

std::string Trial::tracedValue(std::string const& beginning) const
{
   for (std::string const& line : trace()) {
      if (line.compare(0, beginning.size(), beginning) == 0) {
         std::string::size_type const first = line.find('\'') + 1;
         return line.substr(first, line.rfind('\'') - first);
      }
   }
   return std::string();
}

std::string Trial::outputLine(std::string const& part) const
{
   for (std::string const& line : output()) {
      if (line.find(part) != std::string::npos) {
         std::string::size_type const first = line.find_first_not_of(" \t");
         return line.substr(first, line.find_last_not_of(" \t") + 1 - first);
      }
   }
   return std::string();
}

std::string beginningOf(std::string const& pattern)
{
   return pattern.substr(0, pattern.find('%'));
}

bool isOf(std::string const& text, std::string const& pattern)
{
   std::string const beginning = beginningOf(pattern);
   return text.compare(0, beginning.size(), beginning) == 0;
}

// One after the other, since some options are only known behind another one that unlocks them.
std::vector<std::size_t> unknownOptions(
      Request const& request, std::string const& home, std::vector<std::string> const& options)
{
   // What else keeps the VM from starting a second time, a port that is taken, is no fault of
   // names.
   auto const areKnown = [&](std::vector<std::string> const& some) {
      Child child(request.limit);
      child.start([&](Child::Tell const&) { startVm(home, some, false); });
      child.waitForEnd();
      return child.output().find("nrecogni") == std::string::npos;
   };
   std::vector<std::size_t> unknown;
   if (areKnown(options)) {
      return unknown;
   }
   std::vector<std::string> known;
   for (std::size_t i = 0; i < options.size(); ++i) {
      known.push_back(options[i]);
      if (!areKnown(known)) {
         known.pop_back();
         unknown.push_back(i);
      }
   }
   return unknown;
}

} // namespace check
