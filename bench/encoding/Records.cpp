// A record of ten mixed fields, 64 bytes, and a record with an array of a hundred of them.
#include "bench/encoding/ByHand.h"

#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAvariableArray.h>

using namespace rti1516e;

namespace {

// X(element class, field, order, offset)
#define FOR_EACH_FIELD(X)                                                                          \
   X(HLAinteger32BE, count, BigEndian, 0)                                                          \
   X(HLAfloat64BE, longitude, BigEndian, 8)                                                        \
   X(HLAinteger16BE, heading, BigEndian, 16)                                                       \
   X(HLAoctet, kind, BigEndian, 18)                                                                \
   X(HLAboolean, visible, BigEndian, 20)                                                           \
   X(HLAfloat32BE, speed, BigEndian, 24)                                                           \
   X(HLAinteger64BE, time, BigEndian, 32)                                                          \
   X(HLAunicodeChar, mark, BigEndian, 40)                                                          \
   X(HLAfloat64BE, latitude, BigEndian, 48)                                                        \
   X(HLAfloat64LE, altitude, LittleEndian, 56)

std::size_t const RECORD_BYTES = 64;
std::size_t const RECORDS = 100;

struct Track {
   int count = 1;
   double longitude = 2.5;
   short heading = 3;
   char kind = 4;
   bool visible = true;
   float speed = 6.5F;
   long long time = 7;
   wchar_t mark = L'8';
   double latitude = 9.5;
   double altitude = 10.5;
};

// The layout is known beforehand: room for all the fields at once, each at a constant offset.
void store(Track const& track, char* out)
{
#define STORE(Class, field, Order, offset)                                                         \
   Encoder::Order::store(Encoder::bitsOf(track.field), out + offset);
   FOR_EACH_FIELD(STORE)
}

void load(Track& track, char const* in)
{
#define LOAD(Class, field, Order, offset)                                                          \
   Encoder::ScalarCoding<decltype(track.field), Encoder::Order>::decode(                           \
         in + offset, 8, track.field);
   FOR_EACH_FIELD(LOAD)
}

HLAfixedRecord recordOf(Track const& track)
{
   HLAfixedRecord record;
#define APPEND(Class, field, Order, offset) record.appendElement(Class(track.field));
   FOR_EACH_FIELD(APPEND)
   return record;
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

void addRecords()
{
   addRecordOfTen();
   addArrayOfRecords();
#ifdef BENCH_MSGPACK
   addOthers();
#endif
}
