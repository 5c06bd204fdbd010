// Blocks of bytes as text, so that a table of rows can name them.
#ifndef tests_api_Bytes_h
#define tests_api_Bytes_h

#include <RTI/VariableLengthData.h>
#include <string>

// "00 FF 10" for those three bytes, "" for none.
inline std::string hex(void const* bytes, unsigned long size)
{
   char const digits[] = "0123456789ABCDEF";
   std::string text;
   for (unsigned long i = 0; i != size; ++i) {
      unsigned char const octet = static_cast<unsigned char const*>(bytes)[i];
      text += i == 0 ? "" : " ";
      text += digits[octet >> 4];
      text += digits[octet & 15];
   }
   return text;
}

inline std::string hex(rti1516e::VariableLengthData const& data)
{
   return hex(data.data(), data.size());
}

// The block that hex() gives such a text for.
inline rti1516e::VariableLengthData fromHex(std::string const& text)
{
   std::string bytes;
   for (std::string::size_type i = 0; i < text.size(); i += 3) {
      bytes += static_cast<char>(std::stoi(text.substr(i, 2), nullptr, 16));
   }
   return rti1516e::VariableLengthData(bytes.data(), bytes.size());
}

#endif
