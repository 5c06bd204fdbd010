// Callbacks fired from a Java loop, each beside a native that does by hand what can't be avoided.
#include "bench/bridge/Cases.h"
#include "bench/bridge/Frames.h"
#include <RTI/time/HLAfloat64TimeFactory.h>

#include <map>
#include <stdexcept>
#include <vector>

using namespace rti1516e;

namespace {

int const fired = 1000; // callbacks a loop in Java

// ---- By hand ----------------------------------------------------------------------------------

typedef std::vector<char> Bytes;
typedef std::map<int, Bytes> Values;

// What the native by hand calls.
class Receiver {
public:
   virtual ~Receiver() {}

   virtual void reflect(int, Values const& values, Bytes const&, int, int, int)
   {
      delivered += values.size();
   }

   unsigned long delivered = 0;
};

// Volatile, lest the compiler know whose functions are called.
Receiver* volatile receiver;
FederateAmbassador* volatile grantReceiver;

class Reader {
public:
   explicit Reader(void const* bytes) : _next(static_cast<unsigned char const*>(bytes)) {}

   int integer()
   {
      unsigned const value = static_cast<unsigned>(_next[0]) << 24
            | static_cast<unsigned>(_next[1]) << 16 | static_cast<unsigned>(_next[2]) << 8
            | static_cast<unsigned>(_next[3]);
      _next += 4;
      return static_cast<int>(value);
   }

   Bytes bytes()
   {
      int const size = integer();
      unsigned char const* const begin = _next;
      _next += size;
      return Bytes(begin, _next);
   }

private:
   unsigned char const* _next;
};

void reflectByHand(JNIEnv* env, jobject, jbyteArray frame)
{
   void* const pinned = env->GetPrimitiveArrayCritical(frame, nullptr);
   Reader reader(pinned);
   reader.integer(); // magic and handle
   reader.integer();
   int const object = reader.integer();
   Values values;
   for (int count = reader.integer(); count > 0; --count) {
      int const attribute = reader.integer();
      values.emplace_hint(values.end(), attribute, reader.bytes());
   }
   Bytes const tag = reader.bytes();
   int const order = reader.integer();
   int const transportation = reader.integer();
   reader.integer(); // flags
   reader.integer();
   int const producer = reader.integer();
   env->ReleasePrimitiveArrayCritical(frame, pinned, 0);
   receiver->reflect(object, values, tag, order, transportation, producer);
}

void pinAndRelease(JNIEnv* env, jobject, jbyteArray frame)
{
   void* const pinned = env->GetPrimitiveArrayCritical(frame, nullptr);
   env->ReleasePrimitiveArrayCritical(frame, pinned, 0);
}

// What the interface asks for besides: the final time, which tells the length, and the time.
void grantByHand(JNIEnv* env, jobject, jbyteArray frame)
{
   static HLAfloat64TimeFactory factory;
   void* const pinned = env->GetPrimitiveArrayCritical(frame, nullptr);
   LogicalTimeFactory& made = factory;
   std::size_t const length = made.makeFinal()->encodedLength();
   std::auto_ptr<LogicalTime> const time =
         made.decodeLogicalTime(static_cast<char*>(pinned) + 8, length);
   env->ReleasePrimitiveArrayCritical(frame, pinned, 0);
   grantReceiver->timeAdvanceGrant(*time);
}

void registerByHand()
{
   JNINativeMethod const methods[] = {
         {const_cast<char*>("reflectAttributeValues"), const_cast<char*>("([B)V"),
               reinterpret_cast<void*>(reflectByHand)},
         {const_cast<char*>("pinAndRelease"), const_cast<char*>("([B)V"),
               reinterpret_cast<void*>(pinAndRelease)},
         {const_cast<char*>("timeAdvanceGrant"), const_cast<char*>("([B)V"),
               reinterpret_cast<void*>(grantByHand)}};
   if (environment()->RegisterNatives(byHandClass(), methods, 3) != 0) {
      throw std::runtime_error("Java refuses the natives");
   }
   receiver = new Receiver; // stays with the natives
   grantReceiver = &member().federate;
}

// ---- Cases ------------------------------------------------------------------------------------

// `loop` is the Java method that fires.
void addLoop(std::string const& name, char const* loop, std::string const& frame)
{
   jbyteArray const array = keepArray(frame);
   jmethodID const method = environment()->GetStaticMethodID(byHandClass(), loop, "([BI)V");
   benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      while (state.KeepRunningBatch(fired)) {
         env->CallStaticVoidMethod(byHandClass(), method, array, fired);
         if (env->ExceptionCheck()) {
            throw std::runtime_error("a callback failed");
         }
      }
      countBytes(state, frame);
   });
}

void addReflection(std::string const& name, int attributes)
{
   std::string const frame = makeReflection(member().handle, 1, attributes, 8);
   addLoop(name + "/subject", "fireReflectAttributeValues", frame);
   addLoop(name + "/floor", "fireReflectByHand", frame);
}

} // namespace

void addCallbacks()
{
   registerByHand();
   addReflection("reflect-1", 1);
   addReflection("reflect-10", 10);
   addReflection("reflect-100", 100);

   std::string const grant = makeGrant(member().handle, 1.5);
   addLoop("timeAdvanceGrant/subject", "fireTimeAdvanceGrant", grant);
   addLoop("timeAdvanceGrant/floor", "firePinAndRelease", grant);
   addLoop("timeAdvanceGrant/least", "fireGrantByHand", grant);
   std::string const saved = makeEmptyFrame(member().handle);
   addLoop("federationSaved/subject", "fireFederationSaved", saved);
   addLoop("federationSaved/floor", "firePinAndRelease", saved);
}
