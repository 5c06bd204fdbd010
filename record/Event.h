// One call of a service or a callback: an event at its begin, with the arguments, and one at its
// end, with what came of it. Nothing here throws but what the call itself throws.
#ifndef record_Event_h
#define record_Event_h

#include "record/Recording.h"
#include "record/Text.h"
#include "record/Values.h"
#include <RTI/Exception.h>

#include <cstddef>
#include <exception>

namespace tarn1516e {
namespace record {

class Event {
public:
   // The ambassador is told by its number.
   template <std::size_t CategorySize, std::size_t NameSize>
   Event(int ambassador, char const (&category)[CategorySize], char const (&name)[NameSize])
         : _ambassador(ambassador)
   {
      if (begin()) {
         _text.put(",\"ph\":\"B\",\"cat\":\"");
         _text.put(category);
         _text.put("\",\"name\":\"");
         _text.put(name);
         _text.put("\",\"args\":{\"rti\":");
         _text.number(static_cast<long long>(ambassador));
         _hasMembers = true;
      }
   }

   ~Event();

   template <std::size_t Size, class Value>
   void argument(char const (&name)[Size], Value const& value)
   {
      if (_log != nullptr) {
         member(name, value);
      }
   }

   // Makes the call. An exception without a text meets no handler here, as without the recorder.
   template <class Call>
   void run(Call const& call)
   {
      publish("}}");
      try {
         call();
         _hasReturned = true;
      } catch (rti1516e::Exception const& e) {
         fail(e);
         throw;
      } catch (std::exception const& e) {
         fail(e);
         throw;
      }
   }

   // A result, or what a parameter took.
   template <std::size_t Size, class Value>
   void outcome(char const (&name)[Size], Value const& value)
   {
      if (beginEnd()) {
         member(name, value);
      }
   }

private:
   Event(Event const&) = delete;
   Event& operator=(Event const&) = delete;

   template <std::size_t Size, class Value>
   void member(char const (&name)[Size], Value const& value)
   {
      if (!_hasMembers) {
         _text.put(",\"args\":{");
      } else {
         _text.put(',');
      }
      _hasMembers = true;
      _text.put('"');
      _text.put(name);
      _text.put("\":");
      show(Place{_text, _ambassador, _shownBytes}, value);
   }

   bool begin();
   bool beginEnd();
   void publishEnd();
   void fail(rti1516e::Exception const& exception);
   void fail(std::exception const& exception);

   // Closes what is being built.
   template <std::size_t Size>
   void publish(char const (&end)[Size])
   {
      if (_log != nullptr) {
         _text.put(end);
         std::size_t const used = _log->used.load(std::memory_order_relaxed);
         _log->used.store(used + _text.size(), std::memory_order_release);
         _log->isBuilding = false;
         _log = nullptr;
      }
   }

   int _ambassador;
   ThreadLog* _log = nullptr; // while an event is being built
   Text _text;
   std::size_t _shownBytes = 0; // of a value
   bool _hasMembers = false;    // of its arguments
   bool _hasBegun = false;
   bool _hasReturned = false;
   bool _hasEnded = false;
};

} // namespace record
} // namespace tarn1516e

#endif
