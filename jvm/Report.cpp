// The trace of start-up and its failures, both on the standard error stream.
#include "jvm/Report.h"

#include "jvm/StartTexts.h"
#include "jvm/Text.h"
#include "runtime/StandardError.h"
#include <RTI/Exception.h>

#include <cstdlib>

namespace tarn1516e {

void Trace::readEnvironment()
{
   _isOn = std::getenv(text::traceVariable) != nullptr;
}

void Trace::operator()(std::string const& line) const
{
   if (_isOn) {
      writeError((text::tracePrefix + line + "\n").c_str());
   }
}

void fail(std::wstring const& text)
{
   writeError(wstring2string(text).c_str());
   throw rti1516e::RTIinternalError(text);
}

void fail(std::string const& text)
{
   fail(string2wstring(text));
}

} // namespace tarn1516e
