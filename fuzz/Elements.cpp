// Elements in elements that decode bytes of any kind: what fails is an EncoderException, and what
// they hold afterwards encodes to as many bytes as they tell, and so does a clone.
//
// Input: 1 byte that chooses the elements, 1 that chooses the index, then the bytes.
#include <cstdlib>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>
#include <string>

using namespace rti1516e;

namespace {

HLAfixedRecord recordOf(DataElement const& first, DataElement const& second)
{
   HLAfixedRecord record;
   record.appendElement(first);
   record.appendElement(second);
   return record;
}

HLAvariantRecord variantOf(DataElement const& first, DataElement const& second)
{
   HLAvariantRecord record((HLAoctet()));
   record.addVariant(HLAoctet('\0'), first);
   record.addVariant(HLAoctet('\1'), second);
   return record;
}

std::auto_ptr<DataElement> elementFor(unsigned char choice)
{
   HLAfixedRecord const scalars = recordOf(HLAoctet(), HLAfloat64LE());
   HLAfixedRecord const texts = recordOf(HLAASCIIstring(), HLAunicodeString());
   HLAvariantRecord const either = variantOf(scalars, HLAvariableArray(HLAboolean()));
   DataElement const* const outer[] = {&scalars, &texts, &either};
   DataElement const& chosen = *outer[choice % 3];
   switch (choice / 3 % 4) {
   case 0:
      return recordOf(chosen, HLAopaqueData()).clone();
   case 1:
      return HLAvariableArray(chosen).clone();
   case 2:
      return HLAfixedArray(chosen, 3).clone();
   default:
      return variantOf(HLAvariableArray(HLAvariableArray(chosen)), HLAinteger32BE()).clone();
   }
}

std::vector<Octet> encoded(DataElement const& element)
{
   std::vector<Octet> bytes;
   element.encodeInto(bytes);
   return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
   if (size < 2) {
      return 0;
   }
   std::auto_ptr<DataElement> const element = elementFor(data[0]);
   std::vector<Octet> const input(data + 2, data + size);
   try {
      if (element->decodeFrom(input, data[1] % 16) < data[1] % 16U) {
         std::abort();
      }
   } catch (EncoderException const&) {
   }
   std::vector<Octet> const bytes = encoded(*element);
   if (bytes.size() != element->getEncodedLength() || bytes != encoded(*element->clone())) {
      std::abort();
   }
   return 0;
}
