// Starts a program with the recorder in front of its library.
#ifndef tarn1516e_record_Launch_h
#define tarn1516e_record_Launch_h

#include <string>

namespace record {

struct Settings {
   std::string output = "tarn1516e-record.json";
   unsigned long limit = 0;  // bytes of the file, or 0
   unsigned long values = 0; // bytes that are shown of a value
};

// Waits for the program to end. Its own exit status, 128 and the signal that ended it, or 2 with a
// line on the standard error stream if it can't be started or its recording can't be kept.
int launch(char** command, Settings const& settings);

} // namespace record

#endif
