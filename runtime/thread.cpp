// Threads over POSIX, and their numbers.
#include <tarn1516e/thread.h>

#include "runtime/StandardError.h"

#include <map>
#include <memory>
#include <ostream>
#include <unistd.h>

namespace tarn1516e {

namespace {

// What a new thread is told. Lives until the thread ends.
struct StartRecord {
   void (*function)(void*);
   void* argument;
   thread* object;
};

} // namespace

// Numbers are never taken back.
thread::id _pthread_t_to_ID(pthread_t const& handle)
{
   static mutex idMapLock;
   static std::map<pthread_t, unsigned long long> idMap;
   static unsigned long long idCount = 1;

   lock_guard<mutex> guard(idMapLock);
   if (idMap.count(handle) == 0) {
      idMap[handle] = idCount++;
   }
   return thread::id(idMap[handle]);
}

// The lock keeps the new thread from ending before the constructor does.
thread::thread(void (*function)(void*), void* argument)
{
   lock_guard<mutex> guard(_lock);
   std::unique_ptr<StartRecord> record(new StartRecord{function, argument, this});
   _notAThread = false;
   if (pthread_create(&_handle, nullptr, &thread::wrapper_function, record.get()) != 0) {
      _handle = 0;
   }
   if (_handle == 0) {
      _notAThread = true;
   } else {
      static_cast<void>(record.release()); // the new thread's
   }
}

thread::~thread()
{
   if (joinable()) {
      writeError("Warning: thread::~thread() called before thread::join()!\n");
   }
}

bool thread::joinable() const
{
   lock_guard<mutex> guard(_lock);
   return !_notAThread;
}

void thread::join()
{
   if (joinable()) {
      pthread_join(_handle, nullptr);
   }
}

thread::id thread::get_id() const
{
   return joinable() ? _pthread_t_to_ID(_handle) : id();
}

unsigned int thread::hardware_concurrency()
{
   return static_cast<unsigned int>(sysconf(_SC_NPROCESSORS_ONLN));
}

void* thread::wrapper_function(void* record)
{
   StartRecord* const start = static_cast<StartRecord*>(record);
   try {
      start->function(start->argument);
   } catch (...) {
      writeError("Warning: Uncaught exceptions throw from thread function! Terminating...\n");
   }
   lock_guard<mutex> guard(start->object->_lock);
   start->object->_notAThread = true;
   delete start;
   return nullptr;
}

std::ostream& operator<<(std::ostream& stream, thread::id const& rhs)
{
   return stream << rhs._number;
}

std::wostream& operator<<(std::wostream& stream, thread::id const& rhs)
{
   return stream << rhs._number;
}

thread::id this_thread::get_id()
{
   return _pthread_t_to_ID(pthread_self());
}

} // namespace tarn1516e
