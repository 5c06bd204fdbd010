// Numbers and strings as JSON has them, without a stream and without an allocation.
#include "record/Text.h"

#include <cmath>
#include <cstdio>

namespace tarn1516e {
namespace record {

namespace {

std::size_t const mostCharacters = 200; // of a string

char const hexDigits[] = "0123456789abcdef";

char const pairs[] = //
      "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
      "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
      "8081828384858687888990919293949596979899";

// Writes the digits before `end`, two at a time, and gives the first of them.
char* digits(unsigned long long value, char* end)
{
   while (value >= 100) {
      end -= 2;
      std::memcpy(end, pairs + 2 * (value % 100), 2);
      value /= 100;
   }
   if (value >= 10) {
      end -= 2;
      std::memcpy(end, pairs + 2 * value, 2);
   } else {
      *--end = static_cast<char>('0' + value);
   }
   return end;
}

} // namespace

void Text::putNumber(long long value)
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
   // Most have few decimals; these are written without the C library.
   double const millionths = value * 1e6;
   if (std::fabs(millionths) < 1e15 && millionths == std::floor(millionths)) {
      putMillionths(static_cast<long long>(millionths));
      return;
   }
   char buffer[40];
   int const size =
         std::snprintf(buffer, sizeof buffer, std::isfinite(value) ? "%.9g" : "\"%f\"", value);
   put(buffer, static_cast<std::size_t>(size));
}

void Text::putMillionths(long long value)
{
   if (value < 0) {
      put('-');
      value = -value;
   }
   number(value / 1000000);
   value %= 1000000;
   if (value != 0) {
      put('.');
   }
   for (long long place = 100000; value != 0; place /= 10) {
      put(static_cast<char>('0' + value / place));
      value %= place;
   }
}

void Text::quoted(std::wstring const& text)
{
   put('"');
   std::size_t const shown = text.size() < mostCharacters ? text.size() : mostCharacters;
   std::size_t written = 0;
   for (; written < shown && hasRoom(16); ++written) {
      escaped(text[written]);
   }
   if (written < text.size()) {
      put("\xe2\x80\xa6"); // an ellipsis
   }
   put('"');
}

void Text::quoted(char const* text)
{
   put('"');
   for (; *text != '\0' && hasRoom(16); ++text) {
      unsigned char const c = static_cast<unsigned char>(*text);
      escaped(c < 0x80 ? static_cast<wchar_t>(c) : L'?');
   }
   put('"');
}

void Text::escapedSpecial(long c)
{
   if (c < 0 || c > 0x10ffff || (c >= 0xd800 && c < 0xe000)) {
      c = 0xfffd; // no character
   }
   if (c == '"' || c == '\\') {
      put('\\');
      put(static_cast<char>(c));
   } else if (c < 0x20) {
      char const escape[] = {'\\', 'u', '0', '0', hexDigits[c >> 4], hexDigits[c & 15]};
      put(escape, sizeof escape);
   } else if (c < 0x800) {
      put(static_cast<char>(0xc0 | c >> 6));
      put(static_cast<char>(0x80 | (c & 0x3f)));
   } else {
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
