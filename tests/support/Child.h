// A program run in a process of its own, whose environment, directory and streams are the test's.
#ifndef tests_support_Child_h
#define tests_support_Child_h

#include <string>
#include <vector>

struct Outcome {
   std::string ending; // "exit 0", "signal 6"
   std::string out;    // both streams, whole
   std::string err;
};

// Runs a program to its end, or for two minutes. Its environment is the given one ("NAME=value")
// and nothing else, but for the options of sanitizers; its standard input is empty.
Outcome runChild(std::string const& program, std::vector<std::string> const& arguments,
      std::vector<std::string> const& environment, std::string const& directory);

#endif
