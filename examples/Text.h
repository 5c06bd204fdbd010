// Text from outside the program, as in its arguments.
#ifndef examples_Text_h
#define examples_Text_h

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

// It is in the encoding that the locale tells, once the program has asked for that one:
// std::setlocale(LC_ALL, "").
inline std::wstring wide(std::string const& text)
{
   std::vector<wchar_t> decoded(text.size() + 1);
   std::size_t const length = std::mbstowcs(decoded.data(), text.c_str(), decoded.size());
   if (length == static_cast<std::size_t>(-1)) {
      throw std::invalid_argument("'" + text + "' is not text in the locale's encoding");
   }
   return std::wstring(decoded.data(), length);
}

#endif
