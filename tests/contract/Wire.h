// The test's own writer of bodies and frames: plain bytes, most significant first, made without
// any of the library's marshalling.
#ifndef tests_contract_Wire_h
#define tests_contract_Wire_h

#include <cstdint>
#include <string>
#include <vector>

namespace contract {

// Bytes that are written, and zeros that a service array has behind the last field for them.
struct Wire {
   std::string bytes;
   std::size_t surplus;

   Wire& operator+=(Wire const& other);

   std::string whole() const
   {
      return bytes + std::string(surplus, '\0');
   }
};

Wire operator+(Wire left, Wire const& right);

Wire integer(std::int64_t value); // the low 32 bits
Wire longInteger(std::uint64_t value);

// A count and that many units of 16 bits; as many bytes again are declared.
Wire text(std::wstring const& value);

// A size and that many bytes.
Wire block(std::string const& bytes);

// A count, then the elements one behind the other.
Wire counted(std::vector<Wire> const& elements);

// What Java hands to a native: the magic words and the handle around the fields.
std::string frame(int handle, Wire const& fields);

// Empty when the arrays are alike; otherwise their lengths and the first byte that differs.
std::string difference(std::string const& expected, std::string const& actual);

} // namespace contract

#endif
