// Shapes, and the elements of their form.
#include "tests/encoding/Shape.h"

#include "tests/api/Bytes.h"
#include "tests/encoding/Failures.h"
#include "tests/encoding/FederateElement.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAopaqueData.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/encoding/HLAvariantRecord.h>

using namespace rti1516e;

namespace {

// ---- Leaves

template <class Element, class Value>
struct Access {
   static Value valueOf(std::string const& bytes)
   {
      Element element;
      element.decode(VariableLengthData(bytes.data(), bytes.size()));
      return element.get();
   }

   static DataElement* make()
   {
      return new Element;
   }

   static void set(DataElement& element, std::string const& bytes)
   {
      dynamic_cast<Element&>(element).set(valueOf(bytes));
   }

   static void assign(DataElement& element, std::string const& bytes)
   {
      dynamic_cast<Element&>(element) = Element(valueOf(bytes));
   }

   static std::shared_ptr<void> bind(DataElement& element, std::string const& bytes)
   {
      auto const variable = std::make_shared<Value>(valueOf(bytes));
      dynamic_cast<Element&>(element).setDataPointer(variable.get());
      return variable;
   }

   static void store(void* variable, std::string const& bytes)
   {
      *static_cast<Value*>(variable) = valueOf(bytes);
   }
};

// Has no variable outside; its get() and set() are made up.
template <>
struct Access<Triple, std::string> {
   static DataElement* make()
   {
      return new Triple;
   }

   static void set(DataElement& element, std::string const& bytes)
   {
      dynamic_cast<Triple&>(element).value = bytes;
   }
};

struct LeafClass {
   std::string name;
   unsigned int bytes; // of a character, if it is a string
   unsigned int boundary;
   DataElement* (*make)();
   void (*set)(DataElement&, std::string const&);
   void (*assign)(DataElement&, std::string const&);
   std::shared_ptr<void> (*bind)(DataElement&, std::string const&);
   void (*store)(void*, std::string const&);

   bool isString() const
   {
      return bytes < 4 && boundary == 4;
   }
};

#define LEAF_CLASS(Name, Value, bytes, boundary)                                                   \
   {#Name, bytes, boundary, Access<Name, Value>::make, Access<Name, Value>::set,                   \
         Access<Name, Value>::assign, Access<Name, Value>::bind, Access<Name, Value>::store},

LeafClass const LEAVES[] = {
      LEAF_CLASS(HLAoctet, Octet, 1, 1)                // the discriminants' class
      LEAF_CLASS(HLAASCIIchar, char, 1, 1)             //
      LEAF_CLASS(HLAbyte, char, 1, 1)                  //
      LEAF_CLASS(HLAunicodeChar, wchar_t, 2, 2)        //
      LEAF_CLASS(HLAinteger16BE, Integer16, 2, 2)      //
      LEAF_CLASS(HLAinteger16LE, Integer16, 2, 2)      //
      LEAF_CLASS(HLAoctetPairBE, OctetPair, 2, 2)      //
      LEAF_CLASS(HLAoctetPairLE, OctetPair, 2, 2)      //
      LEAF_CLASS(HLAboolean, bool, 4, 4)               //
      LEAF_CLASS(HLAinteger32BE, Integer32, 4, 4)      //
      LEAF_CLASS(HLAinteger32LE, Integer32, 4, 4)      //
      LEAF_CLASS(HLAfloat32BE, float, 4, 4)            //
      LEAF_CLASS(HLAfloat32LE, float, 4, 4)            //
      LEAF_CLASS(HLAinteger64BE, Integer64, 8, 8)      //
      LEAF_CLASS(HLAinteger64LE, Integer64, 8, 8)      //
      LEAF_CLASS(HLAfloat64BE, double, 8, 8)           //
      LEAF_CLASS(HLAfloat64LE, double, 8, 8)           //
      LEAF_CLASS(HLAASCIIstring, std::string, 1, 4)    //
      LEAF_CLASS(HLAunicodeString, std::wstring, 2, 4) //
      {"WideInteger", 4, 8, [] { return static_cast<DataElement*>(new WideInteger); },
            Access<HLAinteger32BE, Integer32>::set, Access<HLAinteger32BE, Integer32>::assign,
            Access<HLAinteger32BE, Integer32>::bind, Access<HLAinteger32BE, Integer32>::store},
      {"Triple", 3, 3, Access<Triple, std::string>::make, Access<Triple, std::string>::set, nullptr,
            nullptr, nullptr},
};
std::size_t const LEAF_COUNT = sizeof LEAVES / sizeof LEAVES[0];

// ---- Bytes

std::size_t aligned(std::size_t index, std::size_t boundary)
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
   std::size_t count = buffer[index] < 0 ? ~static_cast<std::size_t>(0) : 0;
   for (std::size_t i = index; i < index + 4; ++i) {
      count = count << 8 | static_cast<unsigned char>(buffer[i]);
   }
   return count;
}

