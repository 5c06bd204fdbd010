// What the library does when a thread ends.
#ifndef api_ThreadEnd_h
#define api_ThreadEnd_h

#include <pthread.h>

namespace rti1516e {

// A function for the ends of threads, for as long as the process runs. It is a key's, since it
// takes memory to register the destructor of a thread_local, and the loader's lock.
class ThreadEnd {
public:
   explicit ThreadEnd(void (*function)(void*)) : _isMade(pthread_key_create(&_key, function) == 0)
   {
   }

   // Has the function called with the argument when this thread ends. False if it will not be.
   bool await(void* argument) const
   {
      return _isMade && pthread_setspecific(_key, argument) == 0;
   }

private:
   pthread_key_t _key;
   bool _isMade;
};

} // namespace rti1516e

#endif
