// The steps of start-up, and how each of its failures is known.
#include "tools/tarn1516e-check/Diagnosis.h"

#include "jvm/Platform.h"
#include "jvm/StartTexts.h"
#include "tools/tarn1516e-check/Archive.h"
#include "tools/tarn1516e-check/Surroundings.h"
#include <RTI/RTI1516.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>

namespace check {

namespace {

namespace text = tarn1516e::text;
using tarn1516e::GivenOption;

std::string const remedyOfReplacement = "take that option away, and use CLASSPATH.";
std::string const standInPackage = "skerry/tarn1516e/standin";

std::string dotted(std::string name)
{
   std::replace(name.begin(), name.end(), '/', '.');
   return name;
}

std::string listed(std::vector<std::string> const& texts)
{
   std::string list;
   for (std::string const& text : texts) {
      list += list.empty() ? "" : ", ";
      list += text;
   }
   return list;
}

std::string firstLine(std::string const& text)
{
   return text.substr(0, text.find('\n'));
}

std::string remedyOfPath(std::string const& path)
{
   std::string const move = "move the installation to a folder with a plain name.";
   return path.find(':') != std::string::npos
         ? move
         : "set LC_ALL to a locale that has them, such as C.UTF-8, or " + move;
}

// Where the library looks for the home, in its order, and takes it from.
std::string findHome()
{
   for (std::string const& place : tarn1516e::homeCandidates(tarn1516e::libraryFile())) {
      if (tarn1516e::isTarnHome(place)) {
         return place;
      }
   }
   return std::string();
}

std::string aroundLibrary()
{
   return resolved(tarn1516e::homeCandidates(tarn1516e::libraryFile()).front());
}

// Of several class paths the VM takes the last one, and the library's own comes first.
GivenOption lastClassPath(std::vector<GivenOption> options)
{
   char const variable[] = "_JAVA_OPTIONS"; // behind all others
   std::istringstream words(valueOf(variable));
   std::string word;
   while (words >> word) {
      options.push_back({word, variable});
   }
   auto const last = std::find_if(options.rbegin(), options.rend(),
         [](GivenOption const& option) { return isOf(option.text, tarn1516e::classPathProperty); });
   return last != options.rend() ? *last : GivenOption();
}

} // namespace

Diagnosis::Diagnosis(Request const& request, Report& report)
      : _request(request),
        _report(report),
        _home(findHome()),
        _options(tarn1516e::givenOptions()),
        _classPathOption(lastClassPath(_options)),
        _trial(request, _home)
{
}

bool Diagnosis::run()
{
   struct Step {
      char const* name;
      bool (Diagnosis::*look)();
   };
   Step const steps[] = {
         {"library", &Diagnosis::library},
         {"home", &Diagnosis::home},
         {"options", &Diagnosis::options},
         {"VM", &Diagnosis::vm},
         {"class path", &Diagnosis::classPath},
         {"jar", &Diagnosis::jar},
         {"classes", &Diagnosis::classes},
         {"native methods", &Diagnosis::natives},
         {"ambassador", &Diagnosis::ambassador},
         {"first connect", &Diagnosis::firstConnect},
   };
   for (Step const& step : steps) {
      _report.begin(step.name);
      if (!(this->*step.look)()) {
         _trial.waitForEnd(); // for what it still has to say
         return false;
      }
   }
   return true;
}

Report::Versions Diagnosis::versions() const
{
   std::wstring const library = rti1516e::rtiVersion();
   return {std::string(library.begin(), library.end()), _trial.vmVersion(), _trial.jarVersion()};
}

Report::Output Diagnosis::output() const
{
   return {_trial.trace(), _trial.output()};
}

std::string Diagnosis::below(char const* path) const
{
   return _home.empty() ? path : resolved(_home) + "/" + path;
}

// ---- Library, home and options: looked at from outside

bool Diagnosis::library()
{
   std::string const file = resolved(tarn1516e::libraryFile());
   std::string const own = ownLibrary();
   if (!own.empty() && own != file) {
      _report.warn(file + " comes before " + own + ", which this program was installed with",
            std::string("take its folder out of ") + tarn1516e::libraryPathVariable
                  + " if federates are to use the latter.");
   }
   return _report.found(file + " (" + versions().rti + ", " + ownMachine() + ")");
}

bool Diagnosis::home()
{
   std::string const around = aroundLibrary();
   std::string const variable = valueOf(tarn1516e::homeVariable);
   std::string const marker = tarn1516e::markerBelowHome;
   std::string const reason = whyJavaCannotRead(_home);
   if (!reason.empty()) {
      _report.warn(resolved(_home) + " " + reason, remedyOfPath(_home));
   }
   if (exists(around + "/" + marker)) {
      return _report.found(resolved(_home) + " (the library lies in it"
            + (variable.empty() ? ")" : "; TARN1516E_HOME is not looked at)"));
   }
   if (!_home.empty()) {
      return _report.found(resolved(_home) + " (TARN1516E_HOME)");
   }
   if (!variable.empty()) {
      return _report.failed("TARN1516E_HOME is '" + variable + "', where there is no " + marker,
            "set TARN1516E_HOME to the directory of an installation, which a file " + marker
                  + " marks as one.");
   }
   std::vector<std::string> const parts = {"jre", tarn1516e::jarBelowHome, "include/RTI/RTI1516.h"};
   auto const part = std::find_if(parts.begin(), parts.end(),
         [&around](std::string const& one) { return exists(around + "/" + one); });
   if (part != parts.end()) {
      return _report.failed(around + " has " + *part + ", but no " + marker,
            "put the marker back: touch " + around + "/" + marker + ".");
   }
   return _report.found("none; VM and classes have to come from the library path and CLASSPATH");
}

bool Diagnosis::options()
{
   if (isUnreadable(tarn1516e::optionFile)) {
      return _report.failed(
            resolved(".") + "/" + tarn1516e::optionFile + " is there and can't be read",
            "make it a file that this user may read, or take it away; the library passes over it "
            "without a word.");
   }
   warnOfOptions();
   std::vector<std::string> texts;
   texts.reserve(_options.size());
   for (GivenOption const& option : _options) {
      texts.push_back(visible(option.text) + " (" + option.source + ")");
   }
   return _report.found(texts.empty() ? "none given" : listed(texts));
}

void Diagnosis::warnOfOptions()
{
   for (std::string const& variable : variablesLike(tarn1516e::optionVariable)) {
      std::string const number = variable.substr(std::string(tarn1516e::optionVariable).size());
      int const value = std::atoi(number.c_str());
      if (std::to_string(value) != number || value < 1 || value > tarn1516e::optionVariables) {
         _report.warn(variable + " is not read",
               "take a number from 1 to " + std::to_string(tarn1516e::optionVariables) + ".");
      }
   }
   for (GivenOption const& option : _options) {
      if (option.source != tarn1516e::optionFile) {
         continue;
      }
      bool const isBlank = std::isspace(static_cast<unsigned char>(option.text.front())) != 0;
      if (isBlank || option.text.back() == '\r') {
         _report.warn("'" + visible(option.text) + "' in " + option.source
                     + (isBlank ? " begins with a blank" : " ends in a carriage return")
                     + ", which the VM takes for a part of it",
               "take it away: nothing in the file is trimmed, and lines end in a line feed alone.");
      }
   }
   for (char const* const variable : {"JAVA_TOOL_OPTIONS", "_JAVA_OPTIONS"}) {
      if (!valueOf(variable).empty()) {
         _report.warn(
               std::string(variable) + " is set, and the VM follows it too: " + valueOf(variable),
               "unset it if it is not meant for federates.");
      }
   }
}

// ---- The VM

bool Diagnosis::vm()
{
   _trial.start();
   _trial.waitForVm();
   std::string const what = _trial.text();
   if (!_trial.hostFailure().empty()) {
      return _report.failed("the one to be joined did not start: " + _trial.hostFailure(),
            "see that the check passes without --host-vm first.");
   }
   if (isOf(what, text::noVm) || isOf(what, text::noVmInHome)) {
      return noVm();
   }
   if (isOf(what, text::vmNotLoaded)) {
      return vmOfAnotherKind(below(tarn1516e::vmBelowHome));
   }
   if (isOf(what, text::noEntryPoint)) {
      return _report.failed(vmFile() + " is no Java VM",
            std::string("put the ") + tarn1516e::vmLibraryName
                  + " of a Java runtime in its place.");
   }
   if (isOf(what, text::notCreated)) {
      return vmRefuses();
   }
   if (!_trial.traced(text::created) && !_trial.traced(text::attached)) {
      return _trial.traced(text::creating) && !_trial.isLate() ? vmRefuses() : ended();
   }
   warnOfVm();
   std::string const file = vmFile();
   std::string const version = versionOfVm(file);
   return _report.found((file.empty() ? "running" : file) + " ("
         + (version.empty() ? "" : "Java " + version + ", ")
         + (_trial.isJoined()                               ? "in the process before"
                     : _trial.traced(text::vmOnLibraryPath) ? "on the library path"
                                                            : "below the home")
         + ")");
}

// As far as it can be known while the trial goes on, and otherwise at its end.
std::string Diagnosis::vmFile()
{
   std::string file = _trial.tracedValue(beginningOf(text::vmOfHome));
   if (file.empty()) {
      file = onLibraryPath(tarn1516e::vmLibraryName);
   }
   if (file.empty() || machineOf(file) != ownMachine()) {
      _trial.waitForEnd();
      file = _trial.vm();
   }
   return resolved(file);
}

void Diagnosis::warnOfVm()
{
   if (isDanglingLink(below("jre"))) {
      _report.warn(
            below("jre") + " is a link to " + targetOf(below("jre")) + ", which is not there",
            "link a Java runtime there (ln -sfn <runtime> " + below("jre") + ").");
   }
   std::vector<std::string> texts;
   texts.reserve(_options.size());
   for (GivenOption const& option : _options) {
      texts.push_back(option.text);
   }
   if (!_trial.isJoined()) {
      for (std::size_t const number : unknownOptions(_request, _home, texts)) {
         GivenOption const& option = _options[number];
         _report.warn("the VM does not know the option '" + visible(option.text) + "' in "
                     + option.source + ", and passes over it",
               "correct it, or take it away.");
      }
   }
}

bool Diagnosis::noVm()
{
   std::string const name = tarn1516e::vmLibraryName;
   std::string const onPath = onLibraryPath(name);
   std::string const variable = tarn1516e::libraryPathVariable;
   if (!onPath.empty()) {
      return vmOfAnotherKind(onPath);
   }
   if (_home.empty()) {
      return _report.failed("no " + name + " on the library path, and no home to look in",
            "put the folder of " + name + " on " + variable
                  + ", or set TARN1516E_HOME to an installation that has a jre.");
   }
   std::string const jre = below("jre");
   return _report.failed("no " + name + " on the library path, and no "
               + below(tarn1516e::vmBelowHome)
               + (isDanglingLink(jre)
                           ? "; " + jre + " is a link to " + targetOf(jre) + ", which is not there"
                           : ""),
         "link a Java runtime there (ln -sfn <runtime> " + jre + "), or put the folder of " + name
               + " on " + variable + ".");
}

bool Diagnosis::vmOfAnotherKind(std::string const& file)
{
   std::string const machine = machineOf(file);
   if (machine.empty()) {
      return _report.failed(file + " is no library of this platform",
            "put a whole Java runtime for " + ownMachine() + " in its place.");
   }
   if (machine != ownMachine()) {
      return _report.failed(file + " is for " + machine + ", this process is " + ownMachine(),
            "use a Java runtime for " + ownMachine() + ".");
   }
   return _report.failed(file + " does not load: " + firstLine(_trial.text()),
         "mend what the loader names, as a rule a library that is missing beside the VM.");
}

// The VM gives its reason in its own words, and ends the process or answers with a status.
bool Diagnosis::vmRefuses()
{
   _trial.waitForEnd();
   std::string const culprit = optionIn(_trial.output());
   std::string const status =
         _trial.text().empty() ? "it ended the process" : firstLine(_trial.text());
   std::string const what = "it does not start: " + status;
   if (!culprit.empty()) {
      return _report.failed(
            what, "mend or remove the VM option " + culprit + "; the VM's words are below.");
   }
   if (!_options.empty()) {
      return _report.failed(what, "take the VM options away one by one; the VM's words are below.");
   }
   return _report.failed(what,
         "see the VM's words below; without any option it is as a rule memory that is missing.");
}

// The option that the VM names in what it says, or nothing.
std::string Diagnosis::optionIn(std::vector<std::string> const& lines) const
{
   for (GivenOption const& option : _options) {
      for (std::string const& line : lines) {
         if (!option.text.empty() && line.find(option.text) != std::string::npos) {
            return "'" + option.text + "' in " + option.source;
         }
      }
   }
   return std::string();
}

// ---- Class path, jar and classes

bool Diagnosis::classPath()
{
   if (_trial.isJoined()) {
      return _report.found("the one that the VM was started with");
   }
   std::vector<std::string> missing;
   for (std::string const& element : elementsOf(valueOf("CLASSPATH"))) {
      if (!element.empty() && !exists(element)) {
         missing.push_back(element);
      }
   }
   if (isReplaced()) {
      _report.warn(replacement() + " replaces the class path", remedyOfReplacement);
   } else if (!missing.empty()) {
      _report.warn("CLASSPATH leads nowhere: " + listed(missing),
            "correct CLASSPATH or unset it; only the java command itself replaces a '*' in it.");
   }
   std::string const path = classPathText();
   std::vector<std::string> const elements = elementsOf(path);
   bool const isHere = std::count(elements.begin(), elements.end(), "") != 0;
   return _report.found((path.empty() ? "empty" : path)
         + (isHere ? " (what is empty is the current directory)" : ""));
}

bool Diagnosis::isReplaced() const
{
   return !_classPathOption.text.empty();
}

std::string Diagnosis::replacement() const
{
   return "'" + visible(_classPathOption.text) + "' in " + _classPathOption.source;
}

std::string Diagnosis::classPathText() const
{
   return isReplaced()
         ? _classPathOption.text.substr(std::string(tarn1516e::classPathProperty).size())
         : tarn1516e::classPath(_home);
}

// The elements as Java takes them.
std::vector<std::string> Diagnosis::classPathElements() const
{
   std::vector<std::string> elements = elementsOf(classPathText());
   std::replace(elements.begin(), elements.end(), std::string(), std::string("."));
   return elements;
}

// The element of the class path that the class comes from; empty if none has it.
std::string Diagnosis::elementWith(std::string const& className) const
{
   for (std::string const& element : classPathElements()) {
      if (holdsClass(element, className)) {
         return element;
      }
   }
   return std::string();
}

bool Diagnosis::jar()
{
   if (_trial.isJoined()) {
      return _report.found("left to the VM's own class path");
   }
   _trial.waitForCore();
   std::string const element = elementWith(tarn1516e::coreClass);
   bool const isLocated = !_trial.traced(text::coreNotLocated);
   std::string const reason = isReplaced() ? "" : whyJavaCannotRead(_home);
   if (!isLocated && !reason.empty()) {
      return _report.failed(
            "Java does not find " + below(tarn1516e::jarBelowHome) + ": the home's path " + reason,
            remedyOfPath(_home));
   }
   if (element.empty()) {
      return isLocated ? _report.found("none; the classes come by way of a VM option") : noJar();
   }
   warnOfJars();
   return _report.found(resolved(element)
         + (holdsPackage(element, standInPackage) ? " (the stand-in for trials, not an RTI)" : ""));
}

void Diagnosis::warnOfJars()
{
   std::string const own = below(tarn1516e::jarBelowHome);
   for (std::string const& element : classPathElements()) {
      if (!isDirectory(element) && isUnreadable(element)) {
         _report.warn(element + " can't be read", "let this user read it (chmod a+r).");
      }
   }
   if (isReplaced()) {
      return;
   }
   for (std::string const name :
         {tarn1516e::coreClass, tarn1516e::adapterClass, tarn1516e::nativesClass}) {
      std::string const element = elementWith(name);
      if (holdsClass(own, name) && resolved(element) != resolved(own)) {
         _report.warn(resolved(element) + " has " + dotted(name) + ", and hides the one of " + own,
               "take it off the class path, which begins with CLASSPATH, and with the current "
               "directory if that is not set.");
         return;
      }
   }
}

bool Diagnosis::noJar()
{
   for (std::string const& element : classPathElements()) {
      std::string const jar = resolved(element);
      if (!exists(jar) || isDirectory(jar) || jar.substr(jar.rfind('/') + 1) != "tarn1516e.jar") {
         continue;
      }
      if (isUnreadable(jar)) {
         return _report.failed(jar + " can't be read", "let this user read it (chmod a+r).");
      }
      return _report.failed(jar
                  + (readArchive(jar).isArchive ? " has no " + dotted(tarn1516e::coreClass)
                                                : " is no jar"),
            "put the RTI's own tarn1516e.jar in its place.");
   }
   if (isReplaced()) {
      return _report.failed(
            "no tarn1516e.jar on the class path of " + replacement(), remedyOfReplacement);
   }
   std::string const jar = below(tarn1516e::jarBelowHome);
   return _report.failed("no tarn1516e.jar at " + jar + " and none on CLASSPATH",
         "copy the RTI's tarn1516e.jar to " + jar + ", or name it in CLASSPATH.");
}

bool Diagnosis::classes()
{
   _trial.waitForAmbassador();
   if (_trial.traced(text::coreNotLocated)) {
      return classNotLoaded(tarn1516e::coreClass);
   }
   if (_trial.traced(text::adapterNotLocated)) {
      return classNotLoaded(tarn1516e::adapterClass);
   }
   std::string const method = _trial.outputLine(beginningOf(text::noMethod));
   if (!method.empty() && !_trial.isCreated() && _trial.exception().empty()) {
      return otherVersion(method);
   }
   if (!_trial.traced(text::locatingAdapter) || _trial.isLate()) {
      return ended();
   }
   return _report.found(dotted(tarn1516e::coreClass) + ", " + dotted(tarn1516e::adapterClass));
}

bool Diagnosis::classNotLoaded(std::string const& className)
{
   std::string const tooNew = _trial.outputLine("UnsupportedClassVersionError");
   if (!tooNew.empty()) {
      // "... (class file version 65.0), this version of the Java Runtime only recognizes ..."
      std::string const before = "class file version ";
      std::string::size_type const number = tooNew.find(before);
      int const version = number == std::string::npos
            ? 0
            : std::atoi(tooNew.c_str() + number + before.size()) - 44;
      return _report.failed("the VM is too old for the jar's " + dotted(className),
            "use a Java runtime of version " + (version > 0 ? std::to_string(version) : "the jar's")
                  + " or later.");
   }
   if (_trial.isJoined() && className == tarn1516e::coreClass) {
      return _report.failed("the VM that was in the process before has no " + dotted(className),
            "put tarn1516e.jar on the class path with which the program starts its VM; CLASSPATH "
            "and VM options given to the library do not reach a VM that is there already.");
   }
   std::string const before = "NoClassDefFoundError: ";
   std::string const line = _trial.outputLine(before);
   std::string const missing =
         line.empty() ? className : line.substr(line.find(before) + before.size());
   if (isReplaced()) {
      return _report.failed(dotted(missing) + " is missing on the class path of " + replacement(),
            remedyOfReplacement);
   }
   return _report.failed(dotted(missing) + " is missing",
         "replace tarn1516e.jar by a complete one, and name in CLASSPATH what it depends on.");
}

bool Diagnosis::otherVersion(std::string const& what)
{
   return _report.failed(what,
         "use the tarn1516e.jar that belongs to this version of the library; the one found is "
         "another version's.");
}

// ---- Natives, the Java object, and the first connection

bool Diagnosis::natives()
{
   if (!_trial.outputLine(firstLine(text::noNativesClass)).empty()) {
      return classNotLoaded(tarn1516e::nativesClass);
   }
   std::string const refused = _trial.outputLine(firstLine(text::nativesRefused));
   if (!refused.empty()) {
      return otherVersion(refused);
   }
   if (!_trial.isCreated() && _trial.exception().empty()) {
      return ended();
   }
   return _report.found("bound to " + dotted(tarn1516e::nativesClass));
}

bool Diagnosis::ambassador()
{
   if (_trial.isCreated()) {
      return _report.found("created");
   }
   if (isOf(_trial.text(), text::noConstructor)) {
      return otherVersion(firstLine(_trial.text()));
   }
   return _report.failed("the Java constructor threw: " + firstLine(_trial.text()),
         "look into the RTI's own settings and start-up; the Java stack is below.");
}

bool Diagnosis::firstConnect()
{
   _trial.waitForEnd();
   if (!_trial.exception().empty()) {
      return _report.failed(_trial.exception() + ": " + firstLine(_trial.text()),
            "see that the RTI runs and that the local settings name it (--settings).");
   }
   if (!_trial.isConnected() || _trial.isLate()) {
      return ended();
   }
   return _report.found("connected and disconnected");
}

// For what none of the others explains.
bool Diagnosis::ended()
{
   _trial.waitForEnd();
   if (_trial.isLate()) {
      return _report.failed("no answer within " + std::to_string(_request.limit.count()) + " s",
            "see by the threads' stacks below what it waits for; --timeout gives it more time.");
   }
   std::string const what = _trial.signal() != 0
         ? "the process was ended by signal " + std::to_string(_trial.signal())
         : !_trial.text().empty() ? firstLine(_trial.text())
                                  : "the process exited with " + std::to_string(_trial.status());
   return _report.failed(what, "see below what was written until then.");
}

} // namespace check
