// HLAvariantRecord: a discriminant and the variant that it selects.
#include <RTI/encoding/HLAvariantRecord.h>

#include "encoding/Composite.h"
#include "encoding/Encoder.h"

#include <algorithm>
#include <map>

namespace rti1516e {

class HLAvariantRecordImplementation {
public:
   HLAvariantRecordImplementation() {}

   explicit HLAvariantRecordImplementation(DataElement const& prototype)
         : discriminant(prototype.clone())
   {
   }

   HLAvariantRecordImplementation(HLAvariantRecordImplementation const& rhs)
         : HLAvariantRecordImplementation()
   {
      if (rhs.discriminant != nullptr) {
         setDiscriminant(*rhs.discriminant);
      }
      for (Variants::value_type const& variant : rhs.variants) {
         ElementSlot& slot = variants[variant.first]; // before there is a clone to lose
         slot = cloneOf(*variant.second.element);
      }
   }

   HLAvariantRecordImplementation& operator=(HLAvariantRecordImplementation const&) = delete;

   ~HLAvariantRecordImplementation()
   {
      for (Variants::value_type const& variant : variants) {
         release(variant.second);
      }
   }

   void setDiscriminant(DataElement const& element)
   {
      discriminant.reset(element.clone().release());
   }

   // The variant of the current discriminant, or null.
   DataElement* current() const
   {
      Variants::const_iterator const found = variants.find(discriminant->hash());
      return found == variants.end() ? nullptr : found->second.element;
   }

   // The largest boundary among all variants, 0 if there are none.
   unsigned int getVariantOctetBoundary() const
   {
      unsigned int largest = 0;
      for (Variants::value_type const& variant : variants) {
         largest = std::max(largest, variant.second.element->getOctetBoundary());
      }
      return largest;
   }

   // Does not delete what was there: the federate may hold references to it.
   void addVariant(DataElement const& key, ElementSlot slot)
   {
      variants[key.hash()] = slot;
   }

   // If the types differ, a slot that is owned stays with whoever catches the exception, that is
   // with no one.
   void setVariant(DataElement const& key, ElementSlot slot)
   {
      Variants::iterator const found = variants.find(key.hash());
      if (found == variants.end()) {
         addVariant(key, slot);
         return;
      }
      checkType(found->second.element->isSameTypeAs(*slot.element));
      std::swap(found->second, slot);
      release(slot);
   }

   typedef std::map<Integer64, ElementSlot> Variants;

   Variants variants; // by the hash of the discriminant
   std::unique_ptr<DataElement> discriminant;
};

HLAvariantRecord::HLAvariantRecord(DataElement const& discriminantPrototype)
      : _implementation(new HLAvariantRecordImplementation(discriminantPrototype))
{
}

RTI_DEFINE_COPYING(HLAvariantRecord)
RTI_DEFINE_ASSIGNMENT(HLAvariantRecord)
RTI_DEFINE_COMPOSITE_MEMBERS(HLAvariantRecord)

void HLAvariantRecord::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))
{
   padTo(*this, buffer);
   _implementation->discriminant->encodeInto(buffer);
   if (_implementation->variants.empty()) {
      return;
   }
   padTo(_implementation->getVariantOctetBoundary(), buffer);
   if (DataElement const* const variant = _implementation->current()) {
      variant->encodeInto(buffer);
   }
}

std::size_t HLAvariantRecord::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
      RTI_THROW((EncoderException))
{
   DataElement& discriminant = *_implementation->discriminant;
   index += Encoder::paddingSizeInBytes(index, discriminant.getOctetBoundary());
   index = discriminant.decodeFrom(buffer, index);
   if (DataElement* const variant = _implementation->current()) {
      index += Encoder::paddingSizeInBytes(index, _implementation->getVariantOctetBoundary());
      index = variant->decodeFrom(buffer, index);
   }
   return index;
}

std::size_t HLAvariantRecord::getEncodedLength() const RTI_THROW((EncoderException))
{
   std::size_t length = _implementation->discriminant->getEncodedLength();
   if (_implementation->variants.empty()) {
      return length;
   }
   length += Encoder::paddingSizeInBytes(length, _implementation->getVariantOctetBoundary());
   DataElement const* const variant = _implementation->current();
   return variant == nullptr ? length : length + variant->getEncodedLength();
}

unsigned int HLAvariantRecord::getOctetBoundary() const
{
   return std::max(_implementation->discriminant->getOctetBoundary(),
         _implementation->getVariantOctetBoundary());
}

bool HLAvariantRecord::isSameTypeAs(DataElement const& inData) const
{
   return DataElement::isSameTypeAs(inData);
}

bool HLAvariantRecord::isSameTypeAs(DataElement const&, DataElement const& inData) const
      RTI_THROW((EncoderException))
{
   DataElement const* const variant = _implementation->current();
   return variant != nullptr && variant->isSameTypeAs(inData);
}

bool HLAvariantRecord::hasMatchingDiscriminantTypeAs(DataElement const& discriminant) const
{
   return _implementation->discriminant->isSameTypeAs(discriminant);
}

void HLAvariantRecord::addVariant(DataElement const& discriminant, DataElement const& value)
      RTI_THROW((EncoderException))
{
   _implementation->addVariant(discriminant, cloneOf(value));
}

void HLAvariantRecord::addVariantPointer(DataElement const& discriminant, DataElement* valuePtr)
      RTI_THROW((EncoderException))
{
   _implementation->addVariant(discriminant, {valuePtr, false});
}

void HLAvariantRecord::setDiscriminant(DataElement const& discriminant)
      RTI_THROW((EncoderException))
{
   _implementation->setDiscriminant(discriminant);
}

void HLAvariantRecord::setVariant(DataElement const& discriminant, DataElement const& value)
      RTI_THROW((EncoderException))
{
   _implementation->setVariant(discriminant, cloneOf(value));
}

void HLAvariantRecord::setVariantPointer(DataElement const& discriminant, DataElement* valuePtr)
      RTI_THROW((EncoderException))
{
   _implementation->setVariant(discriminant, {valuePtr, false});
}

DataElement const& HLAvariantRecord::getDiscriminant() const
{
   return *_implementation->discriminant;
}

DataElement const& HLAvariantRecord::getVariant() const RTI_THROW((EncoderException))
{
   DataElement const* const variant = _implementation->current();
   if (variant == nullptr) {
      Encoder::fail(L"Discriminant is not mapped to a value");
   }
   return *variant;
}

} // namespace rti1516e
