// Shapes and the elements of their form.
#include "tests/encoding/Shape.h"

#include <algorithm>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>

using namespace rti1516e;

namespace {

template <class Element>
DataElement* make()
{
   return new Element;
}

struct ScalarClass {
   char const* name;
   unsigned int bytes;
   DataElement* (*make)();
};

ScalarClass const SCALARS[] = {
      {"HLAoctet", 1, make<HLAoctet>},
      {"HLAASCIIchar", 1, make<HLAASCIIchar>},
      {"HLAbyte", 1, make<HLAbyte>},
      {"HLAunicodeChar", 2, make<HLAunicodeChar>},
      {"HLAinteger16BE", 2, make<HLAinteger16BE>},
      {"HLAinteger16LE", 2, make<HLAinteger16LE>},
      {"HLAoctetPairBE", 2, make<HLAoctetPairBE>},
      {"HLAoctetPairLE", 2, make<HLAoctetPairLE>},
      {"HLAboolean", 4, make<HLAboolean>},
      {"HLAinteger32BE", 4, make<HLAinteger32BE>},
      {"HLAinteger32LE", 4, make<HLAinteger32LE>},
      {"HLAfloat32BE", 4, make<HLAfloat32BE>},
      {"HLAfloat32LE", 4, make<HLAfloat32LE>},
      {"HLAinteger64BE", 8, make<HLAinteger64BE>},
      {"HLAinteger64LE", 8, make<HLAinteger64LE>},
      {"HLAfloat64BE", 8, make<HLAfloat64BE>},
      {"HLAfloat64LE", 8, make<HLAfloat64LE>},
};
int const SCALAR_COUNT = sizeof(SCALARS) / sizeof(SCALARS[0]);

void pad(std::string& buffer, unsigned int boundary)
{
   while (buffer.size() % boundary != 0) {
      buffer += '\0';
   }
}

std::size_t aligned(std::size_t index, unsigned int boundary)
{
   return (index + boundary - 1) / boundary * boundary;
}

void appendCount(std::string& buffer, std::size_t count)
{
   for (int shift = 24; shift >= 0; shift -= 8) {
      buffer += static_cast<char>(count >> shift);
   }
}

// As a signed number of 32 bits, widened: a negative one is greater than any size.
std::size_t countAt(std::string const& buffer, std::size_t index)
{
   unsigned int count = 0;
   for (int i = 0; i < 4; ++i) {
      count = count << 8 | static_cast<unsigned char>(buffer[index + static_cast<std::size_t>(i)]);
   }
   return static_cast<std::size_t>(static_cast<long>(static_cast<int>(count)));
}

std::size_t charactersOf(Shape const& shape)
{
   return shape.kind == Shape::WIDE ? shape.content.size() / 2 : shape.content.size();
}

unsigned int variantBoundary(Shape const& shape)
{
   unsigned int largest = 0;
   for (std::size_t i = 1; i < shape.parts.size(); ++i) {
      largest = std::max(largest, boundaryOf(shape.parts[i]));
   }
   return largest;
}

// The variant that the discriminant selects, or null.
Shape* selected(Shape& shape)
{
   std::size_t const value = static_cast<unsigned char>(shape.parts[0].content[0]);
   return value + 1 < shape.parts.size() ? &shape.parts[value + 1] : nullptr;
}

std::size_t decodeScalar(Shape& shape, std::string const& buffer, std::size_t index)
{
   ScalarClass const& scalar = SCALARS[shape.scalar];
   if (index >= buffer.size() || buffer.size() - index < scalar.bytes) {
      throw std::wstring(L"Index is out of bounds");
   }
   shape.content = buffer.substr(index, scalar.bytes);
   if (scalar.name == std::string("HLAboolean") && shape.content != std::string("\0\0\0\1", 4)) {
      shape.content.assign(4, '\0');
   }
   return index + scalar.bytes;
}

std::size_t decodeString(Shape& shape, std::string const& buffer, std::size_t index)
{
   if (index >= buffer.size() || buffer.size() - index < 4) {
      throw std::wstring(L"Index is out of bounds");
   }
   std::size_t const count = countAt(buffer, index);
   if (count > buffer.size() - index) {
      throw std::wstring(L"Array index out of bounds");
   }
   std::size_t const bytes = shape.kind == Shape::WIDE ? 2 * count : count;
   shape.content = buffer.substr(index + 4, bytes);
   shape.content.resize(bytes);
   return index + 4 + bytes;
}

std::size_t decodeOpaque(Shape& shape, std::string const& buffer, std::size_t index)
{
   if (buffer.size() < index + 4) {
      throw std::wstring(L"HLAopaqueData cannot decode (indata too short)");
   }
   std::size_t const count = countAt(buffer, index);
   if (count > buffer.size() || index + 4 + count > buffer.size()) {
      throw std::wstring(L"Array index out of bounds");
   }
   shape.content = buffer.substr(index + 4, count);
   return index + 4 + count;
}

std::size_t decodeParts(Shape& shape, std::string const& buffer, std::size_t index)
{
   for (Shape& part : shape.parts) {
      index = decodeShape(part, buffer, aligned(index, boundaryOf(part)));
   }
   return index;
}

std::size_t decodeArray(Shape& shape, std::string const& buffer, std::size_t index)
{
   index = aligned(index, 4);
   std::wstring const tooShort = L"HLAvariableArray cannot decode (indata too short)";
   if (index + 4 > buffer.size()) {
      throw tooShort;
   }
   std::size_t const count = countAt(buffer, index);
   if (count > buffer.size() || index + 4 + count > buffer.size()) {
      throw tooShort;
   }
   shape.parts.resize(count, shape.prototype[0]);
   return decodeParts(shape, buffer, index + 4);
}

std::size_t decodeVariant(Shape& shape, std::string const& buffer, std::size_t index)
{
   index = decodeShape(shape.parts[0], buffer, index);
   Shape* const variant = selected(shape);
   return variant == nullptr
         ? index
         : decodeShape(*variant, buffer, aligned(index, variantBoundary(shape)));
}

template <class Composite, class Add, class AddPointer>
void addParts(Composite& composite, Shape const& shape, bool byPointer, Kept& kept, Add add,
      AddPointer addPointer)
{
   for (std::size_t i = 0; i < shape.parts.size(); ++i) {
      std::unique_ptr<DataElement> part = elementOf(shape.parts[i], byPointer, kept);
      if (byPointer && i % 2 == 1) {
         (composite.*addPointer)(part.get());
         kept.push_back(std::move(part));
      } else {
         (composite.*add)(*part);
      }
   }
}

std::unique_ptr<DataElement> fixedArrayOf(Shape const& shape, bool byPointer, Kept& kept)
{
   if (shape.parts.empty()) {
      return std::unique_ptr<DataElement>(new HLAfixedArray);
   }
   std::unique_ptr<DataElement> const first = elementOf(shape.parts[0], byPointer, kept);
   std::unique_ptr<HLAfixedArray> array(new HLAfixedArray(*first, shape.parts.size()));
   for (std::size_t i = 1; i < shape.parts.size(); ++i) {
      std::unique_ptr<DataElement> part = elementOf(shape.parts[i], byPointer, kept);
      if (byPointer && i % 2 == 1) {
         array->setElementPointer(i, part.get());
         kept.push_back(std::move(part));
      } else {
         array->set(i, *part);
      }
   }
   return array;
}

std::unique_ptr<DataElement> variantOf(Shape const& shape, bool byPointer, Kept& kept)
{
   HLAoctet const discriminant(shape.parts[0].content[0]);
   std::unique_ptr<HLAvariantRecord> record(new HLAvariantRecord(discriminant));
   for (std::size_t i = 1; i < shape.parts.size(); ++i) {
      std::unique_ptr<DataElement> part = elementOf(shape.parts[i], byPointer, kept);
      HLAoctet const key(static_cast<Octet>(i - 1));
      if (byPointer && i % 2 == 1) {
         record->addVariantPointer(key, part.get());
         kept.push_back(std::move(part));
      } else {
         record->addVariant(key, *part);
      }
   }
   return record;
}

} // namespace

