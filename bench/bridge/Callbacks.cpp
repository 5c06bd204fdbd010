// Callbacks fired from a Java loop, each beside a native that does by hand what can't be avoided.
#include "bench/bridge/Cases.h"
#include "bench/bridge/Frames.h"

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

void registerByHand()
{
   JNINativeMethod const methods[] = {
         {const_cast<char*>("reflectAttributeValues"), const_cast<char*>("([B)V"),
               reinterpret_cast<void*>(reflectByHand)},
         {const_cast<char*>("pinAndRelease"), const_cast<char*>("([B)V"),
               reinterpret_cast<void*>(pinAndRelease)}};
   if (environment()->RegisterNatives(byHandClass(), methods, 2) != 0) {
      throw std::runtime_error("Java refuses the natives");
   }
   receiver = new Receiver; // stays with the natives
}

// ---- Cases ------------------------------------------------------------------------------------

// `loop` is the Java method that fires, by `signature` with what `argument` is.
void addLoop(std::string const& name, char const* loop, char const* signature, jobject argument,
      std::string const& frame)
{
   jmethodID const method = environment()->GetStaticMethodID(byHandClass(), loop, signature);
   benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      while (state.KeepRunningBatch(fired)) {
         env->CallStaticVoidMethod(byHandClass(), method, argument, fired);
         if (env->ExceptionCheck()) {
            throw std::runtime_error("a callback failed");
         }
      }
      countBytes(state, frame);
   });
}

void addLoop(std::string const& name, char const* loop, std::string const& frame)
{
   addLoop(name, loop, "([BI)V", keepArray(frame), frame);
}

void addReflection(int attributes)
{
   std::string const name = "reflect-" + std::to_string(attributes);
   std::string const frame = makeReflection(member().handle, 1, attributes, 8);
   addLoop(name + "/subject", "fireReflectAttributeValues", frame);
   addLoop(name + "/floor", "fireReflectByHand", frame);
}

// No two reflections in turn have an attribute in common.
void addChangingReflection(int attributes)
{
   JNIEnv* const env = environment();
   int const different = 4;
   jobjectArray const frames = static_cast<jobjectArray>(
         env->NewGlobalRef(env->NewObjectArray(different, env->FindClass("[B"), nullptr)));
   std::string frame;
   for (int i = 0; i != different; ++i) {
      frame = makeReflection(member().handle, 1 + i * attributes, attributes, 8);
      env->SetObjectArrayElement(frames, i, keepArray(frame));
   }
   std::string const name = "reflect-" + std::to_string(attributes) + "-changing";
   char const signature[] = "([[BI)V";
   addLoop(name + "/subject", "fireReflectAttributeValuesInTurn", signature, frames, frame);
   addLoop(name + "/floor", "fireReflectByHandInTurn", signature, frames, frame);
}

} // namespace

void addCallbacks()
{
   registerByHand();
   for (int attributes : {1, 10, 100, 1000}) {
      addReflection(attributes);
   }
   addChangingReflection(10);

   std::string const grant = makeGrant(member().handle, 1.5);
   addLoop("timeAdvanceGrant/subject", "fireTimeAdvanceGrant", grant);
   addLoop("timeAdvanceGrant/floor", "firePinAndRelease", grant);
   std::string const saved = makeEmptyFrame(member().handle);
   addLoop("federationSaved/subject", "fireFederationSaved", saved);
   addLoop("federationSaved/floor", "firePinAndRelease", saved);
}
