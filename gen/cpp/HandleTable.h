// The integers that stand for ambassadors in the byte arrays that cross to Java and back.
#ifndef gen_HandleTable_h
#define gen_HandleTable_h

// Takes the next free slot for the pointer. With all 4096 taken: a message, and 0; the first handle
// is 1, and 0 comes last of all. Every connect takes a slot; none is given back, so that a process
// has 4096 connects. Not guarded against itself.
int makeHandle(void* pointer);

// The slot's pointer, or null. The handle is not tested.
void* lookupPtr(int handle);

// Clears the slot. The handle is not tested.
void releaseHandle(int handle);

#endif
