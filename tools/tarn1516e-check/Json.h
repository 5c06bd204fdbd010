// The little of JSON that the check writes.
#ifndef tarn1516e_check_Json_h
#define tarn1516e_check_Json_h

#include <string>
#include <vector>

namespace check {
namespace json {

// The text in quotes. Bytes that are no UTF-8 become U+FFFD, as in a path of another encoding.
std::string text(std::string const& bytes);

// The same, and null for an empty text.
std::string textOrNull(std::string const& bytes);

// Values that are JSON already, one a line.
std::string list(std::vector<std::string> const& values, std::string const& indent);

} // namespace json

// The length of the UTF-8 character that begins there, 0 if none does.
std::size_t characterAt(std::string const& bytes, std::size_t place);

} // namespace check

#endif
