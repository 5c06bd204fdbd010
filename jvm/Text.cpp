// Formatting with a bound, and the two widths of character, without any locale's say.
#include "jvm/Text.h"

#include <cstdarg>
#include <cstdio>
#include <cwchar>

namespace tarn1516e {

namespace {

int const capacity = 2048; // characters, the terminating zero included

} // namespace

std::string format(char const* pattern, ...)
{
   char buffer[capacity] = {};
   va_list arguments;
   va_start(arguments, pattern);
   std::vsnprintf(buffer, capacity, pattern, arguments);
   va_end(arguments);
   return buffer;
}

std::wstring wformat(wchar_t const* pattern, ...)
{
   wchar_t buffer[capacity] = {};
   va_list arguments;
   va_start(arguments, pattern);
   // A text that does not fit is answered with an error; the buffer holds its beginning.
   std::vswprintf(buffer, capacity, pattern, arguments);
   va_end(arguments);
   buffer[capacity - 1] = L'\0';
   return buffer;
}

std::string filled(char const* pattern, std::initializer_list<std::string> values)
{
   std::string text = pattern;
   std::string::size_type place = 0;
   for (std::string const& value : values) {
      place = text.find("%s", place);
      text.replace(place, 2, value);
      place += value.size();
   }
   return text;
}

std::string wstring2string(std::wstring const& wide)
{
   std::string narrow(wide.size(), '\0');
   for (std::string::size_type i = 0; i < wide.size(); ++i) {
      narrow[i] = static_cast<char>(wide[i]);
   }
   return narrow;
}

std::wstring string2wstring(std::string const& narrow)
{
   std::wstring wide(narrow.size(), L'\0');
   for (std::string::size_type i = 0; i < narrow.size(); ++i) {
      wide[i] = static_cast<unsigned char>(narrow[i]);
   }
   return wide;
}

} // namespace tarn1516e
