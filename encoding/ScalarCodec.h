// The short way to scalars inside an array or a record. The composite has aligned the place and
// tested the room, the vector grows once for many, and the values of clones lie in a row: that is
// most of what a scalar's own operations take their time for.
#ifndef encoding_ScalarCodec_h
#define encoding_ScalarCodec_h

#include "encoding/Encoder.h"

#include <RTI/encoding/DataElement.h>
#include <typeinfo>

namespace rti1516e {

#define KIND_OF_SCALAR(Name, Value, Order, Bytes) KIND_OF_##Name,

enum ScalarKind {
   ENCODER_FOR_EACH_SCALAR(KIND_OF_SCALAR)
};

#undef KIND_OF_SCALAR

// Room for the implementation of a scalar, or for its object: any scalar's fit.
struct alignas(8) ScalarCell {
   char bytes[16];
};

// What is known of one of the seventeen scalar classes. A record is a scalar's implementation.
struct ScalarCodec {
   ScalarKind kind;
   unsigned int bytes; // size and boundary
   std::type_info const* type;

   ScalarCell* (*recordOf)(DataElement const& scalar);

   // A number of values, from records in a row to bytes in a row, and back.
   void (*storeAll)(ScalarCell const* records, std::size_t count, char* out);
   void (*loadAll)(ScalarCell* records, std::size_t count, char const* in);

   // Makes clones of a number of records, or of one record if the step between them is 0, and
   // notes where the objects are. The clones need no destruction: they hold nothing to be freed.
   void (*clone)(ScalarCell const* sources, std::size_t step, std::size_t count,
         ScalarCell* records, ScalarCell* objects, DataElement** elements);
};

// The codec of a library's own scalar. Null for every other class, also for a federate's subclass
// of a scalar, whose own operations count.
ScalarCodec const* scalarCodecOf(DataElement const& element);

// Number of bytes from index on, if they are enough for a value of that boundary.
inline unsigned long bytesLeft(unsigned long size, unsigned long index, unsigned long boundary)
{
   if (index >= size || size - index < boundary) {
      Encoder::fail(L"Index is out of bounds");
   }
   return size - index;
}

} // namespace rti1516e

#endif
