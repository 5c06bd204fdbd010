// The base of all encoding helpers.
#ifndef RTI_DataElement_h
#define RTI_DataElement_h

#include <cstddef>
#include <memory>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/encoding/EncodingExceptions.h>
#include <RTI/SpecificConfig.h>
#include <RTI/VariableLengthData.h>
#include <vector>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// A value that knows its encoded form. Federates may derive classes of their own and put them into
/// arrays and records; the operations below say what is expected of them.
///
/// Layout: an element begins at a multiple of its octet boundary, counted from the first byte of
/// the vector that it is encoded into. The bytes skipped for that are zero. Nothing follows the
/// last byte of a value.
///
/// Ownership: an element never shares bytes with a VariableLengthData, and never keeps a pointer
/// into bytes that it has decoded. Where an operation takes a pointer to an element or to a value,
/// the caller keeps what it points at and lets it outlive the element.
///
/// Objects are not guarded: two threads may use two elements freely.
class RTI_EXPORT DataElement {
public:
   virtual ~DataElement();

   /// A new element of the same class and value. It holds all its values itself, also where this
   /// one refers to the caller's.
   virtual std::auto_ptr<DataElement> clone() const = 0;

   /// The encoded value in a block of its own.
   /// @throws EncoderException if the value can't be encoded
   virtual VariableLengthData encode() const RTI_THROW((EncoderException)) = 0;

   /// Replaces the contents of inData by the encoded value.
   /// @throws EncoderException if the value can't be encoded
   virtual void encode(VariableLengthData& inData) const RTI_THROW((EncoderException)) = 0;

   /// Adds bytes at the end of buffer: zeros up to a multiple of getOctetBoundary(), then the
   /// encoded value.
   /// @throws EncoderException if the value can't be encoded
   virtual void encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException)) = 0;

   /// Takes the value from the beginning of inData; bytes behind it are ignored.
   /// @throws EncoderException if the bytes hold no such value
   virtual void decode(VariableLengthData const& inData) RTI_THROW((EncoderException)) = 0;

   /// Takes the value from buffer at index, where the caller has seen to the boundary. Returns the
   /// index of the first byte behind the value.
   /// @throws EncoderException if the bytes hold no such value
   virtual std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
         RTI_THROW((EncoderException)) = 0;

   /// Number of bytes of the encoded value, from its first byte on: with the padding inside it, and
   /// without any in front.
   /// @throws EncoderException if the value can't be encoded
   virtual std::size_t getEncodedLength() const RTI_THROW((EncoderException)) = 0;

   /// The value begins at a multiple of this many bytes. May change with the value.
   virtual unsigned int getOctetBoundary() const = 0;

   /// True if the other element is of the same class; a class and its subclass differ. The elements
   /// inside arrays and records play no part.
   virtual bool isSameTypeAs(DataElement const& inData) const;

   /// By this number alone a variant record tells discriminants apart. 1 unless a class overrides
   /// it: the scalars and strings do.
   virtual Integer64 hash() const;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
