// The tables of a recording, for a terminal.
#ifndef tarn1516e_record_Report_h
#define tarn1516e_record_Report_h

#include "tools/tarn1516e-record/Analysis.h"
#include "tools/tarn1516e-record/Trace.h"

#include <iosfwd>
#include <string>

namespace record {

// A time with a unit that suits it; the argument is microseconds.
std::string timeText(double microseconds);

// How much of it in percent.
std::string shareText(double part, double whole);

// What an ambassador is called.
std::string ambassadorText(Trace const& trace, int ambassador);

// A call in a line: operation, arguments, thread and begin.
std::string callText(Trace const& trace, Call const& call);

// What a reader should look at first: grants that never came, calls that never ended.
std::vector<std::string> remarks(Trace const& trace, Analysis const& analysis);

void printReport(std::ostream& out, Trace const& trace, Analysis const& analysis);

} // namespace record

#endif
