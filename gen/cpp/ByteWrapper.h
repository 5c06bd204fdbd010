// The cursor over the byte array in which arguments cross to Java and back.
#ifndef gen_ByteWrapper_h
#define gen_ByteWrapper_h

#include <cstdint>
#include <cstring>

namespace rti1516e {

// As memcpy, which is called only for what is long: most values are a number.
inline void copyBytes(void* to, void const* from, unsigned long count)
{
   switch (count) {
   case 0:
      break;
   case 4:
      std::memcpy(to, from, 4);
      break;
   case 8:
      std::memcpy(to, from, 8);
      break;
   default:
      std::memcpy(to, from, count);
   }
}

// Eight bytes, or two integers of which the first is the high half.
inline void storeLong(char* bytes, std::uint64_t value)
{
   bytes[0] = static_cast<char>(value >> 56);
   bytes[1] = static_cast<char>(value >> 48);
   bytes[2] = static_cast<char>(value >> 40);
   bytes[3] = static_cast<char>(value >> 32);
   bytes[4] = static_cast<char>(value >> 24);
   bytes[5] = static_cast<char>(value >> 16);
   bytes[6] = static_cast<char>(value >> 8);
   bytes[7] = static_cast<char>(value);
}

// Integers are signed 32-bit, most significant byte first; a field begins where the last one ended.
// The wrapper knows no end: whoever fills or reads a buffer answers for its length.
class ByteWrapper {
public:
   explicit ByteWrapper(char* buffer) : _position(0), _base(buffer) {}

   // The length is taken for the caller's convenience and is no bound.
   ByteWrapper(char* buffer, unsigned long) : _position(0), _base(buffer) {}

   virtual ~ByteWrapper() {}

   int getInt()
   {
      unsigned char const* const bytes = reinterpret_cast<unsigned char const*>(getPtr());
      _position += 4;
      return static_cast<int>(static_cast<unsigned>(bytes[0]) << 24
            | static_cast<unsigned>(bytes[1]) << 16 | static_cast<unsigned>(bytes[2]) << 8
            | static_cast<unsigned>(bytes[3]));
   }

   void putInt(int value)
   {
      unsigned const bits = static_cast<unsigned>(value);
      char* const bytes = reserve(4);
      bytes[0] = static_cast<char>(bits >> 24);
      bytes[1] = static_cast<char>(bits >> 16);
      bytes[2] = static_cast<char>(bits >> 8);
      bytes[3] = static_cast<char>(bits);
   }

   // 8 bytes, the high half first.
   std::uint64_t getLong()
   {
      std::uint64_t const high = static_cast<unsigned>(getInt());
      return high << 32 | static_cast<unsigned>(getInt());
   }

   void putLong(std::uint64_t value)
   {
      storeLong(reserve(8), value);
   }

   void get(void* destination, unsigned long count)
   {
      if (count != 0) {
         std::memcpy(destination, getPtr(), count);
      }
      _position += count;
   }

   void put(void const* source, unsigned long count)
   {
      copyBytes(reserve(count), source, count);
   }

   char* getPtr()
   {
      return _base + _position;
   }

   void advance(unsigned long count)
   {
      _position += count;
   }

   // The bytes passed over, to be filled by the caller.
   char* reserve(unsigned long count)
   {
      char* const bytes = getPtr();
      _position += count;
      return bytes;
   }

   // Moves to the next multiple of alignment, counted from the buffer's begin.
   void align(int alignment)
   {
      while (_position % static_cast<unsigned long>(alignment) != 0) {
         ++_position;
      }
   }

   char* array() const
   {
      return _base;
   }

private:
   unsigned long _position;
   char* _base;
};

} // namespace rti1516e

#endif
