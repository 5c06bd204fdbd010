// tarn1516e-check: tells whether a federate starts here, and if not, why.
#include "tools/tarn1516e-check/Diagnosis.h"
#include <RTI/RTI1516.h>

#include <cstdio>
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
      "  -v, --verbose             also print all that start-up wrote, its trace included\n"
      "  -h, --help                print this and exit\n"
      "      --version             print the library's version and exit\n"
      "\n"
      "Exit status: 0 if all is well, 1 if a step fails, 2 if the options are wrong.\n";

struct Arguments {
   check::Request request;
   bool verbose = false;
};

// The exit status to leave with at once, or -1.
int parse(int argc, char** argv, Arguments& arguments)
{
   enum {
      hostVm = 256,
      version
   };
   option const longOptions[] = {
         {"settings", required_argument, nullptr, 's'},
         {"host-vm", required_argument, nullptr, hostVm},
         {"verbose", no_argument, nullptr, 'v'},
         {"help", no_argument, nullptr, 'h'},
         {"version", no_argument, nullptr, version},
         {nullptr, 0, nullptr, 0},
   };
   int letter;
   while ((letter = getopt_long(argc, argv, "s:vh", longOptions, nullptr)) != -1) {
      std::string const value = optarg != nullptr ? optarg : "";
      switch (letter) {
      case 's':
         arguments.request.settings.assign(value.begin(), value.end());
         break;
      case hostVm:
         arguments.request.hostVm = true;
         arguments.request.hostClassPath = value;
         break;
      case 'v':
         arguments.verbose = true;
         break;
      case 'h':
         std::fputs(usage, stdout);
         return allIsWell;
      case version:
         std::printf("tarn1516e-check %ls\n", rti1516e::rtiVersion().c_str());
         return allIsWell;
      default:
         std::fputs("Try tarn1516e-check --help.\n", stderr);
         return badUsage;
      }
   }
   if (optind < argc) {
      std::fprintf(
            stderr, "%s: what is '%s'? Try tarn1516e-check --help.\n", argv[0], argv[optind]);
      return badUsage;
   }
   return -1;
}

} // namespace

int main(int argc, char** argv)
{
   Arguments arguments;
   int const status = parse(argc, argv, arguments);
   if (status >= 0) {
      return status;
   }
   try {
      check::Diagnosis const diagnosis(arguments.request);
      bool const well = diagnosis.tell();
      if (well) {
         std::puts("All is well: a federate starts here.");
      }
      if (arguments.verbose) {
         diagnosis.tellTrace();
      }
      if (!well || arguments.verbose) {
         diagnosis.tellOutput();
      }
      return well ? allIsWell : doesNotStart;
   } catch (std::exception const& e) {
      std::fprintf(stderr, "%s: %s\n", argv[0], e.what());
      return doesNotStart;
   }
}
