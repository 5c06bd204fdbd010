// Numbers and strings as JSON has them, without a stream and without an allocation.
#include "record/Text.h"

#include <cmath>
#include <cstdio>

namespace tarn1516e {
namespace record {

namespace {

std::size_t const mostCharacters = 200; // of a string

char const hexDigits[] = "0123456789abcdef";

// Writes the digits before `end` and gives the first of them.
char* digits(unsigned long long value, char* end)
{
   do {
      *--end = static_cast<char>('0' + value % 10);
      value /= 10;
   } while (value != 0);
   return end;
}

} // namespace

void Text::number(long long value)
{
   char buffer[24];
   char* const end = buffer + sizeof buffer;
   unsigned long long const magnitude = value < 0 ? 0ULL - static_cast<unsigned long long>(value)
                                                  : static_cast<unsigned long long>(value);
   char* begin = digits(magnitude, end);
   if (value < 0) {
      *--begin = '-';
   }
   put(begin, static_cast<std::size_t>(end - begin));
}

void Text::time(unsigned long long nanoseconds)
{
   number(static_cast<long long>(nanoseconds / 1000));
   unsigned const rest = static_cast<unsigned>(nanoseconds % 1000);
   char const decimals[] = {'.', static_cast<char>('0' + rest / 100),
         static_cast<char>('0' + rest / 10 % 10), static_cast<char>('0' + rest % 10)};
   put(decimals, sizeof decimals);
}

void Text::number(double value)
{
   if (std::isfinite(value) && value == std::floor(value) && std::fabs(value) < 1e15) {
      number(static_cast<long long>(value));
      return;
   }
   char buffer[40];
   int const size =
         std::snprintf(buffer, sizeof buffer, std::isfinite(value) ? "%.9g" : "\"%f\"", value);
   put(buffer, static_cast<std::size_t>(size));
}

void Text::quoted(std::wstring const& text)
{
   put('"');
   std::size_t written = 0;
   for (wchar_t const c : text) {
      if (written++ == mostCharacters || !hasRoom(16)) {
         put("\xe2\x80\xa6"); // an ellipsis
         break;
      }
      escaped(c);
   }
   put('"');
}

void Text::quoted(char const* text)
{
   put('"');
   for (; *text != '\0' && hasRoom(16); ++text) {
      escaped(static_cast<unsigned char>(*text) < 0x80 ? static_cast<wchar_t>(*text) : L'?');
   }
   put('"');
}

void Text::escaped(wchar_t wide)
{
   unsigned long c = static_cast<unsigned long>(wide);
   if (c >= 0x20 && c < 0x80) {
      if (c == '"' || c == '\\') {
         put('\\');
      }
      put(static_cast<char>(c));
   } else if (c < 0x20) {
      char const escape[] = {'\\', 'u', '0', '0', hexDigits[c >> 4], hexDigits[c & 15]};
      put(escape, sizeof escape);
   } else if (c < 0x800) {
      put(static_cast<char>(0xc0 | c >> 6));
      put(static_cast<char>(0x80 | (c & 0x3f)));
   } else {
      if (c > 0x10ffff || (c >= 0xd800 && c < 0xe000)) {
         c = 0xfffd; // no character
      }
      if (c < 0x10000) {
         put(static_cast<char>(0xe0 | c >> 12));
      } else {
         put(static_cast<char>(0xf0 | c >> 18));
         put(static_cast<char>(0x80 | (c >> 12 & 0x3f)));
      }
      put(static_cast<char>(0x80 | (c >> 6 & 0x3f)));
      put(static_cast<char>(0x80 | (c & 0x3f)));
   }
}

} // namespace record
} // namespace tarn1516e
