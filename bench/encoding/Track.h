// A struct of ten mixed fields, the record of its elements, and its 64 bytes by hand.
#ifndef bench_encoding_Track_h
#define bench_encoding_Track_h

#include "bench/encoding/ByHand.h"

#include <RTI/encoding/HLAfixedRecord.h>

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
void store(Track const& track, char* out);
void load(Track& track, char const* in);

rti1516e::HLAfixedRecord recordOf(Track const& track);

#endif
