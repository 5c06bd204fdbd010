// Values and elements as a federate makes them: ten values into a map that is kept, and records and
// arrays that are made, decoded into and destroyed. The floor does the same with bytes by shifts, a
// struct or a vector.
#include "api/HandleFriends.h"
#include "bench/encoding/Track.h"

#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/Typedefs.h>

using namespace rti1516e;

namespace {

template <class Make>
void measureMake(std::string const& name, std::size_t elements, Make make)
{
   benchmark::RegisterBenchmark(("make-" + name).c_str(), [=](benchmark::State& state) {
      for (auto _ : state) {
         make();
         benchmark::ClobberMemory();
      }
      countElements(state, elements);
   });
}

void addTenValues()
{
   static AttributeHandleValueMap kept;
   static double value = 0.5;
   measureMake("ten-values/subject", 10, [] {
      for (int i = 1; i <= 10; ++i) {
         kept[makeAttributeHandle(i)] = HLAfloat64BE(value).encode();
         value += 1;
      }
   });
   measureMake("ten-values/floor", 10, [] {
      for (int i = 1; i <= 10; ++i) {
         char bytes[8];
         Encoder::BigEndian::store(Encoder::bitsOf(value), bytes);
         kept[makeAttributeHandle(i)].setData(bytes, sizeof(bytes));
         value += 1;
      }
   });
}

void addRecordOfTen()
{
   static Bytes bytes;
   recordOf(Track()).encodeInto(bytes);
   measureMake("record-of-ten/subject", 10, [] {
      HLAfixedRecord record = recordOf(Track());
      benchmark::DoNotOptimize(record.decodeFrom(bytes, 0));
   });
   measureMake("record-of-ten/floor", 10, [] {
      Track track;
      std::size_t index = 0;
      load(track, takeRoom(bytes, index, 8, RECORD_BYTES));
      benchmark::DoNotOptimize(track);
   });
}

void addArray(std::size_t size)
{
   std::string const name = "array-of-" + std::to_string(size);
   HLAvariableArray array((HLAinteger32BE()));
   for (std::size_t i = 0; i < size; ++i) {
      array.addElement(HLAinteger32BE(static_cast<int>(i)));
   }
   Bytes bytes;
   array.encodeInto(bytes);
   measureMake(name + "/subject", size, [=] {
      HLAvariableArray made((HLAinteger32BE()));
      benchmark::DoNotOptimize(made.decodeFrom(bytes, 0));
   });
   measureMake(name + "/floor", size, [=] {
      std::vector<int> made;
      takeIntegers(bytes, made);
      benchmark::DoNotOptimize(made.data());
   });
}

} // namespace

void addMakes()
{
   addTenValues();
   addRecordOfTen();
   addArray(100);
   addArray(100000);
}
