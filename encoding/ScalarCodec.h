// The short way to a scalar inside an array or a record. The composite has aligned the place and
// tested the room, and the vector grows once for many: that is most of what a scalar's own
// operations take their time for.
#ifndef encoding_ScalarCodec_h
#define encoding_ScalarCodec_h

#include <RTI/encoding/DataElement.h>
#include <typeinfo>

namespace rti1516e {

struct ScalarCodec {
   unsigned int bytes; // size and boundary
   std::type_info const* type;
   void (*store)(DataElement const& scalar, char* out);
   void (*load)(DataElement& scalar, char const* in);
};

// The codec of one of the seventeen scalars. Null for every other class, also for a federate's
// subclass of a scalar, whose own operations count.
ScalarCodec const* scalarCodecOf(DataElement const& element);

// Number of bytes from index on, if they are enough for a value of that boundary.
inline unsigned long bytesLeft(unsigned long size, unsigned long index, unsigned long boundary)
{
   if (index >= size || size - index < boundary) {
      throw EncoderException(L"Index is out of bounds");
   }
   return size - index;
}

} // namespace rti1516e

#endif
