// How an event begins in its thread's buffer, and how a call ends.
#include "record/Event.h"

namespace tarn1516e {
namespace record {

// An exception of a type without a text passes through here.
Event::~Event()
{
   publish("}}"); // a call that was never made
   if (_hasEnded) {
      return;
   }
   if (beginEnd() && !_hasReturned) {
      _text.put(",\"args\":{\"exception\":\"of another type\"");
      _hasMembers = true;
   }
   publishEnd();
}

void Event::publishEnd()
{
   if (_hasMembers) {
      publish("}}");
   } else {
      publish("}");
   }
}

bool Event::begin()
{
   Recording& recording = Recording::instance();
   ThreadLog* const log = recording.log();
   if (log == nullptr) {
      return false;
   }
   log->isBuilding = true;
   _shownBytes = recording.shownBytes();
   _log = log;
   _text = Text(
         log->buffer + log->used.load(std::memory_order_relaxed), log->buffer + ThreadLog::size);
   _text.put(log->prefix);
   _text.time(recording.now());
   _hasBegun = true;
   return true;
}

// Whether there is an end to write to; the first call begins it.
bool Event::beginEnd()
{
   if (_log == nullptr && _hasBegun && !_hasEnded && begin()) {
      _hasEnded = true;
      _text.put(",\"ph\":\"E\"");
      _hasMembers = false;
   }
   return _log != nullptr;
}

void Event::fail(rti1516e::Exception const& exception)
{
   if (beginEnd()) {
      _text.put(",\"args\":{\"exception\":");
      showClass(_text, typeid(exception));
      _text.put(",\"text\":");
      try {
         _text.quoted(exception.what());
      } catch (...) {
         _text.put("null");
      }
   }
   publish("}}");
}

void Event::fail(std::exception const& exception)
{
   if (beginEnd()) {
      _text.put(",\"args\":{\"exception\":");
      showClass(_text, typeid(exception));
      _text.put(",\"text\":");
      _text.quoted(exception.what());
   }
   publish("}}");
}

} // namespace record
} // namespace tarn1516e
