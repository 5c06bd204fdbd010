// A recording as one page: pictures and tables, with nothing that a network would bring.
#ifndef tarn1516e_record_Page_h
#define tarn1516e_record_Page_h

#include "Analysis.h"
#include "Trace.h"

#include <iosfwd>
#include <string>

namespace record {

void writePage(
      std::ostream& out, std::string const& title, Trace const& trace, Analysis const& analysis);

} // namespace record

#endif
