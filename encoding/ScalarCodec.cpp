// The codecs by class.
#include "encoding/ScalarCodec.h"

#include "encoding/Encoder.h"

#include <RTI/encoding/BasicDataElements.h>
#include <typeindex>
#include <unordered_map>

namespace rti1516e {

// Each is defined in the unit of its class.
#define DECLARE_CODEC(Name, Value, Order, Bytes) extern ScalarCodec const Name##Codec;
ENCODER_FOR_EACH_SCALAR(DECLARE_CODEC)

#define CODEC_BY_CLASS(Name, Value, Order, Bytes) {typeid(Name), &Name##Codec},

ScalarCodec const* scalarCodecOf(DataElement const& element)
{
   typedef std::unordered_map<std::type_index, ScalarCodec const*> Codecs;
   // Never deleted: static objects of a federate may use it while the process ends.
   static Codecs const& codecs = *new Codecs{ENCODER_FOR_EACH_SCALAR(CODEC_BY_CLASS)};

   Codecs::const_iterator const found = codecs.find(typeid(element));
   return found == codecs.end() ? nullptr : found->second;
}

} // namespace rti1516e
