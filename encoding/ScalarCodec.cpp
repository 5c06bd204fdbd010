// The codecs by class.
#include "encoding/ScalarCodec.h"

#include "encoding/Encoder.h"

namespace rti1516e {

// Each is defined in the unit of its class.
#define DECLARE_CODEC(Name, Value, Order, Bytes) extern ScalarCodec const Name##Codec;
ENCODER_FOR_EACH_SCALAR(DECLARE_CODEC)

#define CODEC_ADDRESS(Name, Value, Order, Bytes) &Name##Codec,

// Compares addresses only: a class whose type information stands twice in the process is taken for
// a foreign one, which is slower and no less right.
ScalarCodec const* scalarCodecOf(DataElement const& element)
{
   static ScalarCodec const* const codecs[] = {ENCODER_FOR_EACH_SCALAR(CODEC_ADDRESS)};

   std::type_info const* const type = &typeid(element);
   for (ScalarCodec const* const codec : codecs) {
      if (codec->type == type) {
         return codec;
      }
   }
   return nullptr;
}

} // namespace rti1516e
