// The bytes of every scalar and string, and the rules of padding, under all encoding helpers and
// logical times. Plain functions without state.
#ifndef encoding_Encoder_h
#define encoding_Encoder_h

#include <cstdint>
#include <cstring>
#include <memory>
#include <RTI/encoding/EncodingConfig.h>
#include <string>
#include <vector>

// The seventeen scalars: name, value type, order of the bytes, number of bytes. The number of bytes
// is the boundary too. bitsOf(value), below, gives the bits that are put in order.
#define ENCODER_FOR_EACH_SCALAR(X)                                                                 \
   X(HLAASCIIchar, char, BigEndian, 1)                                                             \
   X(HLAbyte, char, BigEndian, 1)                                                                  \
   X(HLAoctet, char, BigEndian, 1)                                                                 \
   X(HLAboolean, bool, BigEndian, 4)                                                               \
   X(HLAunicodeChar, wchar_t, BigEndian, 2)                                                        \
   X(HLAinteger16BE, short, BigEndian, 2)                                                          \
   X(HLAinteger16LE, short, LittleEndian, 2)                                                       \
   X(HLAinteger32BE, int, BigEndian, 4)                                                            \
   X(HLAinteger32LE, int, LittleEndian, 4)                                                         \
   X(HLAinteger64BE, rti1516e::Integer64, BigEndian, 8)                                            \
   X(HLAinteger64LE, rti1516e::Integer64, LittleEndian, 8)                                         \
   X(HLAfloat32BE, float, BigEndian, 4)                                                            \
   X(HLAfloat32LE, float, LittleEndian, 4)                                                         \
   X(HLAfloat64BE, double, BigEndian, 8)                                                           \
   X(HLAfloat64LE, double, LittleEndian, 8)                                                        \
   X(HLAoctetPairBE, rti1516e::OctetPair, BigEndian, 2)                                            \
   X(HLAoctetPairLE, rti1516e::OctetPair, LittleEndian, 2)

namespace Encoder {

// Throws EncoderException. Out of line, so that the way without it stays short.
[[noreturn]] void fail(wchar_t const* message);

// The smallest number of bytes that brings size to a multiple of boundary. A boundary of 0 is a
// division by zero. All the family's own boundaries are powers of two, where no division is needed.
inline unsigned long paddingSizeInBytes(unsigned long size, unsigned long boundary)
{
   if (boundary != 0 && (boundary & (boundary - 1)) == 0) {
      return (0 - size) & (boundary - 1);
   }
   unsigned long const behind = size % boundary;
   return behind == 0 ? 0 : boundary - behind;
}

// Adds count bytes of zero. All padding comes from here.
inline void insertBytes(std::vector<char>& buffer, unsigned long count)
{
   buffer.resize(buffer.size() + count);
}

// Adds a copy of count bytes; with a count of 0 bytes may be null.
void appendBytes(std::vector<char>& buffer, char const* bytes, unsigned long count);

// Adds four bytes, most significant first.
void appendInt(std::vector<char>& buffer, int value);

// The integer whose bytes a value travels as, and the value back from it.

inline std::uint8_t bitsOf(char value)
{
   return static_cast<std::uint8_t>(value);
}

inline std::uint32_t bitsOf(bool value)
{
   return value ? 1 : 0;
}

// Drops what does not fit 16 bits.
inline std::uint16_t bitsOf(wchar_t value)
{
   return static_cast<std::uint16_t>(value);
}

inline std::uint16_t bitsOf(short value)
{
   return static_cast<std::uint16_t>(value);
}

inline std::uint32_t bitsOf(int value)
{
   return static_cast<std::uint32_t>(value);
}

inline std::uint64_t bitsOf(long long value)
{
   return static_cast<std::uint64_t>(value);
}

inline std::uint32_t bitsOf(float value)
{
   std::uint32_t bits;
   std::memcpy(&bits, &value, sizeof(bits));
   return bits;
}

inline std::uint64_t bitsOf(double value)
{
   std::uint64_t bits;
   std::memcpy(&bits, &value, sizeof(bits));
   return bits;
}

// first is the more significant byte.
inline std::uint16_t bitsOf(rti1516e::OctetPair const& value)
{
   return static_cast<std::uint16_t>(bitsOf(value.first) << 8 | bitsOf(value.second));
}

template <class Bits, class Value>
void setFromBits(Bits bits, Value& value)
{
   value = static_cast<Value>(bits);
}

// Any number but 1 is false.
inline void setFromBits(std::uint32_t bits, bool& value)
{
   value = bits == 1;
}

inline void setFromBits(std::uint32_t bits, float& value)
{
   std::memcpy(&value, &bits, sizeof(value));
}

inline void setFromBits(std::uint64_t bits, double& value)
{
   std::memcpy(&value, &bits, sizeof(value));
}

inline void setFromBits(std::uint16_t bits, rti1516e::OctetPair& value)
{
   value.first = static_cast<char>(bits >> 8);
   value.second = static_cast<char>(bits);
}

// An order of bytes, by shifts, so that the processor's own order plays no part. An integer is two
// halves, each an integer of half the width; compilers make one move of the whole.
template <bool mostSignificantFirst>
struct ByteOrder {
   static void store(std::uint8_t bits, char* out)
   {
      out[0] = static_cast<char>(bits);
   }

