// Elements in elements, made and changed by chance, against a plain second implementation: what
// they encode and decode, what they refuse, and what becomes of damaged bytes.
#include "tests/encoding/Shape.h"
#include "tests/encoding/FederateElement.h"

#include <gtest/gtest.h>

using namespace rti1516e;

namespace {

// Changes of all kinds between encodings: in the caller's elements and variables, in slots, by
// decoding and by assignment. A clone has no part in what comes later.
TEST(ShapeTest, isKeptThroughEveryChange)
{
   for (unsigned int seed = 0; seed < 1500 && !HasFailure(); ++seed) {
      SCOPED_TRACE("seed " + std::to_string(seed));
      int const alive = Triple::alive();
      {
         Random random(seed);
         Shape shape = randomShape(random, 3);
         for (int i = 0; i < 15 && !HasFailure(); ++i) {
            expectSame(shape, *shape.own);
            Shape const before = cloned(shape);
            std::unique_ptr<DataElement> clone(shape.own->clone().release());
            change(shape, random, 3);
            expectSame(before, *clone);
            if (below(random, 6) == 0) {
               shape = before; // the caller's elements go
               shape.own = std::move(clone);
            }
         }
      }
      EXPECT_EQ(alive, Triple::alive()) << "all clones are released";
   }
}

TEST(ShapeTest, isKeptThroughDamagedBytes)
{
   for (unsigned int seed = 0; seed < 150 && !HasFailure(); ++seed) {
      SCOPED_TRACE("seed " + std::to_string(seed));
      Random random(seed);
      std::string bytes;
      encodeShape(randomShape(random, 3), bytes);
      if (bytes.size() > 60) {
         continue;
      }
      auto const decode = [&](std::string const& damaged, std::size_t index) {
         Random again(seed);
         Shape shape = randomShape(again, 3);
         decodeBoth(shape, damaged, index);
         expectSame(shape, *shape.own);
      };
      for (std::size_t at = 0; at < bytes.size() && !HasFailure(); ++at) {
         decode(bytes.substr(0, at), 0);
         decode(bytes, at);
         decode(bytes, bytes.size() + at);
         for (int const octet : {0, 1, 2, 3, 5, 0x7F, 0x80, 0xFF}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(octet);
            decode(damaged, 0);
         }
      }
   }
}

} // namespace
