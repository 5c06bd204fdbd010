// How start-up tells what it does, and what it could not do.
#ifndef jvm_Report_h
#define jvm_Report_h

#include <string>

namespace tarn1516e {

// The trace of start-up. Each unit that takes part has one of its own, and reads the environment
// for it when its part begins.
class Trace {
public:
   constexpr Trace() : _isOn(false) {}
   void readEnvironment();
   void operator()(std::string const& line) const;

private:
   bool _isOn;
};

// Writes the text to the standard error stream and throws RTIinternalError with it. The stream gets
// bytes, as the environment's values have them: it has no say about which of them a locale allows.
[[noreturn]] void fail(std::wstring const& text);
[[noreturn]] void fail(std::string const& text);

} // namespace tarn1516e

#endif
