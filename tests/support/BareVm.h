// A Java VM without Java: what the library asks of one, answered by C++. It bears the real one's
// name, so that the library finds it in the program that is linked with it, or where a test has
// laid it. Tests tell it what to answer. It makes no native allocation for a call that it does
// not keep.
//
// It is also the VM of start-up's trials, and goes by these variables:
//
//    VM_TELLS             if set, start-up's calls are told on the standard output
//    VM_CHECK, VM_COUNT   status and number of VMs of JNI_GetCreatedJavaVMs
//    VM_CREATE            status of JNI_CreateJavaVM
//    VM_ATTACH            status of AttachCurrentThread, where VM_TELLS is set
//    VM_LACKS             part of the names of the classes and methods that it does not find
//    VM_REGISTER          status of RegisterNatives
//    VM_THROWS            if set, there is always an exception, of no class that has a name
//    VM_NULL              if set, constructors give null
//
// Built with ENTRY_POINTS 0 it is a library and no VM, with 1 it has JNI_GetCreatedJavaVMs alone.
#ifndef tests_support_BareVm_h
#define tests_support_BareVm_h

#include "tests/support/JavaSide.h"

#include <jni.h>
#include <map>

namespace bare {

struct State {
   bool keepsCalls = true;      // else only the last body
   std::string lastBody() const // of the last call that had one
   {
      return std::string(body.data(), bodySize);
   }

   int pinned = 0; // arrays that are pinned now
   int localReferences = 0;
   int globalReferences = 0;
   std::vector<std::string> compared; // the classes that exceptions were compared with, in order
   std::map<std::string, std::string>
         methods; // found so far in the ambassador's class, with signature
   std::map<std::string, void*> natives;

   std::string body; // the array of every call; it keeps the room of the longest
   std::size_t bodySize = 0;
};

RTI_EXPORT State& state();

// An array over bytes that stay where they are. It is one and the same object each time.
RTI_EXPORT jbyteArray arrayOver(char* bytes, std::size_t size);

RTI_EXPORT JNIEnv* environment();

} // namespace bare

#endif