std::string randomBytes(Random& random, std::size_t count)
{
   std::string bytes;
   while (bytes.size() < count) {
      bytes += static_cast<char>(random());
   }
   return bytes;
}

std::string randomContent(LeafClass const& leaf, Random& random)
{
   if (leaf.isString()) {
      // Now and then a long one: characters may be encoded in pieces.
      std::size_t const count = below(random, below(random, 50) == 0 ? 2000 : 6);
      std::string bytes;
      appendCount(bytes, count);
      return bytes + randomBytes(random, leaf.bytes * count);
   }
   if (leaf.name == "HLAboolean") {
      return std::string("\0\0\0", 3) + static_cast<char>(below(random, 2));
   }
   return randomBytes(random, leaf.bytes);
}

std::string opaque(std::string const& data)
{
   std::string bytes;
   appendCount(bytes, data.size());
   return bytes + data;
}

unsigned int variantBoundary(Shape const& shape)
{
   unsigned int largest = 1;
   for (std::size_t i = 1; i < shape.parts.size(); ++i) {
      largest = std::max(largest, boundaryOf(shape.parts[i]));
   }
   return largest;
}

// The number of the part that the discriminant selects, or 0.
std::size_t selected(Shape const& shape)
{
   std::size_t const part = static_cast<unsigned char>(shape.parts[0].content[0]) + 1U;
   return part < shape.parts.size() && shape.parts[part].kind != Shape::NOTHING ? part : 0;
}

bool hasVariants(Shape const& shape)
{
   return std::any_of(shape.parts.begin() + 1, shape.parts.end(),
         [](Shape const& part) { return part.kind != Shape::NOTHING; });
}

std::size_t decodeLeaf(Shape& shape, std::string const& buffer, std::size_t index)
{
   LeafClass const& leaf = LEAVES[shape.leaf];
   if (index >= buffer.size() || buffer.size() - index < leaf.boundary) {
      throw leaf.name == "Triple" ? std::wstring(L"no triple") : OUT_OF_BOUNDS;
   }
   std::size_t bytes = leaf.bytes;
   if (leaf.isString()) {
      std::size_t const count = countAt(buffer, index);
      if (count > buffer.size() - index) {
         throw ARRAY_BOUNDS;
      }
      bytes = 4 + leaf.bytes * count;
   }
   shape.content = buffer.substr(index, bytes);
   shape.content.resize(bytes); // a string's count may promise more than there is
   if (leaf.name == "HLAboolean" && shape.content != std::string("\0\0\0\1", 4)) {
      shape.content.assign(4, '\0');
   } else if (leaf.name == "WideInteger") {
      shape.content[3] ^= 1;
      shape.variable.reset(); // it sets the value
   }
   return index + bytes;
}