   static void store(std::uint16_t bits, char* out)
   {
      out[high(2)] = static_cast<char>(bits >> 8);
      out[low(2)] = static_cast<char>(bits);
   }

   static void store(std::uint32_t bits, char* out)
   {
      store(static_cast<std::uint16_t>(bits >> 16), out + high(4));
      store(static_cast<std::uint16_t>(bits), out + low(4));
   }

   static void store(std::uint64_t bits, char* out)
   {
      store(static_cast<std::uint32_t>(bits >> 32), out + high(8));
      store(static_cast<std::uint32_t>(bits), out + low(8));
   }

   static void load(char const* in, std::uint8_t& bits)
   {
      bits = static_cast<std::uint8_t>(in[0]);
   }

   static void load(char const* in, std::uint16_t& bits)
   {
      bits = static_cast<std::uint16_t>(bitsOf(in[high(2)]) << 8 | bitsOf(in[low(2)]));
   }

   static void load(char const* in, std::uint32_t& bits)
   {
      loadHalves<std::uint16_t>(in, bits);
   }

   static void load(char const* in, std::uint64_t& bits)
   {
      loadHalves<std::uint32_t>(in, bits);
   }

private:
   // Offsets of the two halves of an integer of that many bytes.
   static constexpr int high(int size)
   {
      return mostSignificantFirst ? 0 : size / 2;
   }
   static constexpr int low(int size)
   {
      return mostSignificantFirst ? size / 2 : 0;
   }

   template <class Half, class Bits>
   static void loadHalves(char const* in, Bits& bits)
   {
      Half highHalf;
      Half lowHalf;
      load(in + high(sizeof(Bits)), highHalf);
      load(in + low(sizeof(Bits)), lowHalf);
      bits = static_cast<Bits>(highHalf) << 8 * sizeof(Half) | lowHalf;
   }
};

typedef ByteOrder<true> BigEndian;
typedef ByteOrder<false> LittleEndian;

// The bytes of one type of value: how many, at which boundary, and both ways. A coding serves the
// element of its type, and the functions below that bear the type's name.

template <class Type, class Order>
class ScalarCoding {
public:
   typedef Type Value;
   static constexpr unsigned int boundary = sizeof(bitsOf(Value())); // and number of bytes

   static int size(Value const&)
   {
      return boundary;
   }

   // The caller guarantees the room.
   static void encode(Value const& value, void* buffer)
   {
      Order::store(bitsOf(value), static_cast<char*>(buffer));
   }

   // The caller guarantees the bytes.
   static void decode(void const* buffer, unsigned long, Value& value)
   {
      decltype(bitsOf(Value())) bits;
      Order::load(static_cast<char const*>(buffer), bits);
      setFromBits(bits, value);
   }

   // The encoded value, in a few bytes of stack.
   struct Bytes {
      explicit Bytes(Value const& value)
      {
         encode(value, data());
      }

      char* data()
      {
         return bytes;
      }

      static unsigned long size()
      {
         return boundary;
      }

      char bytes[boundary];
   };

   // Adds padding to the boundary given and the encoded value.
   static void append(std::vector<char>& buffer, unsigned long at, Value const& value)
   {
      insertBytes(buffer, paddingSizeInBytes(buffer.size(), at) + boundary);
      encode(value, &buffer[buffer.size() - boundary]);
   }
};

// A number of bytes as an int: exact below 2^31 and negative from there on.
int sizeAsInt(unsigned long size);

// A new array of char that the caller frees by delete[]; length is set to its size. A negative size
// asks for more than there is: std::bad_alloc.
template <class Coding>
char* encodeNew(typename Coding::Value const& value, int& length)
{
   length = Coding::size(value);
   char* const buffer = new char[static_cast<std::size_t>(length)];
   Coding::encode(value, buffer);
   return buffer;
}

// Text is std::string or std::wstring: a count of characters, 4 bytes, most significant first; then
// the characters, one byte each or two (the low 16 bits, most significant byte first). Nothing is
// transcoded.
template <class Text>
class StringCoding {
public:
   typedef Text Value;
   static constexpr unsigned int boundary = 4;

