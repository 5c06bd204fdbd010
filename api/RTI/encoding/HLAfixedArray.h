// The encoding helper of a sequence whose length is agreed beforehand.
#ifndef RTI_HLAfixedArray_h
#define RTI_HLAfixedArray_h

#include <cstddef>
#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAfixedArrayImplementation;

/// Elements of one class, their number fixed at construction. Encoded: the elements, each at its
/// own boundary; no count. Boundary: the largest among the elements, at least 1. hash() is 1.
///
/// The array owns clones, and elements of the caller's take their place by setElementPointer():
/// decoding then fills the caller's. A copy owns clones of all.
///
/// Decoding throws what the elements throw; those before the failing one are decoded then.
class RTI_EXPORT HLAfixedArray : public DataElement {
public:
   /// An array of no elements.
   HLAfixedArray();

   /// That many clones of the prototype, which is not kept.
   HLAfixedArray(DataElement const& prototype, std::size_t length);

   /// Clones of all elements of rhs.
   HLAfixedArray(HLAfixedArray const& rhs);
   virtual ~HLAfixedArray();

   /// Takes clones of all elements of rhs, also in number.
   HLAfixedArray& operator=(HLAfixedArray const& rhs);

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

   /// True if the first element is of the class of inData. There must be one.
   virtual bool hasPrototypeSameTypeAs(DataElement const& inData) const;

   /// Number of elements.
   virtual std::size_t size() const;

   /// Puts a clone of inData at the index.
   /// @throws EncoderException "Array index out of bounds", or else "Element doesn't match
   /// prototype"; the array is unchanged
   virtual void set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException));

   /// Puts the caller's element at the index; it must not be null.
   /// @throws EncoderException as set() does
   virtual void setElementPointer(std::size_t index, DataElement* inData)
         RTI_THROW((EncoderException));

   /// The element at the index.
   /// @throws EncoderException "Array index out of bounds"
   virtual DataElement const& get(std::size_t index) const RTI_THROW((EncoderException));

   /// As get().
   DataElement const& operator[](std::size_t index) const RTI_THROW((EncoderException));

private:
   HLAfixedArrayImplementation* _implementation;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
