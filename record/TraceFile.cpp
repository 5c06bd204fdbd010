// Writes a recording, and ends it in good order where the limit or the disk ends.
#include "record/TraceFile.h"

#include "runtime/StandardError.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/uio.h>
#include <unistd.h>

namespace tarn1516e {
namespace record {

namespace {

char const arrayEnd[] = "\n]\n";
std::size_t const arrayEndSize = sizeof arrayEnd - 1;

} // namespace

TraceFile::TraceFile(std::string const& path, unsigned long limit, int failureFd)
      : _path(path),
        _limit(limit),
        _failureFd(failureFd),
        _fd(-1),
        _end(0)
{
}

bool TraceFile::open(std::string const& firstEvent)
{
   _fd = ::open(_path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
   if (_fd < 0) {
      fail(std::strerror(errno));
      return false;
   }
   if (flock(_fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      fail("another process records to it; a %p in the name stands for the process's number");
      return false;
   }
   if (ftruncate(_fd, 0) != 0 && errno != EINVAL) { // EINVAL: a device
      fail(std::strerror(errno));
      return false;
   }
   std::string const begin = "[\n" + firstEvent;
   return write(begin.data(), begin.size());
}

bool TraceFile::append(char const* events, std::size_t size)
{
   if (_fd < 0) {
      return false;
   }
   if (_limit == 0 || _end + size + arrayEndSize <= _limit) {
      return write(events, size);
   }
   // The events that still fit; none has a new line inside.
   std::size_t fits = _limit > _end + arrayEndSize ? _limit - _end - arrayEndSize : 0;
   while (fits > 0 && std::strncmp(events + fits, ",\n", 2) != 0) {
      --fits;
   }
   if (write(events, fits)) {
      end("the limit is reached");
   }
   return false;
}

void TraceFile::leave()
{
   if (_fd >= 0) {
      close(_fd);
   }
   _fd = -1;
}

bool TraceFile::write(char const* data, std::size_t size)
{
   iovec parts[] = {{const_cast<char*>(data), size}, {const_cast<char*>(arrayEnd), arrayEndSize}};
   ssize_t written;
   do {
      written = pwritev(_fd, parts, 2, static_cast<off_t>(_end));
   } while (written < 0 && errno == EINTR);
   if (written == static_cast<ssize_t>(size + arrayEndSize)) {
      _end += size;
      return true;
   }
   int const error = written < 0 ? errno : ENOSPC;
   // Back to the events that were whole.
   if (_end > 0 && ftruncate(_fd, static_cast<off_t>(_end)) == 0) {
      static_cast<void>(pwrite(_fd, arrayEnd, arrayEndSize, static_cast<off_t>(_end)) == 0);
   }
   fail(std::strerror(error));
   return false;
}

void TraceFile::fail(char const* why)
{
   if (_failureFd >= 0) {
      static_cast<void>(::write(_failureFd, "!", 1) == 1);
   }
   end(why);
}

void TraceFile::end(char const* why)
{
   std::string const text =
         "tarn1516e-record: " + _path + ": " + why + "; the recording ends, the federate goes on\n";
   writeError(text.c_str());
   leave();
}

} // namespace record
} // namespace tarn1516e
