// Arrays of HLAinteger32BE from a hundred elements to a million: the items per second tell what an
// element costs at each size.
#include "bench/encoding/ByHand.h"

#include <memory>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAvariableArray.h>

using namespace rti1516e;

namespace {

typedef std::vector<int> Integers;

void addArray(std::size_t size)
{
   std::string const name = "array-of-" + std::to_string(size);
   std::shared_ptr<HLAvariableArray> const array =
         std::make_shared<HLAvariableArray>(HLAinteger32BE());
   std::shared_ptr<Integers> const integers = std::make_shared<Integers>();
   for (std::size_t i = 0; i < size; ++i) {
      integers->push_back(static_cast<int>(i * 2654435761U >> 1));
      array->addElement(HLAinteger32BE(integers->back()));
   }
   Bytes bytes;
   array->encodeInto(bytes);
   measureEncode(name + "/subject", size, [=](Bytes& buffer) { array->encodeInto(buffer); });
   measureDecode(name + "/subject", size, bytes,
         [=](Bytes const& buffer) { benchmark::DoNotOptimize(array->decodeFrom(buffer, 0)); });
   measureEncode(name + "/floor", size, [=](Bytes& buffer) {
      char* out = addRoom(buffer, 4, 4 + 4 * integers->size());
      Encoder::encodeHLAinteger32BE(static_cast<int>(integers->size()), out);
      for (int const integer : *integers) {
         Encoder::encodeHLAinteger32BE(integer, out += 4);
      }
   });
   measureDecode(name + "/floor", size, bytes,
         [=](Bytes const& buffer) { takeIntegers(buffer, *integers); });
#ifdef BENCH_MSGPACK
   measureOther(
         name, size,
         [=](msgpack_packer& packer) {
            msgpack_pack_array(&packer, integers->size());
            for (int const integer : *integers) {
               msgpack_pack_int32(&packer, integer);
            }
         },
         [=](msgpack_object const& object) {
            integers->resize(object.via.array.size);
            for (std::size_t i = 0; i < integers->size(); ++i) {
               (*integers)[i] = static_cast<int>(object.via.array.ptr[i].via.i64);
            }
         });
#endif
}

} // namespace

void addArrays()
{
   for (std::size_t size = 100; size <= 1000000; size *= 10) {
      addArray(size);
   }
}
