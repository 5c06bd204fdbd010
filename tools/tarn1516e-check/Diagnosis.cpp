#include "tools/tarn1516e-check/Diagnosis.h"

#include "jvm/Platform.h"
#include "tools/tarn1516e-check/Archive.h"
#include "tools/tarn1516e-check/Surroundings.h"
#include <RTI/RTI1516.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <unistd.h>

namespace check {

namespace {

char const marker[] = "/versioninfo.txt";
char const coreClass[] = "skerry/tarn1516e/RtiFactoryImpl";
char const adapterClass[] = "skerry/tarn1516e/RTIambassadorC2007";
char const nativeClass[] = "skerry/tarn1516e/FederateAmbassadorC2007";

bool found(char const* step, std::string const& what)
{
   std::printf("%-15s %s\n", step, what.c_str());
   return true;
}

bool failed(std::string const& step, std::string const& what, std::string const& advice)
{
   std::printf("%-15s FAILED: %s\n", step.c_str(), what.c_str());
   std::printf("What to do: %s\n", advice.c_str());
   return false;
}

bool startsWith(std::string const& text, std::string const& beginning)
{
   return text.compare(0, beginning.size(), beginning) == 0;
}

bool holds(std::string const& text, std::string const& part)
{
   return text.find(part) != std::string::npos;
}

std::string dotted(std::string name)
{
   std::replace(name.begin(), name.end(), '/', '.');
   return name;
}

std::string firstLine(std::string const& text)
{
   return text.substr(0, text.find('\n'));
}

// The directory two levels above the library.
std::string aroundLibrary()
{
   return resolved(directoryOf(libraryFile()) + "/../..");
}

// The same two places, in the same order, as the library itself looks at.
std::string findHome()
{
   for (std::string const& place : {aroundLibrary(), valueOf("TARN1516E_HOME")}) {
      if (!place.empty() && exists(place + marker)) {
         return resolved(place);
      }
   }
   return std::string();
}

std::string currentDirectory()
{
   return resolved(".");
}

// The element of the options that the VM names in what it says, or nothing.
std::string culprit(std::string const& output)
{
   for (Option const& option : optionsGiven()) {
      if (!option.text.empty() && holds(output, option.text)) {
         return "'" + option.text + "' in " + option.source;
      }
   }
   return std::string();
}

} // namespace

Diagnosis::Diagnosis(Request request) : _home(findHome())
{
   request.home = _home;
   _trial = tryToStart(request);
}

bool Diagnosis::tell() const
{
   return library() && home() && options() && vm() && classPath() && jar() && classes() && natives()
         && ambassador() && firstConnect();
}

void Diagnosis::tellTrace() const
{
   for (std::string const& line : _trial.trace) {
      std::printf("   > %s\n", line.c_str());
   }
}

void Diagnosis::tellOutput() const
{
   std::istringstream lines(_trial.output);
   std::string line;
   while (std::getline(lines, line)) {
      std::printf("   | %s\n", line.c_str());
   }
}

bool Diagnosis::joined() const
{
   return _trial.traced("Attempting to attach to existing JVM");
}

// ---- Library, home and options: looked at from outside

bool Diagnosis::library() const
{
   std::wstring const version = rti1516e::rtiVersion();
   return found("library",
         resolved(libraryFile()) + " (" + std::string(version.begin(), version.end()) + ", "
               + ownMachine() + ")");
}

bool Diagnosis::home() const
{
   std::string const around = aroundLibrary();
   std::string const variable = valueOf("TARN1516E_HOME");
   if (exists(around + marker)) {
      return found("home",
            _home + " (the library lies in it"
                  + (variable.empty() ? ")" : "; TARN1516E_HOME is not looked at)"));
   }
   if (!_home.empty()) {
      return found("home", _home + " (TARN1516E_HOME)");
   }
   if (!variable.empty()) {
      return failed("home",
            "TARN1516E_HOME is '" + variable + "', where there is no versioninfo.txt",
            "set TARN1516E_HOME to the directory of an installation, which a file versioninfo.txt "
            "marks as one.");
   }
   for (std::string const part : {"/jre", "/lib/tarn1516e.jar", "/include/RTI/RTI1516.h"}) {
      if (exists(around + part)) {
         return failed("home", around + " has " + part.substr(1) + ", but no versioninfo.txt",
               "put the marker back: touch " + around + marker + ".");
      }
   }
   return found("home", "none; VM and classes have to come from the library path and CLASSPATH");
}

bool Diagnosis::options() const
{
   if (isUnreadable(optionFile)) {
      return failed("options",
            currentDirectory() + "/" + optionFile + " is there and can't be read",
            "make it a file that this user may read, or take it away; the library passes over it "
            "without a word.");
   }
   std::vector<Option> const options = optionsGiven();
   std::string text;
   for (Option const& option : options) {
      text += (text.empty() ? "" : ", ") + option.text + " (" + option.source + ")";
   }
   return found("options", text.empty() ? "none given" : text);
}

// ---- The VM

bool Diagnosis::vm() const
{
   std::string const& text = _trial.text;
   if (!_trial.hostFailure.empty()) {
      return failed("VM", "the one to be joined did not start: " + _trial.hostFailure,
            "see that the check passes without --host-vm first.");
   }
   if (startsWith(text, "Failed to find JVM ")) {
      return noVm();
   }
   if (startsWith(text, "Failed to dlopen JVM")) {
      return vmOfAnotherKind(_home + "/" + tarn1516e::vmBelowHome);
   }
   if (startsWith(text, "Failed to find JNI_")) {
      return failed("VM", (_trial.vm.empty() ? "the library found" : _trial.vm) + " is no Java VM",
            std::string("put the ") + tarn1516e::vmLibraryName
                  + " of a Java runtime in its place.");
   }
   if (startsWith(text, "Cannot create JVM.")) {
      return vmRefuses();
   }
   if (!_trial.traced("Created new JVM") && !_trial.traced("Attached to existing JVM")) {
      return _trial.traced("Attempting to create new JVM") ? vmRefuses() : ended("VM");
   }
   std::string const file = resolved(_trial.vm);
   std::string const version = versionOfVm(file);
   return found("VM",
         (file.empty() ? "running" : file) + " ("
               + (version.empty() ? "" : "Java " + version + ", ")
               + (joined() ? "in the process before"
                           : _trial.traced("JVM was available on library path")
                           ? "on the library path"
                           : "below the home")
               + ")");
}

bool Diagnosis::noVm() const
{
   std::string const onPath = vmOnLibraryPath();
   if (!onPath.empty()) {
      return vmOfAnotherKind(onPath);
   }
   std::string const name = tarn1516e::vmLibraryName;
   if (_home.empty()) {
      return failed("VM", "no " + name + " on the library path, and no home to look in",
            "put the folder of " + name + " on " + libraryPathVariable()
                  + ", or set TARN1516E_HOME to an installation that has a jre.");
   }
   std::string const jre = _home + "/jre";
   return failed("VM",
         "no " + name + " on the library path, and no " + _home + "/" + tarn1516e::vmBelowHome,
         "link a Java runtime there (ln -sfn <runtime> " + jre + "), or put the folder of " + name
               + " on " + libraryPathVariable() + ".");
}

bool Diagnosis::vmOfAnotherKind(std::string const& file) const
{
   std::string const machine = machineOf(file);
   if (machine.empty()) {
      return failed("VM", file + " is no library of this platform",
            "put a whole Java runtime for " + ownMachine() + " in its place.");
   }
   if (machine != ownMachine()) {
      return failed("VM", file + " is for " + machine + ", this process is " + ownMachine(),
            "use a Java runtime for " + ownMachine() + ".");
   }
   return failed("VM", file + " does not load: " + firstLine(_trial.text),
         "mend what the loader names, as a rule a library that is missing beside the VM.");
}

// The VM gives its reason in its own words, and ends the process or answers with a status.
bool Diagnosis::vmRefuses() const
{
   std::string const option = culprit(_trial.output + _trial.text);
   std::string const status = _trial.text.empty() ? "it ended the process" : firstLine(_trial.text);
   if (!option.empty()) {
      return failed("VM", "it does not start: " + status,
            "mend or remove the VM option " + option + "; the VM's words are below.");
   }
   if (!optionsGiven().empty()) {
      return failed("VM", "it does not start: " + status,
            "take the VM options away one by one; the VM's words are below.");
   }
   return failed("VM", "it does not start: " + status,
         "see the VM's words below; without any option it is as a rule memory that is missing.");
}

// ---- Class path, jar and classes

bool Diagnosis::classPath() const
{
   if (joined()) {
      return found("class path", "the one that the VM was started with");
   }
   std::vector<std::string> const elements = elementsOf(valueOf("CLASSPATH"));
   std::string missing;
   std::size_t count = 0;
   for (std::string const& element : elements) {
      if (!exists(element)) {
         missing += (missing.empty() ? "" : ", ") + element;
         ++count;
      }
   }
   if (count > 0 && count == elements.size()) {
      return failed("class path", "CLASSPATH leads nowhere: " + missing,
            "correct CLASSPATH or unset it; only the java command itself replaces a '*' in it.");
   }
   std::string const option = _trial.tracedValue("Setting classpath to");
   std::string const path = option.substr(std::min(option.size(), option.find('=') + 1));
   return found("class path",
         (path.empty() ? "empty" : path)
               + (missing.empty() ? "" : " (does not exist: " + missing + ")"));
}

// Where the library looks for the jar, whether it is there or not.
std::string Diagnosis::ownJar() const
{
   return _home.empty() ? "lib/tarn1516e.jar" : _home + "/lib/tarn1516e.jar";
}

// The element of the class path that the core class comes from; empty if none has it.
std::string Diagnosis::jarWithCore() const
{
   std::vector<std::string> elements = elementsOf(valueOf("CLASSPATH"));
   elements.push_back(ownJar());
   for (std::string const& element : elements) {
      if (holdsClass(element, coreClass)) {
         return element;
      }
   }
   return std::string();
}

bool Diagnosis::jar() const
{
   if (joined()) {
      return found("jar", "left to the VM's own class path");
   }
   std::string const element = jarWithCore();
   if (!element.empty()) {
      return found("jar", resolved(element));
   }
   if (!_trial.traced("Failed to locate core classes")) {
      return found("jar", "none; the classes come by way of a VM option");
   }
   return noJar();
}

bool Diagnosis::noJar() const
{
   std::vector<std::string> candidates = elementsOf(valueOf("CLASSPATH"));
   candidates.push_back(ownJar());
   for (std::string const& jar : candidates) {
      if (exists(jar) && jar.substr(jar.rfind('/') + 1) == "tarn1516e.jar") {
         return failed("jar",
               jar + (readArchive(jar).isArchive ? " has no " + dotted(coreClass) : " is no jar"),
               "put the RTI's own tarn1516e.jar in its place.");
      }
   }
   return failed("jar", "no tarn1516e.jar at " + ownJar() + " and none on CLASSPATH",
         "copy the RTI's tarn1516e.jar to " + ownJar() + ", or name it in CLASSPATH.");
}

bool Diagnosis::classes() const
{
   if (_trial.traced("Failed to locate core classes")) {
      return classNotLoaded("classes", coreClass);
   }
   if (_trial.traced("Failed to locate adapter classes")) {
      return classNotLoaded("classes", adapterClass);
   }
   std::string const method = _trial.outputLine("Cannot locate ");
   if (!method.empty() && !_trial.created) {
      return otherVersion("classes", firstLine(method));
   }
   if (!_trial.traced("Locating adapter classes")) {
      return ended("classes");
   }
   return found("classes", dotted(coreClass) + ", " + dotted(adapterClass));
}

bool Diagnosis::classNotLoaded(std::string const& step, std::string const& className) const
{
   std::string const tooNew = _trial.outputLine("UnsupportedClassVersionError");
   if (!tooNew.empty()) {
      // "... (class file version 65.0), this version of the Java Runtime only recognizes ..."
      std::string const before = "class file version ";
      std::string::size_type const number = tooNew.find(before);
      int const version = number == std::string::npos
            ? 0
            : std::atoi(tooNew.c_str() + number + before.size()) - 44;
      return failed(step, "the VM is too old for the jar's " + dotted(className),
            "use a Java runtime of version " + (version > 0 ? std::to_string(version) : "the jar's")
                  + " or later.");
   }
   if (joined() && className == coreClass) {
      return failed(step, "the VM that was in the process before has no " + dotted(className),
            "put tarn1516e.jar on the class path with which the program starts its VM; CLASSPATH "
            "and VM options given to the library do not reach a VM that is there already.");
   }
   std::string const before = "NoClassDefFoundError: ";
   std::string const line = _trial.outputLine(before);
   std::string const missing =
         line.empty() ? className : line.substr(line.find(before) + before.size());
   return failed(step, dotted(missing) + " is missing",
         "replace tarn1516e.jar by a complete one, and name in CLASSPATH what it depends on.");
}

bool Diagnosis::otherVersion(std::string const& step, std::string const& what) const
{
   return failed(step, what,
         "use the tarn1516e.jar that belongs to this version of the library; the one found is "
         "another version's.");
}

// ---- Natives, the Java object, and the first connection

bool Diagnosis::natives() const
{
   if (!_trial.outputLine("The file tarn1516e.jar can not be found").empty()) {
      return classNotLoaded("native methods", nativeClass);
   }
   std::string const refused = _trial.outputLine("Failed to register native functions.");
   if (!refused.empty()) {
      return otherVersion("native methods", refused);
   }
   if (!_trial.created && _trial.exception.empty()) {
      return ended("native methods");
   }
   return found("native methods", "bound to " + dotted(nativeClass));
}

bool Diagnosis::ambassador() const
{
   if (_trial.created) {
      return found("ambassador", "created");
   }
   if (startsWith(_trial.text, "Cannot locate constructor")) {
      return otherVersion("ambassador", firstLine(_trial.text));
   }
   return failed("ambassador", "the Java constructor threw: " + firstLine(_trial.text),
         "look into the RTI's own settings and start-up; the Java stack is below.");
}

bool Diagnosis::firstConnect() const
{
   if (_trial.connected) {
      return found("first connect", "connected and disconnected");
   }
   if (_trial.exception.empty()) {
      return ended("first connect");
   }
   return failed("first connect", _trial.exception + ": " + firstLine(_trial.text),
         "see that the RTI runs and that the local settings name it (--settings).");
}

// For what none of the others explains.
bool Diagnosis::ended(std::string const& step) const
{
   std::string const what = _trial.signal != 0
         ? "the process was ended by signal " + std::to_string(_trial.signal)
         : !_trial.text.empty() ? firstLine(_trial.text)
                                : "the process exited with " + std::to_string(_trial.status);
   return failed(step, what, "see below what was written until then.");
}

} // namespace check