Shape scalarShape(int scalar, std::string const& content)
{
   return {Shape::SCALAR, scalar, content, {}, {}};
}

Shape stringShape(Shape::Kind kind, std::string const& content)
{
   return {kind, 0, content, {}, {}};
}

Shape arrayShape(Shape const& prototype, std::vector<Shape> const& elements)
{
   return {Shape::VARIABLE_ARRAY, 0, "", elements, {prototype}};
}

Shape sequenceShape(Shape::Kind kind, std::vector<Shape> const& parts)
{
   return {kind, 0, "", parts, {}};
}

int scalarNamed(std::string const& name)
{
   return static_cast<int>(std::find_if(SCALARS, SCALARS + SCALAR_COUNT,
                                 [&](ScalarClass const& scalar) { return name == scalar.name; })
         - SCALARS);
}

Shape randomShape(std::mt19937& random, int depth)
{
   auto const below = [&](int limit) {
      return static_cast<int>(random() % static_cast<unsigned int>(limit));
   };
   auto const bytes = [&](unsigned int count) {
      std::string text;
      while (text.size() < count) {
         text += static_cast<char>(random());
      }
      return text;
   };
   Shape::Kind const kind = static_cast<Shape::Kind>(below(depth == 0 ? 4 : 8));
   switch (kind) {
   case Shape::SCALAR: {
      int const scalar = below(SCALAR_COUNT);
      Shape shape = scalarShape(scalar, "");
      decodeScalar(shape, bytes(SCALARS[scalar].bytes), 0);
      return shape;
   }
   case Shape::NARROW:
   case Shape::OPAQUE:
      return stringShape(kind, bytes(static_cast<unsigned int>(below(6))));
   case Shape::WIDE:
      return stringShape(kind, bytes(static_cast<unsigned int>(2 * below(4))));
   case Shape::FIXED_ARRAY:
      // Elements of one class with one value: the others are set by decoding.
      return sequenceShape(kind, std::vector<Shape>(random() % 4, randomShape(random, depth - 1)));
   case Shape::VARIABLE_ARRAY: {
      Shape const prototype = randomShape(random, depth - 1);
      return arrayShape(prototype, std::vector<Shape>(random() % 4, prototype));
   }
   default: {
      std::vector<Shape> parts;
      if (kind == Shape::VARIANT) {
         parts.push_back(scalarShape(scalarNamed("HLAoctet"), std::string(1, '\0')));
         parts[0].content[0] = static_cast<char>(below(4));
      }
      for (int i = below(4); i > 0; --i) {
         parts.push_back(randomShape(random, depth - 1));
      }
      return sequenceShape(kind, parts);
   }
   }
}