std::size_t decodeOpaque(Shape& shape, std::string const& buffer, std::size_t index)
{
   if (buffer.size() < index + 4) {
      throw std::wstring(L"HLAopaqueData cannot decode (indata too short)");
   }
   std::size_t const count = countAt(buffer, index);
   if (count > buffer.size() || index + 4 + count > buffer.size()) {
      throw ARRAY_BOUNDS;
   }
   if (shape.variable && count > shape.room) {
      throw std::wstring(L"Insufficient external storage");
   }
   shape.content = buffer.substr(index, 4 + count);
   return index + 4 + count;
}

void decodeCount(Shape& shape, std::string const& buffer, std::size_t& index)
{
   index = aligned(index, 4);
   std::wstring const tooShort = L"HLAvariableArray cannot decode (indata too short)";
   if (index + 4 > buffer.size()) {
      throw tooShort;
   }
   std::size_t const count = countAt(buffer, index);
   index += 4;
   if (count > buffer.size() || index + count > buffer.size()) {
      throw tooShort;
   }
   shape.parts.resize(count, shape.prototype[0]);
}

// ---- Changes

template <class Element>
Element& own(Shape const& shape)
{
   return dynamic_cast<Element&>(*shape.own);
}

bool isSameType(Shape const& left, Shape const& right)
{
   return left.kind == right.kind && left.leaf == right.leaf;
}

// The library holds the part by pointer, or a clone.
Shape held(Shape const& part, bool byPointer)
{
   return byPointer ? part : cloned(part);
}

template <class Composite>
void append(Shape& shape, Shape const& part, bool byPointer,
      void (Composite::*add)(DataElement const&), void (Composite::*addPointer)(DataElement*))
{
   byPointer ? (own<Composite>(shape).*addPointer)(part.own.get())
             : (own<Composite>(shape).*add)(*part.own);
   shape.parts.push_back(held(part, byPointer));
}

template <class Composite>
void replace(Shape& shape, std::size_t index, Shape const& part, bool byPointer,
      std::wstring const& refusal)
{
   std::wstring const failure = failureOf([&] {
      byPointer ? own<Composite>(shape).setElementPointer(index, part.own.get())
                : own<Composite>(shape).set(index, *part.own);
   });
   EXPECT_EQ(refusal, failure);
   if (refusal.empty()) {
      shape.parts[index] = held(part, byPointer);
   }
}

void setVariant(Shape& shape, std::size_t index, Shape const& part, bool byPointer)
{
   HLAvariantRecord& record = own<HLAvariantRecord>(shape);
   HLAoctet const key(static_cast<Octet>(index - 1));
   bool const isNew = shape.parts[index].kind == Shape::NOTHING;
   bool const isRefused = !isNew && !isSameType(shape.parts[index], part);
   if (isRefused) {
      byPointer = true; // a clone that is refused is never released
   }
   std::wstring const failure = failureOf([&] {
      byPointer     ? record.setVariantPointer(key, part.own.get())
            : isNew ? record.addVariant(key, *part.own)
                    : record.setVariant(key, *part.own);
   });
   EXPECT_EQ(isRefused ? L"Non-matching type" : L"", failure);
   if (!isRefused) {
      shape.parts[index] = held(part, byPointer);
   }
}

void changeLeaf(Shape& shape, Random& random)
{
   LeafClass const& leaf = LEAVES[shape.leaf];
   std::string const bytes = randomContent(leaf, random);
   std::size_t const way = leaf.bind == nullptr ? 0 : below(random, 4);
   shape.content = bytes;
   if (way == 3 && shape.variable) {
      leaf.store(shape.variable.get(), bytes);
   } else if (way >= 2) {
      shape.variable = leaf.bind(*shape.own, bytes);
   } else {
      (way == 1 ? leaf.assign : leaf.set)(*shape.own, bytes);
      shape.variable.reset();
   }
}

