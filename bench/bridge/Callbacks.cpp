// Callbacks fired from a Java loop, each beside a native that does by hand what can't be avoided.
#include "bench/bridge/Cases.h"

#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

using namespace rti1516e;

namespace {

int const fired = 1000; // callbacks a loop in Java

// ---- Frames
// --------------------------------------------------------------------------------------

class Frame {
public:
   explicit Frame(int handle)
   {
      add(0x63626160).add(handle);
   }

   Frame& add(int value)
   {
      unsigned const bits = static_cast<unsigned>(value);
      for (unsigned shift : {24, 16, 8, 0}) {
         _bytes.push_back(static_cast<char>(bits >> shift));
      }
      return *this;
   }

   Frame& add(std::string const& bytes)
   {
      add(static_cast<int>(bytes.size()));
      _bytes += bytes;
      return *this;
   }

   std::string close()
   {
      add(0x59585756);
      return _bytes;
   }

private:
   std::string _bytes;
};

std::string makeReflection(int attributes, std::size_t size)
{
   Frame frame(member().handle);
   frame.add(1).add(attributes);
   for (int i = 1; i <= attributes; ++i) {
      frame.add(i).add(std::string(size, 'v'));
   }
   int const receiveOrder = 0;
   int const reliable = 1;
   return frame.add("tag!").add(receiveOrder).add(reliable).add(1).add(0).add(2).close();
}

// ---- By hand
// -------------------------------------------------------------------------------------

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

Receiver* volatile receiver; // volatile, lest the compiler know whose reflect is called

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

// ---- Cases
// ---------------------------------------------------------------------------------------

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
   std::string const frame = makeReflection(attributes, 8);
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

   double const time = 1.5;
   std::int64_t bits;
   std::memcpy(&bits, &time, sizeof bits);
   std::string const grant = Frame(member().handle)
                                   .add(static_cast<int>(bits >> 32))
                                   .add(static_cast<int>(bits))
                                   .close();
   std::string const saved = Frame(member().handle).close();
   addLoop("timeAdvanceGrant/subject", "fireTimeAdvanceGrant", grant);
   addLoop("timeAdvanceGrant/floor", "firePinAndRelease", grant);
   addLoop("federationSaved/subject", "fireFederationSaved", saved);
   addLoop("federationSaved/floor", "firePinAndRelease", saved);
}
