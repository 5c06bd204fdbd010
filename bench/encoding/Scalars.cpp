// Each scalar by itself.
#include "bench/encoding/ByHand.h"

#include <RTI/encoding/BasicDataElements.h>

using namespace rti1516e;

namespace {

template <class Element, class Value, class Order>
void addScalar(std::string const& name)
{
   static Element element;
   static Value value;
   Bytes const bytes = measureElement(name, 1, element);
   measureEncode(name + "/floor", 1, [](Bytes& buffer) { addByHand<Order>(buffer, value); });
   measureDecode(name + "/floor", 1, bytes, [](Bytes const& buffer) {
      std::size_t index = 0;
      takeByHand<Order>(buffer, index, value);
      benchmark::DoNotOptimize(index);
   });
}

} // namespace

void addScalars()
{
#define ADD_SCALAR(Name, Value, Order, Bytes) addScalar<Name, Value, Encoder::Order>(#Name);
   ENCODER_FOR_EACH_SCALAR(ADD_SCALAR)
}
