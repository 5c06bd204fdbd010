// The POSIX mutex behind the lock.
#include <tarn1516e/mutex.h>

namespace tarn1516e {

mutex::mutex()
{
   pthread_mutex_init(&_mutex, nullptr);
}

mutex::~mutex()
{
   pthread_mutex_destroy(&_mutex);
}

void mutex::lock()
{
   pthread_mutex_lock(&_mutex);
}

void mutex::unlock()
{
   pthread_mutex_unlock(&_mutex);
}

} // namespace tarn1516e