   // Negative if the encoded form has 2^31 bytes or more: no allocator grants that.
   static int size(Text const& value);

   // The caller guarantees the room.
   static void encode(Text const& value, void* buffer);

   // Needs 4 bytes at least. Compares the count with the length of all the data and throws
   // EncoderException "Array index out of bounds" if it is greater, or negative; the value is
   // unchanged then. A smaller count may still reach behind the data: the string has the length
   // that the count says, and what lies outside the data is read as zero.
   static void decode(void const* buffer, unsigned long length, Text& value);

   // The encoded value.
   class Bytes {
   public:
      explicit Bytes(Text const& value) : _data(encodeNew<StringCoding>(value, _size)) {}

      char* data()
      {
         return _data.get();
      }

      unsigned long size() const
      {
         return static_cast<unsigned long>(_size);
      }

   private:
      int _size;
      std::unique_ptr<char[]> _data;
   };

   // Adds padding to the boundary given and the encoded value. A string whose size is negative is a
   // std::length_error.
   static void append(std::vector<char>& buffer, unsigned long at, Text const& value);
};

#define ENCODER_SCALAR_CODING(Name, Value, Order, Bytes)                                           \
   typedef ScalarCoding<Value, Order> Name##Coding;                                                \
   static_assert(Name##Coding::boundary == Bytes, "bytes of " #Name);

ENCODER_FOR_EACH_SCALAR(ENCODER_SCALAR_CODING)

#undef ENCODER_SCALAR_CODING

typedef StringCoding<std::string> HLAASCIIstringCoding;
typedef StringCoding<std::wstring> HLAunicodeStringCoding;

template <class Coding>
typename Coding::Value decodeValue(void const* buffer, unsigned long length)
{
   typename Coding::Value value;
   Coding::decode(buffer, length, value);
   return value;
}

// Each type has five functions, by its name. For HLAinteger32BE they are
//
//   unsigned int boundaryofHLAinteger32BE();
//   int sizeofHLAinteger32BE(int const& value);
//   char* encodeHLAinteger32BE(int const& value, int& length);               see encodeNew
//   void encodeHLAinteger32BE(int const& value, void const* buffer);         const notwithstanding
//   int decodeHLAinteger32BE(void const* buffer, unsigned long length);
#define ENCODER_FUNCTIONS(Name)                                                                    \
   inline unsigned int boundaryof##Name()                                                          \
   {                                                                                               \
      return Name##Coding::boundary;                                                               \
   }                                                                                               \
                                                                                                   \
   inline int sizeof##Name(Name##Coding::Value const& value)                                       \
   {                                                                                               \
      return Name##Coding::size(value);                                                            \
   }                                                                                               \
                                                                                                   \
   inline char* encode##Name(Name##Coding::Value const& value, int& length)                        \
   {                                                                                               \
      return encodeNew<Name##Coding>(value, length);                                               \
   }                                                                                               \
                                                                                                   \
   inline void encode##Name(Name##Coding::Value const& value, void const* buffer)                  \
   {                                                                                               \
      Name##Coding::encode(value, const_cast<void*>(buffer));                                      \
   }                                                                                               \
                                                                                                   \
   inline Name##Coding::Value decode##Name(void const* buffer, unsigned long length)               \
   {                                                                                               \
      return decodeValue<Name##Coding>(buffer, length);                                            \
   }
#define ENCODER_SCALAR_FUNCTIONS(Name, Value, Order, Bytes) ENCODER_FUNCTIONS(Name)

ENCODER_FOR_EACH_SCALAR(ENCODER_SCALAR_FUNCTIONS)
ENCODER_FUNCTIONS(HLAASCIIstring)
ENCODER_FUNCTIONS(HLAunicodeString)

#undef ENCODER_SCALAR_FUNCTIONS
#undef ENCODER_FUNCTIONS

// Reads four bytes, most significant first. The caller guarantees that they are there.
inline int decodeInt(std::vector<char> const& buffer, unsigned long index)
{
   return decodeHLAinteger32BE(&buffer[index], 4);
}

} // namespace Encoder

#endif
