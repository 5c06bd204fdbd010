// The encoding helper of a value that is one of several alternatives.
#ifndef RTI_HLAvariantRecord_h
#define RTI_HLAvariantRecord_h

#include <cstddef>
#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAvariantRecordImplementation;

/// A discriminant, and a variant for some of its values, of which the one for the current value is
/// part of the record. Boundary: the greater of the discriminant's and the largest among all
/// variants. hash() is 1.
///
/// Encoded: the discriminant; then, if there are any variants, zeros up to a multiple of the
/// largest boundary among all of them; then the variant of the current discriminant. A discriminant
/// without a variant is no failure, neither encoding nor decoding: the record ends behind the zeros
/// when encoded, and behind the discriminant when decoded.
///
/// Discriminants are the same if their hash() is. Their classes play no part: an HLAinteger32BE and
/// an HLAoctet of 5 select one variant, and so do an HLAfloat64BE of 5.25 and one of 5.5; arrays,
/// records and HLAopaqueData all select one.
///
/// The record owns clones, and variants of the caller's stand among them by addVariantPointer() and
/// setVariantPointer(): decoding fills the caller's. A copy owns clones of all.
///
/// Decoding throws what the discriminant or the variant throws; a discriminant that was decoded
/// before stays.
class RTI_EXPORT HLAvariantRecord : public DataElement {
public:
   /// The current discriminant is a clone of the prototype. No variants.
   explicit HLAvariantRecord(DataElement const& discriminantPrototype);

   /// Clones of the discriminant and of all variants of rhs.
   HLAvariantRecord(HLAvariantRecord const& rhs);
   virtual ~HLAvariantRecord();

   /// Takes clones of the discriminant and of all variants of rhs.
   HLAvariantRecord& operator=(HLAvariantRecord const& rhs);

   virtual std::auto_ptr<DataElement> clone() const;
   virtual VariableLengthData encode() const RTI_THROW((EncoderException));
   virtual void encode(VariableLengthData& inData) const RTI_THROW((EncoderException));
   virtual void encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException));
   virtual void decode(VariableLengthData const& inData) RTI_THROW((EncoderException));
   virtual std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
         RTI_THROW((EncoderException));
   virtual std::size_t getEncodedLength() const RTI_THROW((EncoderException));
   virtual unsigned int getOctetBoundary() const;
   virtual bool isSameTypeAs(DataElement const& inData) const;

   /// True if the variant of the record's current discriminant is of the class of inData; false if
   /// there is none. The first argument plays no part.
   virtual bool isSameTypeAs(DataElement const& discriminant, DataElement const& inData) const
         RTI_THROW((EncoderException));

   /// True if the current discriminant is of the class of the argument.
   virtual bool hasMatchingDiscriminantTypeAs(DataElement const& discriminant) const;

   /// Makes a clone of value the variant for the discriminant, of whatever classes both are. A
   /// variant that was there before is never deleted, so that references to it stay good.
   virtual void addVariant(DataElement const& discriminant, DataElement const& value)
         RTI_THROW((EncoderException));

   /// Makes the caller's element the variant for the discriminant, as addVariant() does.
   virtual void addVariantPointer(DataElement const& discriminant, DataElement* valuePtr)
         RTI_THROW((EncoderException));

   /// Makes a clone of the argument the current discriminant, of whatever class and value it is.
   virtual void setDiscriminant(DataElement const& discriminant) RTI_THROW((EncoderException));

   /// Makes a clone of value the variant for the discriminant, in place of one of the same class or
   /// of none. The current discriminant stays what it is.
   /// @throws EncoderException "Non-matching type" if there is a variant of another class; the
   /// record is unchanged
   virtual void setVariant(DataElement const& discriminant, DataElement const& value)
         RTI_THROW((EncoderException));

   /// Makes the caller's element the variant for the discriminant, as setVariant() does. It must
   /// not be null.
   /// @throws EncoderException as setVariant() does
   virtual void setVariantPointer(DataElement const& discriminant, DataElement* valuePtr)
         RTI_THROW((EncoderException));

   /// The current discriminant.
   virtual DataElement const& getDiscriminant() const;

   /// The variant of the current discriminant.
   /// @throws EncoderException "Discriminant is not mapped to a value" if there is none
   virtual DataElement const& getVariant() const RTI_THROW((EncoderException));

private:
   HLAvariantRecordImplementation* _implementation;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
