// Frames of callbacks that are fired to be measured.
#include "bench/bridge/Frames.h"

#include <cstdint>
#include <cstring>

namespace {

// The bytes that Java would write.
class Frame {
public:
   explicit Frame(int handle) : _bytes("\x63\x62\x61\x60")
   {
      integer(handle);
   }

   Frame& integer(int value)
   {
      for (int shift = 24; shift >= 0; shift -= 8) {
         _bytes += static_cast<char>(value >> shift & 0xFF);
      }
      return *this;
   }

   Frame& block(std::string const& bytes)
   {
      integer(static_cast<int>(bytes.size()));
      _bytes += bytes;
      return *this;
   }

   std::string end() const
   {
      return _bytes + "\x59\x58\x57\x56";
   }

private:
   std::string _bytes;
};

} // namespace

std::string makeReflection(int handle, int first, int count, std::size_t size)
{
   int const object = 1, receiveOrder = 0, reliable = 1, producer = 2;
   Frame frame(handle);
   frame.integer(object).integer(count);
   for (int attribute = first; attribute != first + count; ++attribute) {
      frame.integer(attribute).block(std::string(size, 'v'));
   }
   frame.block("tag!").integer(receiveOrder).integer(reliable);
   return frame.integer(1).integer(0).integer(producer).end(); // two flags, and the federate
}

std::string makeGrant(int handle, double time)
{
   std::uint64_t bits;
   std::memcpy(&bits, &time, sizeof bits);
   return Frame(handle).integer(static_cast<int>(bits >> 32)).integer(static_cast<int>(bits)).end();
}

std::string makeEmptyFrame(int handle)
{
   return Frame(handle).end();
}