void changeOpaque(Shape& shape, Random& random)
{
   std::string const data = randomBytes(random, below(random, 6));
   HLAopaqueData& element = own<HLAopaqueData>(shape);
   shape.room = data.size() + below(random, 3);
   if (below(random, 2) == 0) {
      std::shared_ptr<char> const memory(new char[shape.room + 1], std::default_delete<char[]>());
      std::copy(data.begin(), data.end(), memory.get());
      Octet* pointer = memory.get();
      element.setDataPointer(&pointer, shape.room, data.size());
      shape.variable = memory;
   } else {
      element = HLAopaqueData(data.data(), data.size());
      shape.variable.reset();
   }
   EXPECT_EQ(shape.variable ? shape.room : data.size(), element.bufferLength());
   shape.content = opaque(data);
}

// A part of the type that is there already, or of any.
Shape partFor(Shape const& shape, std::size_t index, Random& random, int depth)
{
   bool const fits = index < shape.parts.size() && shape.parts[index].kind != Shape::NOTHING
         && below(random, 4) != 0;
   return randomShape(random, depth - 1, fits ? &shape.parts[index] : nullptr);
}

void changeVariant(Shape& shape, Random& random, int depth)
{
   if (below(random, 3) == 0) {
      shape.parts[0].content[0] = static_cast<char>(below(random, shape.parts.size() + 1));
      own<HLAvariantRecord>(shape).setDiscriminant(HLAoctet(shape.parts[0].content[0]));
      return;
   }
   std::size_t const index = 1 + below(random, shape.parts.size() - 1);
   setVariant(shape, index, partFor(shape, index, random, depth), below(random, 2) == 0);
}

void changeArray(Shape& shape, Random& random, int depth)
{
   bool const isFixed = shape.kind == Shape::FIXED_ARRAY;
   bool const byPointer = below(random, 2) == 0;
   std::size_t const index = below(random, shape.parts.size() + 1);
   if (!isFixed && below(random, 2) == 0) {
      append(shape, randomShape(random, depth - 1, &shape.prototype[0]), byPointer,
            &HLAvariableArray::addElement, &HLAvariableArray::addElementPointer);
      return;
   }
   Shape const part = partFor(shape, index, random, depth);
   bool const isInside = index < shape.parts.size();
   Shape const& model = isFixed && isInside ? shape.parts[0] : isFixed ? part : shape.prototype[0];
   std::wstring const refusal = !isInside ? ARRAY_BOUNDS
         : isSameType(model, part)        ? std::wstring()
                                          : L"Element doesn't match prototype";
   isFixed ? replace<HLAfixedArray>(shape, index, part, byPointer, refusal)
           : replace<HLAvariableArray>(shape, index, part, byPointer, refusal);
}

void changeRecord(Shape& shape, Random& random, int depth)
{
   bool const byPointer = below(random, 2) == 0;
   std::size_t const index = below(random, shape.parts.size() + 1);
   Shape const part = partFor(shape, index, random, depth);
   if (index == shape.parts.size()) {
      append(shape, part, byPointer, &HLAfixedRecord::appendElement,
            &HLAfixedRecord::appendElementPointer);
   } else {
      bool const fits = isSameType(shape.parts[index], part);
      replace<HLAfixedRecord>(shape, index, part, byPointer, fits ? L"" : L"Non-matching type");
   }
}

// ---- Making

void makeOwn(Shape& shape, Random& random, int depth)
{
   if (shape.kind == Shape::LEAF) {
      shape.own.reset(LEAVES[shape.leaf].make());
   } else if (shape.kind == Shape::OPAQUE) {
      shape.own = std::make_shared<HLAopaqueData>();
   } else if (shape.kind == Shape::RECORD) {
      shape.own = std::make_shared<HLAfixedRecord>();
   } else if (shape.kind == Shape::VARIANT) {
      shape.parts.resize(4);
      shape.parts[0].kind = Shape::LEAF;
      shape.parts[0].content.assign(1, '\1');
      shape.own = std::make_shared<HLAvariantRecord>(HLAoctet('\1'));
   } else {
      Shape const prototype = randomShape(random, depth - 1);
      if (shape.kind == Shape::FIXED_ARRAY) {
         std::size_t const many = below(random, 20) == 0 ? 600 : 4; // may be encoded in pieces
         shape.parts.resize(below(random, depth == 1 ? many : 4), cloned(prototype));
         shape.own = std::make_shared<HLAfixedArray>(*prototype.own, shape.parts.size());
      } else {
         shape.prototype.push_back(cloned(prototype));
         shape.own = std::make_shared<HLAvariableArray>(*prototype.own);
      }
   }
}

