// A recording as one page: pictures and tables, with nothing that a network would bring.
#ifndef tarn1516e_record_Page_h
#define tarn1516e_record_Page_h

#include "tools/tarn1516e-record/Analysis.h"
#include "tools/tarn1516e-record/Trace.h"

#include <iosfwd>
#include <string>

namespace record {

void writePage(
      std::ostream& out, std::string const& title, Trace const& trace, Analysis const& analysis);

} // namespace record

#endif
