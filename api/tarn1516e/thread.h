// A joinable thread over POSIX threads, and small numbers that stand for threads.
#ifndef tarn1516e_thread_h
#define tarn1516e_thread_h

#include <iosfwd>
#include <pthread.h>
#include <RTI/SpecificConfig.h>
#include <tarn1516e/mutex.h>

RTI_BEGIN_INTERFACE

namespace tarn1516e {

/// A thread that runs one function. The object must outlive it: call join() before the object goes.
/// Nothing throws but std::bad_alloc from the constructor and from get_id().
class RTI_EXPORT thread {
public:
   class id;

   /// Starts a thread that calls function with argument. If the system grants no thread, the object
   /// stands for none and joinable() is false.
   ///
   /// An exception out of the function ends the thread, not the process; a warning goes to the
   /// standard error stream. The function must not call pthread_exit.
   thread(void (*function)(void*), void* argument);

   /// Does not wait for the thread and does not end it. If it is still running, which is a mistake,
   /// a warning goes to the standard error stream.
   ~thread();

   /// True until the function has ended.
   bool joinable() const;

   /// Waits for the end of the thread, if it is joinable. For one thread at a time, not for the
   /// thread itself, and once only.
   void join();

   /// The thread's number if it is joinable, otherwise id().
   id get_id() const;

   /// Number of processors that the system has online.
   static unsigned int hardware_concurrency();

private:
   thread(thread const&);
   thread& operator=(thread const&);

   static void* wrapper_function(void* record);

   pthread_t _handle; // 0 if the system granted none
   mutable mutex _lock;
   bool _notAThread; // guarded by _lock
};

/// A number for a thread, from 1 on in the order in which threads are first asked about. Where the
/// system uses the handle of a thread that has ended for a later one, both have one number.
class RTI_EXPORT thread::id {
public:
   /// No thread: the number 0.
   id() : _number(0) {}

   /// Compares the numbers.
   bool operator==(id const& rhs) const
   {
      return _number == rhs._number;
   }
   bool operator!=(id const& rhs) const
   {
      return _number != rhs._number;
   }
   bool operator<(id const& rhs) const
   {
      return _number < rhs._number;
   }
   bool operator>(id const& rhs) const
   {
      return _number > rhs._number;
   }
   bool operator<=(id const& rhs) const
   {
      return _number <= rhs._number;
   }
   bool operator>=(id const& rhs) const
   {
      return _number >= rhs._number;
   }

private:
   explicit id(unsigned long long number) : _number(number) {}

   friend id _pthread_t_to_ID(pthread_t const& handle);
   friend RTI_EXPORT std::ostream& operator<<(std::ostream& stream, id const& rhs);
   friend RTI_EXPORT std::wostream& operator<<(std::wostream& stream, id const& rhs);

   unsigned long long _number;
};

/// Writes the number.
RTI_EXPORT std::ostream& operator<<(std::ostream& stream, thread::id const& rhs);
RTI_EXPORT std::wostream& operator<<(std::wostream& stream, thread::id const& rhs);

namespace this_thread {

/// The number of the calling thread, also where no thread object stands for it. Throws nothing but
/// std::bad_alloc.
RTI_EXPORT thread::id get_id();

} // namespace this_thread

} // namespace tarn1516e

RTI_END_INTERFACE

#endif
