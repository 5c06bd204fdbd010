// Every encoding helper, alone and nested, decoding bytes of any kind: must end, throw and hold
// what a plain second implementation does.
//
// Input: 2 bytes that choose the shape, 1 that chooses the index and how elements are held, then
// the bytes to decode.
#include "tests/encoding/Shape.h"

#include <cstdio>
#include <cstdlib>
#include <RTI/encoding/EncodingExceptions.h>
#include <RTI/VariableLengthData.h>

using namespace rti1516e;

namespace {

void require(bool condition, char const* what)
{
   if (!condition) {
      std::fprintf(stderr, "The element and the model differ in %s\n", what);
      std::abort();
   }
}

template <class Decode>
std::wstring failureOf(Decode decode)
{
   try {
      decode();
   } catch (EncoderException const& failure) {
      return failure.what();
   } catch (std::wstring const& message) { // the model's
      return message;
   }
   return std::wstring();
}

void requireSameBytes(Shape const& shape, DataElement const& element)
{
   std::string expected;
   encodeShape(shape, expected);
   std::vector<Octet> bytes;
   element.encodeInto(bytes);
   require(expected == std::string(bytes.begin(), bytes.end()), "what they hold");
   require(expected.size() == element.getEncodedLength(), "their length");
   require(boundaryOf(shape) == element.getOctetBoundary(), "their boundary");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
   if (size < 3) {
      return 0;
   }
   std::mt19937 random(data[0] * 256U + data[1]);
   Shape const original = randomShape(random, data[0] % 4);
   bool const byPointer = data[2] >= 128;
   std::size_t const index = data[2] % 16;
   std::string const bytes(data + 3, data + size);
   std::vector<Octet> const buffer(bytes.begin(), bytes.end());

   Kept kept;
   Shape shape = original;
   std::unique_ptr<DataElement> const element = elementOf(shape, byPointer, kept);
   std::size_t end = 0, expectedEnd = 0;
   std::wstring const expected = failureOf([&] { expectedEnd = decodeShape(shape, bytes, index); });
   require(expected == failureOf([&] { end = element->decodeFrom(buffer, index); }), "failing");
   require(expectedEnd == end, "where they end");
   requireSameBytes(shape, *element);

   // A block of its own.
   shape = original;
   std::unique_ptr<DataElement> const other = elementOf(shape, byPointer, kept);
   VariableLengthData const block(bytes.data(), bytes.size());
   require(failureOf([&] { decodeShape(shape, bytes, 0); })
               == failureOf([&] { other->decode(block); }),
         "failing on a block");
   requireSameBytes(shape, *other);
   return 0;
}
