// What a federate's author writes who does without the encoding helpers: one value after the other,
// each padded, tested and moved by shifts.
#ifndef bench_encoding_ByHand_h
#define bench_encoding_ByHand_h

#include "bench/encoding/Figures.h"
#include "encoding/Encoder.h"

#include <stdexcept>

// Adds padding and room for the bytes; returns where they go.
inline char* addRoom(Bytes& buffer, std::size_t boundary, std::size_t bytes)
{
   std::size_t const first = (buffer.size() + boundary - 1) & ~(boundary - 1);
   buffer.resize(first + bytes);
   return &buffer[first];
}

// Skips padding and the bytes; returns where they are.
inline char const* takeRoom(
      Bytes const& buffer, std::size_t& index, std::size_t boundary, std::size_t bytes)
{
   index = (index + boundary - 1) & ~(boundary - 1);
   if (buffer.size() < index + bytes) {
      throw std::out_of_range("buffer too short");
   }
   char const* const first = &buffer[index];
   index += bytes;
   return first;
}

template <class Order, class Value>
void addByHand(Bytes& buffer, Value const& value)
{
   std::size_t const bytes = sizeof(Encoder::bitsOf(value));
   Order::store(Encoder::bitsOf(value), addRoom(buffer, bytes, bytes));
}

template <class Order, class Value>
void takeByHand(Bytes const& buffer, std::size_t& index, Value& value)
{
   std::size_t const bytes = sizeof(Encoder::bitsOf(value));
   value = Encoder::decodeValue<Encoder::ScalarCoding<Value, Order>>(
         takeRoom(buffer, index, bytes, bytes), bytes);
}

// An array of HLAinteger32BE.
inline void takeIntegers(Bytes const& buffer, std::vector<int>& integers)
{
   std::size_t index = 0;
   int count;
   takeByHand<Encoder::BigEndian>(buffer, index, count);
   integers.resize(static_cast<std::size_t>(count));
   char const* in = takeRoom(buffer, index, 4, 4 * integers.size());
   for (int& integer : integers) {
      integer = Encoder::decodeHLAinteger32BE(in, 4);
      in += 4;
   }
}

#endif
