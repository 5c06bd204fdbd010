// The one recording of this process: the file, and a buffer for each thread that has something to
// tell. A thread writes to its own buffer without a lock; a lock is taken where a buffer goes into
// the file: by a thread of the recorder's own twice a second and when a buffer is half full, and by
// the buffer's thread if it is full all the same.
#ifndef record_Recording_h
#define record_Recording_h

#include "record/TraceFile.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <ctime>
#include <mutex>
#include <string>

namespace tarn1516e {
namespace record {

// What one thread has recorded. It is the thread's alone but for what stands before `used`.
struct ThreadLog {
   static std::size_t const size = 262144;
   static std::size_t const roomForEvent = 65536;
   static std::size_t const urgent = size / 2;

   std::atomic<std::size_t> used{0};
   std::size_t written = 0;         // of it, in the file; guarded by the recording's mutex
   bool isBuilding = false;         // inside an event; one within it is not recorded
   std::string prefix;              // how each event begins, to its time
   bool isAnnounced = false;        // that it is half full
   ThreadLog* next = nullptr;       // in the list of all, which only grows
   std::atomic<bool> isFree{false}; // its thread has ended
   char buffer[size];
};

class Recording {
public:
   // Begins with the first call, if the environment asks for a recording.
   static Recording& instance();

   bool isOn() const
   {
      return _isOn.load(std::memory_order_relaxed);
   }

   // Nanoseconds since the recording began.
   unsigned long long now() const
   {
      timespec time;
      clock_gettime(CLOCK_MONOTONIC, &time);
      return nanoseconds(time) - _begin;
   }

   // The calling thread's, with room for an event, or null if nothing is to be recorded.
   ThreadLog* log()
   {
      ThreadLog* const mine = isOn() ? threadLog() : nullptr;
      if (mine == nullptr || mine->isBuilding) {
         return nullptr;
      }
      std::size_t const used = mine->used.load(std::memory_order_relaxed);
      if (used > ThreadLog::urgent) {
         makeRoom(*mine, used);
      }
      return mine;
   }

   // Puts all that is recorded into the file.
   void flush();

   // Flushes if there is a recording; nothing is recorded any more.
   static void end();

   // The most bytes of a value that are shown, or 0 for its size alone.
   std::size_t shownBytes() const
   {
      return _shownBytes;
   }

   int nextAmbassador()
   {
      return ++_ambassadors;
   }

private:
   Recording();

   static unsigned long long nanoseconds(timespec const& time)
   {
      return static_cast<unsigned long long>(time.tv_sec) * 1000000000ULL
            + static_cast<unsigned long long>(time.tv_nsec);
   }

   ThreadLog* threadLog();
   void adopt(ThreadLog& log);
   void makeRoom(ThreadLog& log, std::size_t used);
   void empty(ThreadLog& log);
   void write(ThreadLog& log);
   void startFlusher();
   static void* flushNowAndThen(void*);
   static void leaveInChild();

   static std::atomic<Recording*> begun;

   std::atomic<bool> _isOn{false};
   unsigned long long _begin = 0;
   std::size_t _shownBytes = 0;
   std::atomic<int> _ambassadors{0};
   std::mutex _flusherMutex; // for its waiting alone
   std::condition_variable _flusherIsWanted;
   std::mutex _mutex; // the file's, and of the list of logs
   TraceFile _file;
   std::atomic<ThreadLog*> _logs{nullptr};
};

// Puts the calling function's own event into the file too, if it stands before that.
struct FlushAtEnd {
   FlushAtEnd() {}

   ~FlushAtEnd()
   {
      Recording::instance().flush();
   }
};

} // namespace record
} // namespace tarn1516e

#endif
