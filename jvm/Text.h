// Texts of start-up and its failures: formatting, and the two widths of character.
#ifndef jvm_Text_h
#define jvm_Text_h

#include <initializer_list>
#include <string>

namespace tarn1516e {

// As printf builds it, cut at 2047 characters.
std::string format(char const* pattern, ...) __attribute__((format(printf, 1, 2)));
std::wstring wformat(wchar_t const* pattern, ...);

// The pattern with each %s in it replaced by the next of the values, whole.
std::string filled(char const* pattern, std::initializer_list<std::string> values);

// Character by character, with no encoding: the low 8 bits out, and back as ISO 8859-1.
std::string wstring2string(std::wstring const& wide);
std::wstring string2wstring(std::string const& narrow);

} // namespace tarn1516e

#endif
