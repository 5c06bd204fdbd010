// The encoding helper of uninterpreted bytes.
#ifndef RTI_HLAopaqueData_h
#define RTI_HLAopaqueData_h

#include <cstddef>
#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class HLAopaqueDataImplementation;

/// Bytes of any number. Encoded: 4 bytes for the number n of data bytes, as HLAinteger32BE, then n.
/// Boundary: 4. hash() is 1, whatever the element holds.
///
/// The data stand in a buffer that the element owns, or in external memory of the caller's, which
/// the element reads, decodes into and never frees. A copy always owns its data.
///
/// Decoding throws EncoderException "HLAopaqueData cannot decode (indata too short)" for fewer than
/// 4 bytes, "Array index out of bounds" if the number of data bytes is negative or more than there
/// are, and "Insufficient external storage" if they do not fit the caller's buffer. The element is
/// unchanged then.
class RTI_EXPORT HLAopaqueData : public DataElement {
public:
   /// Owns no bytes; get() is null.
   HLAopaqueData();

   /// Owns a copy of dataSize bytes.
   HLAopaqueData(Octet const* inData, std::size_t dataSize);

   /// Uses the caller's memory at *inData, bufferSize bytes of which dataSize are in use. The
   /// pointer is read here and never again. The sizes are not checked, not even against each other.
   HLAopaqueData(Octet** inData, std::size_t bufferSize, std::size_t dataSize)
         RTI_THROW((EncoderException));

   /// Owns a copy of the data.
   HLAopaqueData(HLAopaqueData const& rhs);
   virtual ~HLAopaqueData();

   /// Frees what the element owns, then owns a copy. An element must not be assigned to itself: its
   /// bytes would be freed before they are copied.
   HLAopaqueData& operator=(HLAopaqueData const& rhs);

   virtual std::auto_ptr<DataElement> clone() const;
   virtual VariableLengthData encode() const RTI_THROW((EncoderException));
   virtual void encode(VariableLengthData& inData) const RTI_THROW((EncoderException));
   virtual void encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException));
   virtual void decode(VariableLengthData const& inData) RTI_THROW((EncoderException));
   virtual std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
         RTI_THROW((EncoderException));
   virtual std::size_t getEncodedLength() const RTI_THROW((EncoderException));
   virtual unsigned int getOctetBoundary() const;

   /// Room in the buffer, in bytes.
   virtual std::size_t bufferLength() const;

   /// Bytes in use.
   virtual std::size_t dataLength() const;

   /// Frees what the element owns, then uses the caller's memory as the constructor of the same
   /// arguments does.
   virtual void setDataPointer(Octet** inData, std::size_t bufferSize, std::size_t dataSize)
         RTI_THROW((EncoderException));

   /// Frees what the element owns, then owns a copy of dataSize bytes; they must not be its own.
   virtual void set(Octet const* inData, std::size_t dataSize);

   /// The data; valid until the element is assigned to, set or, if it owns them, decoded into.
   virtual Octet const* get() const;

private:
   HLAopaqueDataImplementation* _implementation;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
