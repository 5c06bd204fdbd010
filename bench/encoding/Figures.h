// How a case is measured: "<case>/subject" is the library's element, "<case>/floor" is hand-written
// code that writes the same bytes into the same kind of vector, or reads them from one,
// "<case>/table" goes by a table of the values' kinds and places that is made at run time, and
// "<case>/other" is MessagePack with the same values.
#ifndef bench_encoding_Figures_h
#define bench_encoding_Figures_h

#include <benchmark/benchmark.h>
#include <RTI/encoding/DataElement.h>
#include <string>
#include <vector>
#ifdef BENCH_MSGPACK
#include <msgpack.h>
#endif

void addScalars();
void addRecords();
void addArrays();
void addBlocks();
void addMakes();

typedef std::vector<rti1516e::Octet> Bytes;

inline void countElements(benchmark::State& state, std::size_t elements)
{
   state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(elements));
}

// Measures write(), which adds to a vector. That is emptied before each call and keeps its room.
template <class Write>
void measureEncode(std::string const& name, std::size_t elements, Write write)
{
   benchmark::RegisterBenchmark(("encode-" + name).c_str(), [=](benchmark::State& state) {
      Bytes buffer;
      for (auto _ : state) {
         buffer.clear();
         write(buffer);
         benchmark::DoNotOptimize(buffer.data());
         benchmark::ClobberMemory();
      }
      countElements(state, elements);
   });
}

// Measures read(), which reads from the vector.
template <class Read>
void measureDecode(std::string const& name, std::size_t elements, Bytes const& bytes, Read read)
{
   benchmark::RegisterBenchmark(("decode-" + name).c_str(), [=](benchmark::State& state) {
      for (auto _ : state) {
         read(bytes);
         benchmark::ClobberMemory();
      }
      countElements(state, elements);
   });
}

// Both ways of an element, which outlives the run. Returns its bytes for the floor.
inline Bytes measureElement(
      std::string const& name, std::size_t elements, rti1516e::DataElement& element)
{
   Bytes bytes;
   element.encodeInto(bytes);
   measureEncode(
         name + "/subject", elements, [&element](Bytes& buffer) { element.encodeInto(buffer); });
   measureDecode(name + "/subject", elements, bytes, [&element](Bytes const& buffer) {
      benchmark::DoNotOptimize(element.decodeFrom(buffer, 0));
   });
   return bytes;
}

#ifdef BENCH_MSGPACK
// Both ways of MessagePack: pack(packer) writes into a buffer that keeps its room, and
// unpack(object) takes the values out of what was read.
template <class Pack, class Unpack>
void measureOther(std::string const& name, std::size_t elements, Pack pack, Unpack unpack)
{
   benchmark::RegisterBenchmark(
         ("encode-" + name + "/other").c_str(), [=](benchmark::State& state) {
            msgpack_sbuffer buffer;
            msgpack_sbuffer_init(&buffer);
            msgpack_packer packer;
            msgpack_packer_init(&packer, &buffer, msgpack_sbuffer_write);
            for (auto _ : state) {
               msgpack_sbuffer_clear(&buffer);
               pack(packer);
               benchmark::DoNotOptimize(buffer.data);
               benchmark::ClobberMemory();
            }
            msgpack_sbuffer_destroy(&buffer);
            countElements(state, elements);
         });
   benchmark::RegisterBenchmark(
         ("decode-" + name + "/other").c_str(), [=](benchmark::State& state) {
            msgpack_sbuffer buffer;
            msgpack_sbuffer_init(&buffer);
            msgpack_packer packer;
            msgpack_packer_init(&packer, &buffer, msgpack_sbuffer_write);
            pack(packer);
            for (auto _ : state) {
               msgpack_unpacked result;
               msgpack_unpacked_init(&result);
               if (msgpack_unpack_next(&result, buffer.data, buffer.size, nullptr)
                     != MSGPACK_UNPACK_SUCCESS) {
                  state.SkipWithError("not unpacked");
               } else {
                  unpack(result.data);
               }
               msgpack_unpacked_destroy(&result);
               benchmark::ClobberMemory();
            }
            msgpack_sbuffer_destroy(&buffer);
            countElements(state, elements);
         });
}
#endif

#endif
