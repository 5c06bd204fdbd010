// Threads' buffers and their way into the file.
#include "record/Recording.h"

#include "record/Text.h"

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <pthread.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/syscall.h>
#endif

namespace tarn1516e {
namespace record {

namespace {

thread_local ThreadLog* mine = nullptr;
pthread_key_t atThreadEnd;

std::string environment(char const* name)
{
   char const* const value = std::getenv(name);
   return value != nullptr ? value : "";
}

unsigned long number(char const* name)
{
   return std::strtoul(environment(name).c_str(), nullptr, 10);
}

// The output's name, with the process's number for %p.
std::string outputPath()
{
   std::string path = environment("TARN1516E_RECORD_OUTPUT");
   std::size_t const place = path.find("%p");
   if (place != std::string::npos) {
      path.replace(place, 2, std::to_string(getpid()));
   }
   return path;
}

int failureFd()
{
   std::string const text = environment("TARN1516E_RECORD_STATUS");
   return text.empty() ? -1 : std::atoi(text.c_str());
}

unsigned long long threadNumber()
{
#ifdef __linux__
   return static_cast<unsigned long long>(syscall(SYS_gettid));
#else
   std::uint64_t number = 0;
   pthread_threadid_np(nullptr, &number);
   return number;
#endif
}

// A small event in text, for what happens once.
template <class Write>
std::string text(Write const& write)
{
   char buffer[2 * Text::reserve];
   Text out(buffer, buffer + sizeof buffer);
   write(out);
   return std::string(buffer, out.size());
}

std::string headEvent(std::size_t shownBytes)
{
   return text([&](Text& out) {
      out.put("{\"ph\":\"M\",\"name\":\"tarn1516e-record\",\"pid\":");
      out.number(static_cast<long long>(getpid()));
      out.put(",\"args\":{\"version\":1,\"began\":");
      out.number(static_cast<long long>(std::time(nullptr)));
      out.put(",\"shown bytes\":");
      out.number(static_cast<long long>(shownBytes));
      out.put("}}");
   });
}

} // namespace

std::atomic<Recording*> Recording::begun{nullptr};

Recording& Recording::instance()
{
   static Recording* const recording = new Recording; // threads may outlive every static object
   return *recording;
}

Recording::Recording() : _file(outputPath(), number("TARN1516E_RECORD_LIMIT"), failureFd())
{
   timespec time;
   clock_gettime(CLOCK_MONOTONIC, &time);
   _begin = nanoseconds(time);
   _shownBytes = number("TARN1516E_RECORD_VALUES");
   if (environment("TARN1516E_RECORD_OUTPUT").empty() || !_file.open(headEvent(_shownBytes))) {
      return;
   }
   pthread_key_create(&atThreadEnd, [](void* log) {
      instance().flush();
      mine = nullptr;
      static_cast<ThreadLog*>(log)->isFree = true;
   });
   pthread_atfork(nullptr, nullptr, leaveInChild);
   begun = this;
   _isOn = true;
   startFlusher();
}

// A log that a thread has left, or a new one.
ThreadLog* Recording::threadLog()
{
   if (mine != nullptr) {
      return mine;
   }
   for (ThreadLog* log = _logs; log != nullptr && mine == nullptr; log = log->next) {
      bool isFree = true;
      if (log->isFree.compare_exchange_strong(isFree, false)) {
         mine = log;
      }
   }
   if (mine == nullptr) {
      mine = new (std::nothrow) ThreadLog;
      if (mine == nullptr) {
         return nullptr;
      }
      std::lock_guard<std::mutex> const guard(_mutex);
      mine->next = _logs;
      _logs = mine;
   }
   adopt(*mine);
   return mine;
}

// Names the thread, as the system does, before its first event.
void Recording::adopt(ThreadLog& log)
{
   pthread_setspecific(atThreadEnd, &log);
   log.prefix = text([](Text& out) {
      out.put(",\n{\"pid\":");
      out.number(static_cast<long long>(getpid()));
      out.put(",\"tid\":");
      out.number(static_cast<long long>(threadNumber()));
      out.put(",\"ts\":");
   });
   char name[64] = "";
   pthread_getname_np(pthread_self(), name, sizeof name);
   empty(log);
   Text out(log.buffer, log.buffer + ThreadLog::size);
   out.put(log.prefix);
   out.put("0,\"ph\":\"M\",\"name\":\"thread_name\",\"args\":{\"name\":");
   out.quoted(name);
   out.put("}}");
   log.used.store(out.size(), std::memory_order_release);
}

void Recording::makeRoom(ThreadLog& log, std::size_t used)
{
   if (!log.isAnnounced) {
      log.isAnnounced = true;
      _flusherIsWanted.notify_one();
   }
   if (ThreadLog::size - used < ThreadLog::roomForEvent) {
      empty(log);
   }
}

void Recording::empty(ThreadLog& log)
{
   std::lock_guard<std::mutex> const guard(_mutex);
   write(log);
   log.written = 0;
   log.used.store(0, std::memory_order_relaxed);
   log.isAnnounced = false;
}

void Recording::write(ThreadLog& log)
{
   std::size_t const used = log.used.load(std::memory_order_acquire);
   if (isOn() && used > log.written
         && !_file.append(log.buffer + log.written, used - log.written)) {
      _isOn = false;
   }
   log.written = used;
}

void Recording::flush()
{
   std::lock_guard<std::mutex> const guard(_mutex);
   for (ThreadLog* log = _logs; log != nullptr; log = log->next) {
      write(*log);
   }
}

void Recording::end()
{
   if (Recording* const recording = begun) {
      recording->flush();
      recording->_isOn = false;
   }
}

// Signals are the federate's own threads' affair.
void Recording::startFlusher()
{
   sigset_t all, before;
   sigfillset(&all);
   pthread_sigmask(SIG_SETMASK, &all, &before);
   pthread_t thread;
   if (pthread_create(&thread, nullptr, flushNowAndThen, this) == 0) {
      pthread_detach(thread);
   }
   pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void* Recording::flushNowAndThen(void* recording)
{
   Recording& self = *static_cast<Recording*>(recording);
   std::unique_lock<std::mutex> lock(self._flusherMutex);
   while (self.isOn()) {
      self._flusherIsWanted.wait_for(lock, std::chrono::milliseconds(500));
      self.flush();
   }
   return nullptr;
}

// The child has no other thread, and the mutex may be held by one of them for ever.
void Recording::leaveInChild()
{
   instance()._isOn = false;
   instance()._file.leave();
}

} // namespace record
} // namespace tarn1516e
