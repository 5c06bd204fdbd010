// The encoding helpers of one value each: seventeen scalars and two strings.
#ifndef RTI_BasicDataElements_h
#define RTI_BasicDataElements_h

#include <RTI/encoding/DataElement.h>
#include <RTI/encoding/EncodingConfig.h>
#include <RTI/SpecificConfig.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Declares the element class X with values of type V. The classes are alike; each stands below
/// with its value type, its bytes and its boundary.
///
/// The value is held inside the element, or in a variable of the caller's that the element is bound
/// to: it then reads that variable whenever its value is asked for, and decoding writes there.
/// Assigning or setting a value ends the binding and leaves the variable as it was. A copy is never
/// bound.
///
/// Nothing but decoding throws: EncoderException "Index is out of bounds" where fewer bytes are
/// left than the boundary. A string throws "Array index out of bounds" if its count is negative or
/// greater than the number of bytes, the count's own included. A count that is let through although
/// the characters are fewer gives a string of that length, with zeros at its end. The value is
/// unchanged after an exception.
///
/// A federate's subclass may tell another boundary and length; what is encoded is the value itself,
/// whatever an overridden get() returns.
#define RTI_BASIC_DATA_ELEMENT(X, V)                                                               \
   class X##Implementation;                                                                        \
                                                                                                   \
   class RTI_EXPORT X : public DataElement {                                                       \
   public:                                                                                         \
      /** Holds zero, or the empty string. */                                                      \
      X();                                                                                         \
      explicit X(V const& inData);                                                                 \
      /** Bound to the caller's variable, which is not read yet. With a null pointer as X(). */    \
      explicit X(V* inData);                                                                       \
      X(X const& rhs);                                                                             \
      virtual ~X();                                                                                \
      /** Ends the binding and takes the value. Assigned to itself the element holds X(). */       \
      X& operator=(X const& rhs);                                                                  \
      X& operator=(V rhs);                                                                         \
      operator V() const;                                                                          \
                                                                                                   \
      virtual std::auto_ptr<DataElement> clone() const;                                            \
      virtual VariableLengthData encode() const RTI_THROW((EncoderException));                     \
      virtual void encode(VariableLengthData& inData) const RTI_THROW((EncoderException));         \
      virtual void encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException));     \
      virtual void decode(VariableLengthData const& inData) RTI_THROW((EncoderException));         \
      virtual std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index)          \
            RTI_THROW((EncoderException));                                                         \
      virtual std::size_t getEncodedLength() const RTI_THROW((EncoderException));                  \
      virtual unsigned int getOctetBoundary() const;                                               \
      virtual Integer64 hash() const;                                                              \
                                                                                                   \
      /** Binds to the caller's variable; a null pointer goes back to the value inside. */         \
      virtual void setDataPointer(V* inData);                                                      \
      /** Ends the binding and holds the value. */                                                 \
      virtual void set(V inData);                                                                  \
      virtual V get() const;                                                                       \
                                                                                                   \
   private:                                                                                        \
      friend class X##Implementation;                                                              \
                                                                                                   \
      /* Inside an array or a record, which holds the implementation, too. */                      \
      explicit X(X##Implementation& inside) : _implementation(&inside) {}                          \
                                                                                                   \
      X##Implementation* _implementation;                                                          \
   };

// The hash of a scalar is its value as a signed 64-bit integer, XOR 0xDEADBEEF. A float or double
// is truncated toward zero; from 2^63 up to 2^64 as an unsigned integer. Beyond, on any processor:
// NaN counts as 0, what lies below -2^63 as -2^63, and what lies from 2^64 on as 2^64 - 1. A pair
// is first * 256 + second, both signed. Strings have a 64-bit hash over their characters.

/// One character of 8 bits. Value: char. Bytes: 1. Boundary: 1.
RTI_BASIC_DATA_ELEMENT(HLAASCIIchar, char)

