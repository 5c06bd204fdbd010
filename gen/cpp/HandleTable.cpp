// A table that only grows: a slot, once written, is read without a lock.
#include "gen/cpp/HandleTable.h"

#include "runtime/StandardError.h"

namespace {

int const slots = 4096;

void* handleMap[slots];
int nextHandle; // the last handle handed out

} // namespace

int makeHandle(void* pointer)
{
   // One try more than there are slots: a search that finds none leaves nextHandle one further on.
   for (int tries = 0; tries <= slots; ++tries) {
      nextHandle = (nextHandle + 1) % slots;
      if (handleMap[nextHandle] == nullptr) {
         handleMap[nextHandle] = pointer;
         return nextHandle;
      }
   }
   tarn1516e::writeError("No more FederateAmbassador handles\n");
   return 0;
}

void* lookupPtr(int handle)
{
   return handleMap[handle];
}

void releaseHandle(int handle)
{
   handleMap[handle] = nullptr;
}
