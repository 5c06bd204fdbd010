// Where the scalars live that an array or a record has cloned: side by side, and their records
// apart from their objects, so that encoding goes through the records alone.
#ifndef encoding_ScalarMemory_h
#define encoding_ScalarMemory_h

#include "encoding/ScalarCodec.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace rti1516e {

// A stack of cells in blocks that stay where they are.
class ScalarMemory {
public:
   struct Place {
      ScalarCell* records;
      ScalarCell* objects;
      std::size_t count;
   };

   // A block for so many scalars, if the last one is full.
   void reserve(std::size_t size)
   {
      if (_blocks.empty() || _blocks.back().used == _blocks.back().size) {
         _blocks.push_back({std::unique_ptr<ScalarCell[]>(new ScalarCell[2 * size]), size, 0});
      }
   }

   // Takes cells for so many scalars, or for as many of them as lie in a row. New blocks hold twice
   // what the one before held, and at least a number.
   Place take(std::size_t wanted, std::size_t atLeast)
   {
      std::size_t const doubled = _blocks.empty() ? 0 : 2 * _blocks.back().size;
      reserve(std::max({wanted, doubled, atLeast}));
      Block& block = _blocks.back();
      std::size_t const count = std::min(wanted, block.size - block.used);
      ScalarCell* const records = block.cells.get() + block.used;
      block.used += count;
      return {records, records + block.size, count};
   }

   // Gives back all that was taken behind the records up to end; all there is if that is null.
   void giveBackBehind(ScalarCell const* end)
   {
      while (!_blocks.empty() && !_blocks.back().holds(end)) {
         _blocks.pop_back();
      }
      if (!_blocks.empty()) {
         _blocks.back().used = static_cast<std::size_t>(end - _blocks.back().cells.get());
      }
   }

private:
   // The records, then the objects.
   struct Block {
      bool holds(ScalarCell const* end) const
      {
         return end > cells.get() && end <= cells.get() + size;
      }

      std::unique_ptr<ScalarCell[]> cells;
      std::size_t size;
      std::size_t used;
   };

   std::vector<Block> _blocks;
};

} // namespace rti1516e

#endif
