#include "tests/contract/Wire.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace contract {

namespace {

int octet(char byte)
{
   return static_cast<unsigned char>(byte);
}

std::string bigEndian(std::uint64_t value, int size)
{
   std::string bytes;
   for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
      bytes += static_cast<char>(value >> shift & 0xFF);
   }
   return bytes;
}

} // namespace

Wire& Wire::operator+=(Wire const& other)
{
   bytes += other.bytes;
   surplus += other.surplus;
   return *this;
}

Wire operator+(Wire left, Wire const& right)
{
   return left += right;
}

Wire integer(std::int64_t value)
{
   return Wire{bigEndian(static_cast<std::uint64_t>(value), 4), 0};
}

Wire longInteger(std::uint64_t value)
{
   return Wire{bigEndian(value, 8), 0};
}

Wire text(std::wstring const& value)
{
   Wire wire = integer(static_cast<std::int64_t>(value.size()));
   for (wchar_t const character : value) {
      wire += Wire{bigEndian(static_cast<std::uint64_t>(character), 2), 2};
   }
   return wire;
}

Wire block(std::string const& bytes)
{
   return integer(static_cast<std::int64_t>(bytes.size())) + Wire{bytes, 0};
}

Wire counted(std::vector<Wire> const& elements)
{
   Wire wire = integer(static_cast<std::int64_t>(elements.size()));
   for (Wire const& element : elements) {
      wire += element;
   }
   return wire;
}

std::string frame(int handle, Wire const& fields)
{
   return "\x63\x62\x61\x60" + integer(handle).bytes + fields.bytes + "\x59\x58\x57\x56";
}

std::string difference(std::string const& expected, std::string const& actual)
{
   if (expected == actual) {
      return "";
   }
   std::size_t const shorter = std::min(expected.size(), actual.size());
   std::size_t at = 0;
   while (at < shorter && expected[at] == actual[at]) {
      ++at;
   }
   std::ostringstream told;
   told << "expected " << expected.size() << " bytes, got " << actual.size()
        << "; first difference at byte " << at;
   if (at < shorter) {
      told << ": expected " << std::hex << std::uppercase << std::setfill('0') << std::setw(2)
           << octet(expected[at]) << ", got " << std::setw(2) << octet(actual[at]);
   }
   return told.str();
}

} // namespace contract
