// tarn1516e-check: tells whether a federate starts here, and if not, why.
#include "tools/tarn1516e-check/Diagnosis.h"
#include <RTI/RTI1516.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <getopt.h>

namespace {

int const allIsWell = 0;
int const doesNotStart = 1;
int const badUsage = 2;

char const usage[] = //
      "Usage: tarn1516e-check [options]\n"
      "\n"
      "Starts up as a federate would, in the current directory and environment, and prints a line\n"
      "for each step with what was found. At the first step that fails it says what to do.\n"
      "\n"
      "  -s, --settings TEXT       connect with this local settings designator\n"
      "      --host-vm CLASSPATH   have a Java VM with this class path in the process before, as "
      "a\n"
      "                            program written in Java has, and join it\n"
      "  -t, --timeout SECONDS     end a start-up that takes longer; 60 if it is not given\n"
      "  -j, --json                print one JSON text instead of lines\n"
      "  -v, --verbose             also print all that start-up wrote, its trace included\n"
      "  -h, --help                print this and exit\n"
      "      --version             print the library's version and exit\n"
      "\n"
      "Exit status: 0 if a federate starts, also with warnings; 1 if a step fails, 2 if the "
      "options\n"
      "are wrong.\n";

struct Arguments {
   check::Request request;
   bool isJson = false;
   bool isVerbose = false;
};

int wrongUsage(std::string const& what)
{
   std::fprintf(stderr, "%sTry tarn1516e-check --help.\n", what.c_str());
   return badUsage;
}

// The text by the locale. False if it is none.
bool widen(std::string const& bytes, std::wstring& wide)
{
   wide.resize(bytes.size());
   std::size_t const size = std::mbstowcs(&wide[0], bytes.c_str(), wide.size());
   wide.resize(size != static_cast<std::size_t>(-1) ? size : 0);
   return size != static_cast<std::size_t>(-1);
}

bool readLimit(std::string const& text, std::chrono::seconds& limit)
{
   int const most = 24 * 60 * 60;
   char* end = nullptr;
   long const seconds = std::strtol(text.c_str(), &end, 10);
   limit = std::chrono::seconds(seconds);
   return !text.empty() && *end == '\0' && seconds > 0 && seconds <= most;
}

enum {
   hostVm = 256, // options without a letter
   version
};
option const longOptions[] = {
      {"settings", required_argument, nullptr, 's'},
      {"host-vm", required_argument, nullptr, hostVm},
      {"timeout", required_argument, nullptr, 't'},
      {"json", no_argument, nullptr, 'j'},
      {"verbose", no_argument, nullptr, 'v'},
      {"help", no_argument, nullptr, 'h'},
      {"version", no_argument, nullptr, version},
      {nullptr, 0, nullptr, 0},
};

int const goOn = -1; // instead of an exit status

int take(int letter, std::string const& value, Arguments& arguments)
{
   check::Request& request = arguments.request;
   switch (letter) {
   case 's':
      return widen(value, request.settings)
            ? goOn
            : wrongUsage("The settings are no text in this locale (LC_ALL). ");
   case hostVm:
      request.hostVm = true;
      request.hostClassPath = value;
      return goOn;
   case 't':
      return readLimit(value, request.limit)
            ? goOn
            : wrongUsage("The timeout is a number of seconds, 1 to 86400. ");
   case 'j':
      arguments.isJson = true;
      return goOn;
   case 'v':
      arguments.isVerbose = true;
      return goOn;
   case 'h':
      std::fputs(usage, stdout);
      return allIsWell;
   case version:
      std::printf("tarn1516e-check %ls\n", rti1516e::rtiVersion().c_str());
      return allIsWell;
   default:
      return wrongUsage("");
   }
}

int parse(int argc, char** argv, Arguments& arguments)
{
   int letter;
   while ((letter = getopt_long(argc, argv, "s:t:jvh", longOptions, nullptr)) != -1) {
      int const status = take(letter, optarg != nullptr ? optarg : "", arguments);
      if (status != goOn) {
         return status;
      }
   }
   return optind == argc ? goOn
                         : wrongUsage(argv[0] + std::string(": what is '") + argv[optind] + "'? ");
}

} // namespace

int main(int argc, char** argv)
{
   std::setlocale(LC_CTYPE, ""); // of which the settings are a text; the library asks no locale
   Arguments arguments;
   int const status = parse(argc, argv, arguments);
   if (status != goOn) {
      return status;
   }
   try {
      check::Report report(arguments.isJson);
      check::Diagnosis diagnosis(arguments.request, report);
      bool const starts = diagnosis.run();
      report.end(diagnosis.versions(), diagnosis.output(), arguments.isVerbose);
      return starts ? allIsWell : doesNotStart;
   } catch (std::exception const& e) {
      std::fprintf(stderr, "%s: %s\n", argv[0], e.what());
      return doesNotStart;
   }
}