/// Truth. Value: bool. Bytes: 4, as HLAinteger32BE: 1 for true, 0 for false; read back, any
/// number but 1 is false. Boundary: 4.
RTI_BASIC_DATA_ELEMENT(HLAboolean, bool)

/// Eight bits. Value: char. Bytes: 1. Boundary: 1.
RTI_BASIC_DATA_ELEMENT(HLAbyte, char)

/// Eight bits. Value: char. Bytes: 1. Boundary: 1.
RTI_BASIC_DATA_ELEMENT(HLAoctet, Octet)

/// A UTF-16 unit. Value: wchar_t, of which the low 16 bits are encoded: a character beyond U+FFFF
/// comes back as another one. hash() uses all bits.
/// Bytes: 2, most significant first. Boundary: 2.
RTI_BASIC_DATA_ELEMENT(HLAunicodeChar, wchar_t)

/// Value: a signed integer, short. Bytes: 2, most significant first. Boundary: 2.
RTI_BASIC_DATA_ELEMENT(HLAinteger16BE, Integer16)

/// Value: a signed integer, short. Bytes: 2, least significant first. Boundary: 2.
RTI_BASIC_DATA_ELEMENT(HLAinteger16LE, Integer16)

/// Value: a signed integer, int. Bytes: 4, most significant first. Boundary: 4.
RTI_BASIC_DATA_ELEMENT(HLAinteger32BE, Integer32)

/// Value: a signed integer, int. Bytes: 4, least significant first. Boundary: 4.
RTI_BASIC_DATA_ELEMENT(HLAinteger32LE, Integer32)

/// Value: a signed integer, long long. Bytes: 8, most significant first. Boundary: 8.
RTI_BASIC_DATA_ELEMENT(HLAinteger64BE, Integer64)

/// Value: a signed integer, long long. Bytes: 8, least significant first. Boundary: 8.
RTI_BASIC_DATA_ELEMENT(HLAinteger64LE, Integer64)

/// Value: float. Bytes: the 4 of its IEEE 754 form, most significant first. Boundary: 4.
RTI_BASIC_DATA_ELEMENT(HLAfloat32BE, float)

/// Value: float. Bytes: the 4 of its IEEE 754 form, least significant first. Boundary: 4.
RTI_BASIC_DATA_ELEMENT(HLAfloat32LE, float)

/// Value: double. Bytes: the 8 of its IEEE 754 form, most significant first. Boundary: 8.
RTI_BASIC_DATA_ELEMENT(HLAfloat64BE, double)

/// Value: double. Bytes: the 8 of its IEEE 754 form, least significant first. Boundary: 8.
RTI_BASIC_DATA_ELEMENT(HLAfloat64LE, double)

/// Value: std::pair<char, char>. Bytes: 2, first and then second. Boundary: 2.
RTI_BASIC_DATA_ELEMENT(HLAoctetPairBE, OctetPair)

/// Value: std::pair<char, char>. Bytes: 2, second and then first. Boundary: 2.
RTI_BASIC_DATA_ELEMENT(HLAoctetPairLE, OctetPair)

/// Value: std::string. Bytes: 4 for the number n of characters, as HLAinteger32BE, then n, as they
/// are. Boundary: 4. What takes 2^31 bytes or more can't be encoded: no memory is found for it,
/// which no exception list has, so that the process ends.
RTI_BASIC_DATA_ELEMENT(HLAASCIIstring, std::string)

/// Value: std::wstring. Bytes: 4 for the number n of characters, as HLAinteger32BE, then 2 n: the
/// low 16 bits of each character, most significant byte first. Nothing is done about surrogates: a
/// character beyond U+FFFF is cut and comes back as another one, unless the string holds it as its
/// two surrogates. Boundary: 4. Of the size holds what is told at HLAASCIIstring.
RTI_BASIC_DATA_ELEMENT(HLAunicodeString, std::wstring)

} // namespace rti1516e

RTI_END_INTERFACE

#endif