unsigned int boundaryOf(Shape const& shape)
{
   switch (shape.kind) {
   case Shape::SCALAR:
      return SCALARS[shape.scalar].bytes;
   case Shape::NARROW:
   case Shape::WIDE:
   case Shape::OPAQUE:
      return 4;
   default:
      unsigned int largest = shape.kind == Shape::VARIABLE_ARRAY ? 4 : 1;
      for (Shape const& part : shape.parts) {
         largest = std::max(largest, boundaryOf(part));
      }
      if (shape.kind == Shape::VARIABLE_ARRAY && shape.parts.empty()) {
         largest = std::max(largest, boundaryOf(shape.prototype[0]));
      }
      return largest;
   }
}

void encodeShape(Shape const& shape, std::string& buffer)
{
   pad(buffer, boundaryOf(shape));
   if (shape.kind == Shape::VARIANT) {
      encodeShape(shape.parts[0], buffer);
      if (shape.parts.size() > 1) {
         pad(buffer, variantBoundary(shape));
      }
      if (Shape const* const variant = selected(const_cast<Shape&>(shape))) {
         encodeShape(*variant, buffer);
      }
      return;
   }
   if (shape.kind == Shape::VARIABLE_ARRAY) {
      appendCount(buffer, shape.parts.size());
   } else if (shape.kind == Shape::NARROW || shape.kind == Shape::WIDE
         || shape.kind == Shape::OPAQUE) {
      appendCount(buffer, charactersOf(shape));
   }
   buffer += shape.content;
   for (Shape const& part : shape.parts) {
      encodeShape(part, buffer);
   }
}

std::size_t decodeShape(Shape& shape, std::string const& buffer, std::size_t index)
{
   switch (shape.kind) {
   case Shape::SCALAR:
      return decodeScalar(shape, buffer, index);
   case Shape::NARROW:
   case Shape::WIDE:
      return decodeString(shape, buffer, index);
   case Shape::OPAQUE:
      return decodeOpaque(shape, buffer, index);
   case Shape::VARIABLE_ARRAY:
      return decodeArray(shape, buffer, index);
   case Shape::VARIANT:
      return decodeVariant(shape, buffer, index);
   default:
      return decodeParts(shape, buffer, index);
   }
}

std::unique_ptr<DataElement> elementOf(Shape const& shape, bool byPointer, Kept& kept)
{
   std::unique_ptr<DataElement> element;
   std::string bytes;
   switch (shape.kind) {
   case Shape::SCALAR:
      element.reset(SCALARS[shape.scalar].make());
      element->decodeFrom(std::vector<Octet>(shape.content.begin(), shape.content.end()), 0);
      return element;
   case Shape::NARROW:
      element.reset(new HLAASCIIstring);
      break;
   case Shape::WIDE:
      element.reset(new HLAunicodeString);
      break;
   case Shape::OPAQUE:
      return std::unique_ptr<DataElement>(
            new HLAopaqueData(shape.content.data(), shape.content.size()));
   case Shape::FIXED_ARRAY:
      return fixedArrayOf(shape, byPointer, kept);
   case Shape::VARIANT:
      return variantOf(shape, byPointer, kept);
   case Shape::VARIABLE_ARRAY: {
      std::unique_ptr<DataElement> const prototype = elementOf(shape.prototype[0], byPointer, kept);
      std::unique_ptr<HLAvariableArray> array(new HLAvariableArray(*prototype));
      addParts(*array, shape, byPointer, kept, &HLAvariableArray::addElement,
            &HLAvariableArray::addElementPointer);
      return array;
   }
   case Shape::RECORD: {
      std::unique_ptr<HLAfixedRecord> record(new HLAfixedRecord);
      addParts(*record, shape, byPointer, kept, &HLAfixedRecord::appendElement,
            &HLAfixedRecord::appendElementPointer);
      return record;
   }
   }
   encodeShape(shape, bytes);
   element->decodeFrom(std::vector<Octet>(bytes.begin(), bytes.end()), 0);
   return element;
}
