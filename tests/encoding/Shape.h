// A second, plain implementation of the encodings, to hold the library's elements against: a tree
// of shapes that encodes, decodes, fails and is changed as elements of its form must be.
#ifndef tests_encoding_Shape_h
#define tests_encoding_Shape_h

#include <memory>
#include <random>
#include <RTI/encoding/DataElement.h>
#include <string>
#include <vector>

struct Shape {
   enum Kind {
      LEAF, // a scalar, a string or a federate's own element
      OPAQUE,
      FIXED_ARRAY,
      VARIABLE_ARRAY,
      RECORD,
      VARIANT,
      NOTHING // a variant that there is not
   };

   Kind kind = NOTHING;
   int leaf = 0;                 // of a leaf, the index among the classes
   std::string content;          // of leaves and opaque data: the encoded bytes
   std::vector<Shape> parts;     // the elements; of a variant record the discriminant, an HLAoctet,
                                 // and the variants for 0, 1 and so on
   std::vector<Shape> prototype; // of a variable array
   std::size_t room = 0;         // of opaque data in the caller's memory; else 0

   // The caller's element, which the library holds by pointer. Null where it holds a clone.
   std::shared_ptr<rti1516e::DataElement> own;
   std::shared_ptr<void> variable; // what the leaf or the opaque data are bound to
};

typedef std::mt19937 Random;

std::size_t below(Random& random, std::size_t limit);

// A shape of any kind, or of the same type as the other one, with an element of its own.
Shape randomShape(Random& random, int depth, Shape const* like = nullptr);

// Changes the shape and its own element in one of all the ways that there are for it. What the
// element throws otherwise than the model is a failure of the test.
void change(Shape& shape, Random& random, int depth);

// The same, with own elements no more, as a clone of the library's has them.
Shape cloned(Shape const& shape);

unsigned int boundaryOf(Shape const& shape);
std::size_t lengthOf(Shape const& shape);
void encodeShape(Shape const& shape, std::string& buffer);

// Returns the index behind the value; throws the message of the failure as a std::wstring. What is
// decoded before a failure stays.
std::size_t decodeShape(Shape& shape, std::string const& buffer, std::size_t index);

// Decodes the bytes by element and by shape, and compares where they end and what they throw.
void decodeBoth(Shape& shape, std::string const& bytes, std::size_t index);

// Whether the element encodes what the shape does: behind some bytes, as a block, and in its length
// and boundary.
void expectSame(Shape const& shape, rti1516e::DataElement const& element);

#endif
