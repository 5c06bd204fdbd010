// A second, plain implementation of the encodings, to hold the library's elements against: a tree
// of shapes, each with its bytes, that encodes, decodes and fails as elements of its form must.
#ifndef tests_encoding_Shape_h
#define tests_encoding_Shape_h

#include <memory>
#include <random>
#include <RTI/encoding/DataElement.h>
#include <string>
#include <vector>

struct Shape {
   enum Kind {
      SCALAR,
      NARROW,
      WIDE,
      OPAQUE,
      FIXED_ARRAY,
      VARIABLE_ARRAY,
      RECORD,
      VARIANT
   };

   Kind kind;

   // Scalars: the index among the classes. Others: nothing.
   int scalar;

   // Scalars: the encoded bytes. Strings and opaque data: the bytes behind the count.
   std::string content;

   // Arrays and records: the elements. Variants: the discriminant, an HLAoctet, then the variant
   // for each value from 0 on.
   std::vector<Shape> parts;

   // Variable arrays: what new elements are like. Others: empty.
   std::vector<Shape> prototype;
};

typedef std::string Text; // bytes in hex, or a failure's message

Shape scalarShape(int scalar, std::string const& content);
Shape stringShape(Shape::Kind kind, std::string const& content);
Shape arrayShape(Shape const& prototype, std::vector<Shape> const& elements);
Shape sequenceShape(Shape::Kind kind, std::vector<Shape> const& parts);

// Index of a scalar class for scalarShape().
int scalarNamed(std::string const& name);

// A shape of any kind with any values.
Shape randomShape(std::mt19937& random, int depth);

unsigned int boundaryOf(Shape const& shape);
void encodeShape(Shape const& shape, std::string& buffer);

// Returns the index behind the value; throws the message of the failure as a std::wstring. What is
// decoded before a failure stays.
std::size_t decodeShape(Shape& shape, std::string const& buffer, std::size_t index);

// Elements of the library of that form and value. Those that composites hold by pointer are kept
// in the vector: every second one if byPointer.
typedef std::vector<std::unique_ptr<rti1516e::DataElement>> Kept;
std::unique_ptr<rti1516e::DataElement> elementOf(Shape const& shape, bool byPointer, Kept& kept);

#endif
