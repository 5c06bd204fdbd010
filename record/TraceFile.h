// The file of a recording: an array of events in the Chrome trace event format. Whatever happens to
// the process, what the file holds is a whole array, since each write ends it anew.
#ifndef record_TraceFile_h
#define record_TraceFile_h

#include <cstddef>
#include <string>

namespace tarn1516e {
namespace record {

class TraceFile {
public:
   // `limit` is the most bytes that the file may have, or 0. `failureFd` gets a byte when the file
   // can't be written, or is -1.
   TraceFile(std::string const& path, unsigned long limit, int failureFd);

   // Makes the file anew with its first event. Says on the standard error stream why it can't.
   bool open(std::string const& firstEvent);

   // Appends whole events, each with a comma and a new line in front. False from the event on that
   // goes beyond the limit or can't be written; the first failure is told on the standard error
   // stream.
   bool append(char const* events, std::size_t size);

   // In a child that the process forks: the file is the parent's.
   void leave();

private:
   bool write(char const* data, std::size_t size);
   void fail(char const* why);
   void end(char const* why);

   std::string _path;
   unsigned long _limit;
   int _failureFd;
   int _fd;
   unsigned long _end; // where the array's end stands
};

} // namespace record
} // namespace tarn1516e

#endif
