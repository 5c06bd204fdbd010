// A lock over a POSIX mutex, and its scoped guard.
#ifndef tarn1516e_mutex_h
#define tarn1516e_mutex_h

#include <pthread.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace tarn1516e {

/// A lock that one thread holds at a time. It is not recursive: a thread that locks it twice waits
/// for itself. Must not be destroyed while it is held. Nothing throws.
class RTI_EXPORT mutex {
public:
   mutex();
   ~mutex();

   /// Waits until no other thread holds the lock, then holds it.
   void lock();

   /// Lets the lock go. Only for the thread that holds it.
   void unlock();

private:
   mutex(mutex const&);
   mutex& operator=(mutex const&);

   pthread_mutex_t _mutex;
};

/// Holds a lock from its own construction to its own end. T is a class with lock() and unlock(),
/// such as mutex; the object must outlive the guard.
template <class T>
class lock_guard {
public:
   /// Waits for the lock and holds it.
   explicit lock_guard(T& lockable) : _lockable(&lockable)
   {
      _lockable->lock();
   }

   ~lock_guard()
   {
      if (_lockable != 0) {
         _lockable->unlock();
      }
   }

private:
   lock_guard(lock_guard const&);
   lock_guard& operator=(lock_guard const&);

   T* _lockable;
};

} // namespace tarn1516e

RTI_END_INTERFACE

#endif
