// The command line: starts a recorded program, or shows what a recording holds.
#include "tools/tarn1516e-record/Analysis.h"
#include "tools/tarn1516e-record/Launch.h"
#include "tools/tarn1516e-record/Page.h"
#include "tools/tarn1516e-record/Report.h"
#include "tools/tarn1516e-record/Trace.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <getopt.h>
#include <iostream>

namespace {

char const usage[] = //
      "Usage: tarn1516e-record [--output FILE] [--limit SIZE] [--values BYTES] -- PROGRAM "
      "[ARG...]\n"
      "       tarn1516e-record --report FILE\n"
      "       tarn1516e-record --html PAGE FILE\n"
      "\n"
      "Runs a federate, unchanged, and records each service that it calls and each callback that\n"
      "it receives. Perfetto and chrome://tracing open the file.\n"
      "\n"
      "  -o, --output FILE    record to this file (tarn1516e-record.json); %p in its name stands\n"
      "                       for the process's number\n"
      "  -l, --limit SIZE     end the recording at this size; K, M or G may follow the number\n"
      "  -v, --values BYTES   show so many bytes of each value beside its size\n"
      "      --report FILE    print a recording as tables\n"
      "      --html PAGE      write a recording as one page, to look at in a browser\n"
      "  -h, --help           print this and exit\n"
      "\n"
      "Exit status: the program's own, or 128 and the signal that ended it; 2 if it can't be\n"
      "started, a file can't be read or written, or the options are wrong.\n";

int const failed = 2;

struct Arguments {
   record::Settings settings;
   std::string report;
   std::string page;
};

// A number, perhaps with a unit behind it. False if it is none.
bool parseSize(char const* text, unsigned long& size)
{
   char* end = nullptr;
   errno = 0;
   size = std::strtoul(text, &end, 10);
   if (end == text || *text == '-' || errno != 0) {
      return false;
   }
   char const units[] = "KMG";
   char const* const unit = *end != '\0' ? std::strchr(units, *end) : nullptr;
   if (unit != nullptr) {
      size <<= 10 * (unit - units + 1);
      ++end;
   }
   return *end == '\0';
}

int complain(char const* what, char const* about)
{
   std::fprintf(stderr, "tarn1516e-record: %s '%s'; try tarn1516e-record --help\n", what, about);
   return failed;
}

// The exit status to leave with at once, or -1.
int parse(int argc, char** argv, Arguments& arguments)
{
   enum {
      report = 256,
      html
   };
   option const options[] = {{"output", required_argument, nullptr, 'o'},
         {"limit", required_argument, nullptr, 'l'}, {"values", required_argument, nullptr, 'v'},
         {"report", required_argument, nullptr, report}, {"html", required_argument, nullptr, html},
         {"help", no_argument, nullptr, 'h'}, {nullptr, 0, nullptr, 0}};
   for (int option; (option = getopt_long(argc, argv, "+o:l:v:h", options, nullptr)) != -1;) {
      switch (option) {
      case 'o':
         arguments.settings.output = optarg;
         break;
      case 'l':
         if (!parseSize(optarg, arguments.settings.limit)) {
            return complain("no size is", optarg);
         }
         break;
      case 'v':
         if (!parseSize(optarg, arguments.settings.values) || arguments.settings.values > 4096) {
            return complain("at most 4096 bytes of a value can be shown, not", optarg);
         }
         break;
      case report:
         arguments.report = optarg;
         break;
      case html:
         arguments.page = optarg;
         break;
      case 'h':
         std::fputs(usage, stdout);
         return 0;
      default:
         std::fputs("Try tarn1516e-record --help.\n", stderr);
         return failed;
      }
   }
   return -1;
}

// Both show what there is of a recording that breaks off, and say so.
int show(std::string const& path, std::string const& page)
{
   try {
      record::Trace const trace(path);
      record::Analysis const analysis(trace);
      if (page.empty()) {
         record::printReport(std::cout, trace, analysis);
      } else {
         std::ofstream file(page);
         record::writePage(file, path, trace, analysis);
         file.close();
         if (!file) {
            std::fprintf(stderr, "tarn1516e-record: %s: can't be written\n", page.c_str());
            return failed;
         }
      }
      if (trace.broken.empty()) {
         return 0;
      }
      std::fprintf(stderr, "tarn1516e-record: %s %s\n", path.c_str(), trace.broken.c_str());
   } catch (record::BadTrace const& e) {
      std::fprintf(stderr, "tarn1516e-record: %s: %s\n", path.c_str(), e.what());
   }
   return failed;
}

} // namespace

int main(int argc, char** argv)
{
   Arguments arguments;
   int const status = parse(argc, argv, arguments);
   if (status >= 0) {
      return status;
   }
   if (!arguments.report.empty()) {
      return optind == argc ? show(arguments.report, "") : complain("what is", argv[optind]);
   }
   if (optind == argc) {
      return complain(
            "nothing to do without a program or a file; what is", argc > 1 ? argv[argc - 1] : "");
   }
   if (!arguments.page.empty()) {
      return optind + 1 == argc ? show(argv[optind], arguments.page)
                                : complain("what is", argv[optind + 1]);
   }
   return record::launch(argv + optind, arguments.settings);
}
