#include "tools/tarn1516e-check/Json.h"

#include <cstdio>

namespace check {

namespace {

unsigned byteAt(std::string const& bytes, std::size_t place)
{
   return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
}

} // namespace

// The first byte tells the length. The second one's bounds are narrower after some of them, so that
// no character has two forms and none is a surrogate or above U+10FFFF.
std::size_t characterAt(std::string const& bytes, std::size_t place)
{
   unsigned const first = byteAt(bytes, place);
   std::size_t const length = first < 0x80 ? 1
         : first >= 0xc2 && first < 0xe0   ? 2
         : first >= 0xe0 && first < 0xf0   ? 3
         : first >= 0xf0 && first < 0xf5   ? 4
                                           : 0;
   for (std::size_t i = 1; i < length; ++i) {
      unsigned const byte = byteAt(bytes, place + i);
      bool const isSecond = i == 1;
      unsigned const lowest = !isSecond ? 0x80 : first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
      unsigned const highest = !isSecond ? 0xbf
            : first == 0xed              ? 0x9f
            : first == 0xf4              ? 0x8f
                                         : 0xbf;
      if (byte < lowest || byte > highest) {
         return 0;
      }
   }
   return length;
}

namespace json {

std::string text(std::string const& bytes)
{
   std::string quoted = "\"";
   for (std::size_t place = 0; place < bytes.size();) {
      std::size_t const length = characterAt(bytes, place);
      unsigned const first = byteAt(bytes, place);
      if (length == 0) {
         quoted += "\\ufffd";
      } else if (first < 0x20 || first == 0x7f) {
         char escape[8];
         std::snprintf(escape, sizeof escape, "\\u%04x", first);
         quoted += escape;
      } else if (first == '"' || first == '\\') {
         quoted += {'\\', bytes[place]};
      } else {
         quoted.append(bytes, place, length);
      }
      place += length > 0 ? length : 1;
   }
   return quoted + "\"";
}

std::string textOrNull(std::string const& bytes)
{
   return bytes.empty() ? "null" : text(bytes);
}

std::string list(std::vector<std::string> const& values, std::string const& indent)
{
   std::string lines = "[";
   for (std::string const& value : values) {
      lines += lines.size() > 1 ? ",\n" : "\n";
      lines += indent;
      lines += "   ";
      lines += value;
   }
   if (!values.empty()) {
      lines += "\n";
      lines += indent;
   }
   lines += "]";
   return lines;
}

} // namespace json

} // namespace check
