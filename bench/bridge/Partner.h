// The Java side as the benchmarks see it: the VM that the library has started, with the stand-in
// in the mode in which every method answers at once.
#ifndef bench_bridge_Partner_h
#define bench_bridge_Partner_h

#include <RTI/RTI1516.h>

#include <jni.h>
#include <memory>
#include <string>

// The calling thread's environment.
JNIEnv* environment();

// A method that services call, on an object of the class that they call it on.
struct JavaMethod {
   jobject object; // global
   jmethodID id;
};
JavaMethod findService(char const* name, char const* signature);

// The class beside it with what is written by hand; global.
jclass byHandClass();

// An array that stays for the length of the process.
jbyteArray keepArray(std::string const& bytes);

// A federate that takes what it is given and does nothing.
class Federate : public rti1516e::NullFederateAmbassador {
public:
   using NullFederateAmbassador::reflectAttributeValues;

   void reflectAttributeValues(rti1516e::ObjectInstanceHandle,
         rti1516e::AttributeHandleValueMap const& values, rti1516e::VariableLengthData const&,
         rti1516e::OrderType, rti1516e::TransportationType,
         rti1516e::SupplementalReflectInfo) override
   {
      delivered += values.size();
   }

   unsigned long delivered = 0; // attributes so far
};

// A federate that has joined, as far as the library can tell.
struct Member {
   Member();

   Federate federate;
   std::auto_ptr<rti1516e::RTIambassador> ambassador;
   int handle; // with which its callbacks begin
};

// The one that most benchmarks share. The first call starts the VM.
Member& member();

// An ambassador that never connected.
std::auto_ptr<rti1516e::RTIambassador> makeAmbassador();

rti1516e::ObjectInstanceHandle makeObject(int value);

// Attributes 1 to count, each with a value of `size` bytes.
rti1516e::AttributeHandleValueMap makeValues(int count, std::size_t size);

#endif
