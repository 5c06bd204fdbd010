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

   // Takes cells for so many scalars, or for as many of them as lie in a row.
   Place take(std::size_t wanted)
   {
      if (_blocks.empty() || _blocks.back().used == _blocks.back().size) {
         addBlock(wanted);
      }
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

   // A block at least as large as all before it, and one for a few scalars at the beginning.
   void addBlock(std::size_t wanted)
   {
      std::size_t size = _blocks.empty() ? 0 : 2 * _blocks.back().size;
      if (wanted == 1) {
         size = std::max(size, std::size_t(8));
      }
      size = std::max(size, wanted);
      _blocks.push_back({std::unique_ptr<ScalarCell[]>(new ScalarCell[2 * size]), size, 0});
   }

   std::vector<Block> _blocks;
};

} // namespace rti1516e

#endif
