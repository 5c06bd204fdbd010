// The encoding helper of a sequence of fields of different classes.
#ifndef RTI_HLAfixedRecord_h
#define RTI_HLAfixedRecord_h

#include <cstddef>
#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAfixedRecordImplementation;

/// Fields in the order in which they were appended. Encoded: the fields, each at its own boundary.
/// Boundary: the largest among the fields, at least 1. hash() is 1.
///
/// The record owns clones, and elements of the caller's stand among them by appendElementPointer()
/// and setElementPointer(): decoding fills the caller's. A copy owns clones of all.
///
/// Decoding throws what the fields throw; those before the failing one are decoded then.
class RTI_EXPORT HLAfixedRecord : public DataElement {
public:
   /// A record of no fields.
   HLAfixedRecord();

   /// Clones of all fields of rhs.
   HLAfixedRecord(HLAfixedRecord const& rhs);
   virtual ~HLAfixedRecord();

   /// Takes clones of all fields of rhs.
   HLAfixedRecord& operator=(HLAfixedRecord const& rhs);

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

   /// True if the field is of the class of inData. The index is not checked.
   virtual bool hasElementSameTypeAs(std::size_t index, DataElement const& inData) const;

   /// Number of fields.
   virtual std::size_t size() const;

   /// Appends a clone of inData.
   virtual void appendElement(DataElement const& inData);

   /// Appends the caller's element. It must not be null.
   virtual void appendElementPointer(DataElement* inData);

   /// Puts a clone of inData at the index, which is not checked.
   /// @throws EncoderException "Non-matching type" if the field is of another class; the record is
   /// unchanged
   virtual void set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException));

   /// Puts the caller's element at the index, which is not checked; it must not be null.
   /// @throws EncoderException as set() does
   virtual void setElementPointer(std::size_t index, DataElement* inData)
         RTI_THROW((EncoderException));

   /// The field at the index, which is not checked.
   virtual DataElement const& get(std::size_t index) const;

private:
   HLAfixedRecordImplementation* _implementation;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
