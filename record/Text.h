// A cursor that writes JSON into a buffer of fixed size. What a caller brings, names and values, is
// cut when room gets short; what an event is built of always finds room.
#ifndef record_Text_h
#define record_Text_h

#include <cstddef>
#include <cstring>
#include <string>

namespace tarn1516e {
namespace record {

class Text {
public:
   // The last bytes of the buffer are kept for the event's own parts: the names of its arguments,
   // which the rows know, and its brackets.
   static std::size_t const reserve = 2048;

   Text() : _begin(nullptr), _at(nullptr), _limit(nullptr) {}
   Text(char* begin, char* end) : _begin(begin), _at(begin), _limit(end - reserve) {}

   // Characters of the event itself.
   void put(char c)
   {
      *_at++ = c;
   }

   void put(char const* text, std::size_t size)
   {
      std::memcpy(_at, text, size);
      _at += size;
   }

   template <std::size_t Size>
   void put(char const (&literal)[Size])
   {
      put(literal, Size - 1);
   }

   void put(std::string const& text)
   {
      put(text.data(), text.size());
   }

   // Handles and sizes have few digits as a rule.
   void number(long long value)
   {
      if (value >= 0 && value < 10) {
         put(static_cast<char>('0' + value));
      } else {
         putNumber(value);
      }
   }

   // Nanoseconds as microseconds with three decimals, as a trace has its times.
   void time(unsigned long long nanoseconds);

   void number(double value);

   // Whether so many more bytes of names and values have room.
   bool hasRoom(std::size_t bytes) const
   {
      return static_cast<std::size_t>(_limit - _at) >= bytes && _at < _limit;
   }

   // In quotes, as UTF-8; what is too long ends with an ellipsis.
   void quoted(std::wstring const& text);
   void quoted(char const* text);

   // The same without the quotes.
   void escaped(wchar_t c)
   {
      if (c >= L' ' && c < 0x80 && c != L'"' && c != L'\\') {
         put(static_cast<char>(c));
      } else {
         escapedSpecial(c);
      }
   }

   std::size_t size() const
   {
      return static_cast<std::size_t>(_at - _begin);
   }

private:
   void escapedSpecial(long c);
   void putNumber(long long value);
   void putMillionths(long long value);

   char* _begin;
   char* _at;
   char* _limit;
};

} // namespace record
} // namespace tarn1516e

#endif
