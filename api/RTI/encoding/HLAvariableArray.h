// The encoding helper of a sequence that carries its length.
#ifndef RTI_HLAvariableArray_h
#define RTI_HLAvariableArray_h

#include <cstddef>
#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAvariableArrayImplementation;

/// Elements in any number. Encoded: 4 bytes for the number of elements, as HLAinteger32BE, then the
/// elements, each at its own boundary. Boundary: the largest among the elements, at least 4; while
/// the array is empty, that of the prototype, at least 4. hash() is 1.
///
/// The prototype is an example element; decoding makes clones of it as the count demands. The array
/// owns clones, and elements of the caller's stand among them by addElementPointer() and
/// setElementPointer(): decoding keeps the elements that are there and fills them. A copy owns
/// clones of all. An array can't be assigned to.
///
/// Decoding throws EncoderException "HLAvariableArray cannot decode (indata too short)" where fewer
/// than 4 bytes are left, and where the count is negative or greater than the number of bytes
/// behind it; the array is unchanged then. It throws what the elements throw; the array then has
/// its new length, and the elements before the failing one are decoded.
class RTI_EXPORT HLAvariableArray : public DataElement {
public:
   /// No elements and no prototype. Such an array can take elements and be encoded; copying it,
   /// set(), setElementPointer(), hasPrototypeSameTypeAs(), decoding more elements than it has and,
   /// while it is empty, getOctetBoundary() and encoding need the prototype and must not be called.
   HLAvariableArray();

   /// No elements. The array keeps a clone of the prototype.
   explicit HLAvariableArray(DataElement const& prototype);

   /// Clones of the prototype and of all elements of rhs.
   HLAvariableArray(HLAvariableArray const& rhs);
   virtual ~HLAvariableArray();

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

   /// Number of elements.
   virtual std::size_t size() const;

   /// True if the prototype is of the class of inData.
   virtual bool hasPrototypeSameTypeAs(DataElement const& inData) const;

   /// Appends a clone of inData, of whatever class it is.
   virtual void addElement(DataElement const& inData) RTI_THROW((EncoderException));

   /// Appends the caller's element, of whatever class it is. It must not be null.
   virtual void addElementPointer(DataElement* inData) RTI_THROW((EncoderException));

   /// Puts a clone of inData at the index.
   /// @throws EncoderException "Array index out of bounds", or else "Element doesn't match
   /// prototype"; the array is unchanged
   virtual void set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException));

   /// Puts the caller's element at the index; it must not be null.
   /// @throws EncoderException as set() does
   virtual void setElementPointer(std::size_t index, DataElement* inData)
         RTI_THROW((EncoderException));

   /// The element at the index, which is not checked.
   virtual DataElement const& get(std::size_t index) const;

   /// The element at the index.
   /// @throws EncoderException "Array index out of bounds"
   DataElement const& operator[](std::size_t index) const RTI_THROW((EncoderException));

private:
   HLAvariableArray& operator=(HLAvariableArray const&);

   HLAvariableArrayImplementation* _implementation;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
