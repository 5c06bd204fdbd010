// What a process that holds a VM has at one moment: its memory, its Java heap, its references and
// threads. Takes a moment in which no service runs.
#ifndef tests_soak_Figures_h
#define tests_soak_Figures_h

#include <jni.h>
#include <string>

namespace soak {

struct Figures {
   long residentKilobytes;  // of the process, Java's heap included
   long allocatedKilobytes; // by malloc and not freed, the VM's own included
   long heapKilobytes;      // used in Java's heap after a full collection
   long localReferences;    // of native threads
   long globalReferences;
   long javaThreads; // as the VM counts them
   long nativeThreads;
};

// Local references of the calling thread that the measuring makes itself are not counted.
Figures measure();

// The VM's, for the calling thread, which is attached.
JNIEnv* environment();

// In one line, behind a title.
void print(std::string const& title, Figures const& figures);

} // namespace soak

#endif
