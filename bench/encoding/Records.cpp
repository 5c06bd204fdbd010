// A record of ten mixed fields, 64 bytes, and a record with an array of a hundred of them.
#include "bench/encoding/Track.h"

#include <cstddef>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAvariableArray.h>

using namespace rti1516e;

namespace {

std::size_t const RECORDS = 100;

// What is known at run time only: where a field lies in the struct and in the bytes, and its kind.
enum Kind {
#define KIND(Name, Value, Order, Bytes) KIND_OF_##Name,
   ENCODER_FOR_EACH_SCALAR(KIND)
};

struct Row {
   Kind kind;
   std::size_t inStruct;
   std::size_t inBytes;
};

std::vector<Row> const& rows()
{
   static std::vector<Row> rows;
   if (rows.empty()) {
#define ADD_ROW(Class, field, Order, offset)                                                       \
   rows.push_back({KIND_OF_##Class, offsetof(Track, field), offset});
      FOR_EACH_FIELD(ADD_ROW)
   }
   return rows;
}

void storeByTable(char const* track, char* out)
{
   for (Row const& row : rows()) {
      switch (row.kind) {
#define STORE_KIND(Name, Value, Order, Bytes)                                                      \
   case KIND_OF_##Name:                                                                            \
      Encoder::encode##Name(                                                                       \
            *reinterpret_cast<Value const*>(track + row.inStruct), out + row.inBytes);             \
      break;
         ENCODER_FOR_EACH_SCALAR(STORE_KIND)
      }
   }
}

void loadByTable(char* track, char const* in)
{
   for (Row const& row : rows()) {
      switch (row.kind) {
#define LOAD_KIND(Name, Value, Order, Bytes)                                                       \
   case KIND_OF_##Name:                                                                            \
      *reinterpret_cast<Value*>(track + row.inStruct) =                                            \
            Encoder::decode##Name(in + row.inBytes, Bytes);                                        \
      break;
         ENCODER_FOR_EACH_SCALAR(LOAD_KIND)
      }
   }
}

Track& sample()
{
   static Track track;
   return track;
}

void addRecordOfTen()
{
   std::string const name = "record-of-ten";
   static HLAfixedRecord record = recordOf(sample());
   Bytes const bytes = measureElement(name, 10, record);
   measureEncode(name + "/floor", 10,
         [](Bytes& buffer) { store(sample(), addRoom(buffer, 8, RECORD_BYTES)); });
   measureDecode(name + "/floor", 10, bytes, [](Bytes const& buffer) {
      std::size_t index = 0;
      load(sample(), takeRoom(buffer, index, 8, RECORD_BYTES));
   });
   measureEncode(name + "/table", 10, [](Bytes& buffer) {
      storeByTable(reinterpret_cast<char const*>(&sample()), addRoom(buffer, 8, RECORD_BYTES));
   });
   measureDecode(name + "/table", 10, bytes, [](Bytes const& buffer) {
      std::size_t index = 0;
      loadByTable(reinterpret_cast<char*>(&sample()), takeRoom(buffer, index, 8, RECORD_BYTES));
   });

   // The same against a hand that takes one field after the other, each at its own boundary.
   std::string const byField = "record-of-ten-by-field";
   measureElement(byField, 10, record);
   measureEncode(byField + "/floor", 10, [](Bytes& buffer) {
#define ADD(Class, field, Order, offset) addByHand<Encoder::Order>(buffer, sample().field);
      FOR_EACH_FIELD(ADD)
   });
   measureDecode(byField + "/floor", 10, bytes, [](Bytes const& buffer) {
      std::size_t index = 0;
#define TAKE(Class, field, Order, offset) takeByHand<Encoder::Order>(buffer, index, sample().field);
      FOR_EACH_FIELD(TAKE)
   });
}

void addArrayOfRecords()
{
   std::string const name = "record-with-100-records";
   static HLAfixedRecord record;
   HLAvariableArray array((recordOf(Track())));
   for (std::size_t i = 0; i < RECORDS; ++i) {
      array.addElement(recordOf(Track()));
   }
   record.appendElement(array);
   static std::vector<Track> tracks(RECORDS);
   Bytes const bytes = measureElement(name, 10 * RECORDS, record);
   measureEncode(name + "/floor", 10 * RECORDS, [](Bytes& buffer) {
      char* const out = addRoom(buffer, 8, 8 + RECORDS * RECORD_BYTES);
      Encoder::encodeHLAinteger32BE(static_cast<int>(RECORDS), out);
      for (std::size_t i = 0; i < RECORDS; ++i) {
         store(tracks[i], out + 8 + i * RECORD_BYTES);
      }
   });
   measureDecode(name + "/floor", 10 * RECORDS, bytes, [](Bytes const& buffer) {
      std::size_t index = 0;
      int count;
      takeByHand<Encoder::BigEndian>(buffer, index, count);
      tracks.resize(static_cast<std::size_t>(count));
      for (Track& track : tracks) {
         load(track, takeRoom(buffer, index, 8, RECORD_BYTES));
      }
   });
}

#ifdef BENCH_MSGPACK
void pack(msgpack_packer& packer, Track const& track)
{
   msgpack_pack_array(&packer, 10);
   msgpack_pack_int32(&packer, track.count);
   msgpack_pack_double(&packer, track.longitude);
   msgpack_pack_int16(&packer, track.heading);
   msgpack_pack_int8(&packer, track.kind);
   track.visible ? msgpack_pack_true(&packer) : msgpack_pack_false(&packer);
   msgpack_pack_float(&packer, track.speed);
   msgpack_pack_int64(&packer, track.time);
   msgpack_pack_int32(&packer, track.mark);
   msgpack_pack_double(&packer, track.latitude);
   msgpack_pack_double(&packer, track.altitude);
}

void unpack(msgpack_object const& object, Track& track)
{
   msgpack_object const* const field = object.via.array.ptr;
   track.count = static_cast<int>(field[0].via.i64);
   track.longitude = field[1].via.f64;
   track.heading = static_cast<short>(field[2].via.i64);
   track.kind = static_cast<char>(field[3].via.i64);
   track.visible = field[4].via.boolean;
   track.speed = static_cast<float>(field[5].via.f64);
   track.time = field[6].via.i64;
   track.mark = static_cast<wchar_t>(field[7].via.i64);
   track.latitude = field[8].via.f64;
   track.altitude = field[9].via.f64;
}

void addOthers()
{
   for (char const* const name : {"record-of-ten", "record-of-ten-by-field"}) {
      measureOther(
            name, 10, [](msgpack_packer& packer) { pack(packer, sample()); },
            [](msgpack_object const& object) { unpack(object, sample()); });
   }
   static std::vector<Track> tracks(RECORDS);
   measureOther(
         "record-with-100-records", 10 * RECORDS,
         [](msgpack_packer& packer) {
            msgpack_pack_array(&packer, RECORDS);
            for (Track const& track : tracks) {
               pack(packer, track);
            }
         },
         [](msgpack_object const& object) {
            tracks.resize(object.via.array.size);
            for (std::size_t i = 0; i < tracks.size(); ++i) {
               unpack(object.via.array.ptr[i], tracks[i]);
            }
         });
}
#endif

} // namespace

void store(Track const& track, char* out)
{
#define STORE(Class, field, Order, offset)                                                         \
   Encoder::Order::store(Encoder::bitsOf(track.field), out + offset);
   FOR_EACH_FIELD(STORE)
}

void load(Track& track, char const* in)
{
#define LOAD(Class, field, Order, offset)                                                          \
   track.field = Encoder::decode##Class(in + offset, sizeof(track.field));
   FOR_EACH_FIELD(LOAD)
}

HLAfixedRecord recordOf(Track const& track)
{
   HLAfixedRecord record;
#define APPEND(Class, field, Order, offset) record.appendElement(Class(track.field));
   FOR_EACH_FIELD(APPEND)
   return record;
}

void addRecords()
{
   addRecordOfTen();
   addArrayOfRecords();
#ifdef BENCH_MSGPACK
   addOthers();
#endif
}
