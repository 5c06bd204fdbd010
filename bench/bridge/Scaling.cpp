// What happens to the cost of an update as threads, objects and attributes grow in number.
#include "bench/bridge/Cases.h"
#include "bench/bridge/Floor.h"

#include <vector>

using namespace rti1516e;

namespace {

char const updateMethod[] = "updateAttributeValues_OIH_AHVM_BX";

// Every thread has an ambassador of its own, or all share one.
void addThreads()
{
   Update const update(makeValues(10, 64));
   std::string const bytes = recordBody(updateMethod, [&] { update(*member().ambassador); });
   JavaMethod const method = findService(updateMethod, "([B)V");

   auto const own = [=](benchmark::State& state) {
      std::auto_ptr<RTIambassador> const ambassador = makeAmbassador();
      for (auto _ : state) {
         update(*ambassador);
      }
   };
   auto const shared = [=](benchmark::State& state) {
      RTIambassador& ambassador = *member().ambassador;
      for (auto _ : state) {
         update(ambassador);
      }
   };
   auto const floor = [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         callByHand(env, method, bytes, invokeVoid);
      }
   };
   auto const add = [&](std::string const& name, int threads, auto const& subject) {
      for (auto* added : {benchmark::RegisterBenchmark((name + "/subject").c_str(), subject),
                 benchmark::RegisterBenchmark((name + "/floor").c_str(), floor)}) {
         added->Threads(threads)->UseRealTime();
      }
   };
   for (int threads : {1, 2, 4, 8}) {
      add("threads-" + std::to_string(threads), threads, own);
   }
   for (int threads : {4, 8}) {
      add("shared-" + std::to_string(threads), threads, shared);
   }
}

void addObjects(int attributes)
{
   int const objects = 10000;
   AttributeHandleValueMap const values = makeValues(attributes, 8);
   VariableLengthData const tag("tag!", 4);
   std::vector<ObjectInstanceHandle> handles;
   for (int i = 1; i <= objects; ++i) {
      handles.push_back(makeObject(i));
   }
   std::string const bytes = recordBody(updateMethod,
         [&] { member().ambassador->updateAttributeValues(handles[0], values, tag); });
   JavaMethod const method = findService(updateMethod, "([B)V");
   std::string const name = "objects-x" + std::to_string(attributes);

   benchmark::RegisterBenchmark((name + "/subject").c_str(), [=](benchmark::State& state) {
      RTIambassador& ambassador = *member().ambassador;
      std::size_t next = 0;
      for (auto _ : state) {
         ambassador.updateAttributeValues(handles[next], values, tag);
         next = next + 1 == handles.size() ? 0 : next + 1;
      }
      countBytes(state, bytes);
   });
   benchmark::RegisterBenchmark((name + "/floor").c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         callByHand(env, method, bytes, invokeVoid);
      }
      countBytes(state, bytes);
   });
   // The values come out of a map.
   benchmark::RegisterBenchmark((name + "/least").c_str(), [=](benchmark::State& state) {
      JNIEnv* const env = environment();
      for (auto _ : state) {
         for (auto const& entry : values) {
            benchmark::DoNotOptimize(entry.first.hash());
         }
         callByHand(env, method, bytes, invokeVoid);
      }
   });
}

} // namespace

void addScaling()
{
   addThreads();
   for (int attributes : {1, 10, 100, 1000}) {
      addObjects(attributes);
   }
}