void changeOnce(Shape& shape, Random& random, int depth)
{
   switch (shape.kind) {
   case Shape::LEAF:
      return changeLeaf(shape, random);
   case Shape::OPAQUE:
      return changeOpaque(shape, random);
   case Shape::RECORD:
      return changeRecord(shape, random, depth);
   case Shape::VARIANT:
      return changeVariant(shape, random, depth);
   default:
      return changeArray(shape, random, depth);
   }
}

// Assigns the element to another one of its class, or to itself: all of the target are clones then.
template <class Composite>
void assign(Shape& shape, bool toItself)
{
   Composite& element = own<Composite>(shape);
   if (toItself) {
      Composite const& same = element;
      element = same;
   } else {
      std::unique_ptr<DataElement> const other(element.clone().release());
      element = dynamic_cast<Composite const&>(*other);
   }
   std::shared_ptr<DataElement> const kept = shape.own;
   shape = cloned(shape);
   shape.own = kept;
}

void assignOnce(Shape& shape, bool toItself)
{
   if (shape.kind == Shape::RECORD) {
      assign<HLAfixedRecord>(shape, toItself);
   } else if (shape.kind == Shape::FIXED_ARRAY) {
      assign<HLAfixedArray>(shape, toItself);
   } else if (shape.kind == Shape::VARIANT) {
      assign<HLAvariantRecord>(shape, toItself);
   }
}

} // namespace

std::size_t below(Random& random, std::size_t limit)
{
   return random() % limit;
}

Shape cloned(Shape const& shape)
{
   Shape clone = shape;
   clone.own.reset();
   clone.variable.reset();
   for (Shape& part : clone.parts) {
      part = cloned(part);
   }
   return clone;
}

Shape randomShape(Random& random, int depth, Shape const* like)
{
   Shape shape;
   std::size_t const kinds = depth <= 0 ? 2 : 6;
   shape.kind = like != nullptr ? like->kind : static_cast<Shape::Kind>(below(random, kinds));
   if (shape.kind == Shape::LEAF) {
      shape.leaf = like != nullptr ? like->leaf : static_cast<int>(below(random, LEAF_COUNT));
   }
   makeOwn(shape, random, depth);
   for (std::size_t i = 1 + below(random, 4); i > 0; --i) {
      changeOnce(shape, random, depth);
   }
   return shape;
}

void change(Shape& shape, Random& random, int depth)
{
   std::size_t const way = below(random, 8);
   std::vector<Shape*> parts; // that the caller may reach
   for (Shape& part : shape.parts) {
      if (part.own) {
         parts.push_back(&part);
      }
   }
   if (way < 4 && !parts.empty()) {
      change(*parts[below(random, parts.size())], random, depth - 1);
   } else if (way == 4) {
      assignOnce(shape, below(random, 2) == 0);
   } else if (way == 5) {
      std::string bytes;
      encodeShape(shape, bytes);
      if (!bytes.empty()) {
         bytes[below(random, bytes.size())] = static_cast<char>(random() % 4);
         bytes.resize(bytes.size() - below(random, 2));
      }
      decodeBoth(shape, bytes, 0);
   } else {
      changeOnce(shape, random, depth);
   }
}

unsigned int boundaryOf(Shape const& shape)
{
   if (shape.kind == Shape::NOTHING) {
      return 1;
   }
   if (shape.kind == Shape::LEAF) {
      return LEAVES[shape.leaf].boundary;
   }
   bool const counts = shape.kind == Shape::OPAQUE || shape.kind == Shape::VARIABLE_ARRAY;
   unsigned int largest = counts ? 4 : 1;
   for (Shape const& part : shape.parts.empty() ? shape.prototype : shape.parts) {
      largest = std::max(largest, boundaryOf(part));
   }
   return largest;
}

