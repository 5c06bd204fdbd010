// A recording as the report and the page see it.
#ifndef tarn1516e_record_Trace_h
#define tarn1516e_record_Trace_h

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace record {

// What is wrong with a file, in a line without its name.
class BadTrace : public std::runtime_error {
public:
   using std::runtime_error::runtime_error;
};

enum class Category {
   start,
   service,
   callback
};

// Times are microseconds since the recording began.
struct Call {
   static std::size_t const none = static_cast<std::size_t>(-1);

   std::string name;
   Category category = Category::service;
   std::size_t thread = 0; // index
   int ambassador = 0;
   double begin = 0;
   double end = 0; // of the recording, if the call had not ended
   bool hasEnded = false;
   std::size_t parent = none; // the call that it runs inside
   std::size_t depth = 0;     // how many it runs inside
   double inner = 0;          // time of the calls inside it
   bool hasTime = false;      // of its arguments
   double time = 0;
   std::string arguments; // in short
   std::string exception; // its class, or nothing
   std::string text;      // of the exception

   double duration() const
   {
      return end - begin;
   }
};

struct Thread {
   long number;
   std::string name;
};

// What went through an attribute or a parameter.
struct Flow {
   std::size_t sent = 0;
   std::size_t received = 0;
   std::size_t bytesSent = 0;
   std::size_t bytesReceived = 0;
};

class Trace {
public:
   // Throws BadTrace. What stands before a break is kept, and `broken` tells where it is.
   explicit Trace(std::string const& path);

   std::vector<Call> calls; // those of a thread in the order of their begin
   std::vector<Thread> threads;
   std::map<int, std::string> ambassadors;                     // with the names that they joined by
   std::map<std::string, std::map<std::string, Flow>> objects; // by class and attribute
   std::map<std::string, std::map<std::string, Flow>> interactions; // by class and parameter
   double first = 0; // begin of the first service or callback
   double last = 0;
   std::string broken; // why the file could not be read to its end, or nothing
};

} // namespace record

#endif
