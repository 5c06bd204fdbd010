// The numbers by which variant records tell discriminants apart.
#ifndef encoding_hasher_h
#define encoding_hasher_h

#include <cstdint>
#include <RTI/encoding/EncodingConfig.h>
#include <string>

namespace rti1516e {

// A scalar as a signed 64-bit integer. char and wchar_t count as signed on every processor.
inline Integer64 widened(char value)
{
   return static_cast<signed char>(value);
}

inline Integer64 widened(wchar_t value)
{
   return static_cast<std::int32_t>(value);
}

inline Integer64 widened(Integer64 value)
{
   return value;
}

inline Integer64 widened(bool value)
{
   return value ? 1 : 0;
}

inline Integer64 widened(Integer16 value)
{
   return value;
}

inline Integer64 widened(Integer32 value)
{
   return value;
}

inline Integer64 widened(OctetPair const& value)
{
   return widened(value.first) * 256 + widened(value.second);
}

// Truncated, to a signed integer below 2^63 and to an unsigned one from there on. The language
// defines neither conversion out of range; the nearest integer stands in, and 0 for NaN.
inline Integer64 widened(double value)
{
   double const twoTo63 = 9223372036854775808.0;
   if (value < -twoTo63) {
      return INT64_MIN;
   }
   if (value < twoTo63) {
      return static_cast<Integer64>(value);
   }
   if (value < 2 * twoTo63) {
      return static_cast<Integer64>(value - twoTo63) | INT64_MIN;
   }
   return value >= 2 * twoTo63 ? -1 : 0;
}

template <class Value>
Integer64 hasher(Value const& value)
{
   return widened(value) ^ 0xDEADBEEFLL;
}

template <class Character>
Integer64 hasher(std::basic_string<Character> const& value)
{
   std::uint64_t hash = 0x811C9DC5;
   for (Character const character : value) {
      hash = hash * 16777619 ^ static_cast<std::uint64_t>(widened(character));
   }
   return static_cast<Integer64>(hash);
}

} // namespace rti1516e

#endif