void encodeShape(Shape const& shape, std::string& buffer)
{
   buffer.resize(aligned(buffer.size(), boundaryOf(shape)));
   if (shape.kind == Shape::VARIANT) {
      buffer += shape.parts[0].content;
      if (hasVariants(shape)) {
         buffer.resize(aligned(buffer.size(), variantBoundary(shape)));
      }
      if (selected(shape) != 0) {
         encodeShape(shape.parts[selected(shape)], buffer);
      }
      return;
   }
   if (shape.kind == Shape::VARIABLE_ARRAY) {
      appendCount(buffer, shape.parts.size());
   }
   buffer += shape.content;
   for (Shape const& part : shape.parts) {
      encodeShape(part, buffer);
   }
}

std::size_t decodeShape(Shape& shape, std::string const& buffer, std::size_t index)
{
   if (shape.kind == Shape::LEAF) {
      return decodeLeaf(shape, buffer, index);
   }
   if (shape.kind == Shape::OPAQUE) {
      return decodeOpaque(shape, buffer, index);
   }
   if (shape.kind == Shape::VARIANT) {
      index = decodeShape(shape.parts[0], buffer, index);
      std::size_t const part = selected(shape);
      return part == 0
            ? index
            : decodeShape(shape.parts[part], buffer, aligned(index, variantBoundary(shape)));
   }
   if (shape.kind == Shape::VARIABLE_ARRAY) {
      decodeCount(shape, buffer, index);
   }
   for (Shape& part : shape.parts) {
      index = decodeShape(part, buffer, aligned(index, boundaryOf(part)));
   }
   return index;
}

// As from an aligned start for each element: a Triple, which no other boundary is a multiple of,
// may lie otherwise in truth.
std::size_t lengthOf(Shape const& shape)
{
   if (shape.kind == Shape::VARIANT) {
      std::size_t const length = hasVariants(shape) ? variantBoundary(shape) : 1;
      std::size_t const part = selected(shape);
      return part == 0 ? length : length + lengthOf(shape.parts[part]);
   }
   std::size_t length = shape.kind == Shape::VARIABLE_ARRAY ? 4 : shape.content.size();
   for (Shape const& part : shape.parts) {
      length = aligned(length, boundaryOf(part)) + lengthOf(part);
   }
   return length;
}

void decodeBoth(Shape& shape, std::string const& bytes, std::size_t index)
{
   SCOPED_TRACE(hex(bytes.data(), bytes.size()));
   std::wstring expected;
   std::size_t expectedEnd = 0, end = 0;
   bool const asBlock = index == 0 && bytes.size() % 2 == 0;
   std::wstring const failure = failureOf([&] {
      if (asBlock) {
         shape.own->decode(VariableLengthData(bytes.data(), bytes.size()));
      } else {
         end = shape.own->decodeFrom(std::vector<Octet>(bytes.begin(), bytes.end()), index);
      }
   });
   try {
      expectedEnd = decodeShape(shape, bytes, index);
   } catch (std::wstring const& message) {
      expected = message;
   }
   EXPECT_EQ(expected, failure);
   EXPECT_EQ(asBlock ? 0 : expectedEnd, end);
}

void expectSame(Shape const& shape, DataElement const& element)
{
   std::string expected;
   encodeShape(shape, expected);
   expected.resize(lengthOf(shape)); // the block has the length that is told
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(element.encode()));
   EXPECT_EQ(expected.size(), element.getEncodedLength());
   EXPECT_EQ(boundaryOf(shape), element.getOctetBoundary());
   expected.assign(expected.size() % 11, '\x55');
   std::vector<Octet> buffer(expected.begin(), expected.end());
   encodeShape(shape, expected);
   element.encodeInto(buffer);
   EXPECT_EQ(hex(expected.data(), expected.size()), hex(buffer.data(), buffer.size()));
}
