#include "Inbox.h"

#include <chrono>
#include <stdexcept>

Inbox::Inbox(std::wstring const& name, rti1516e::CallbackModel model, Ledger& ledger)
      : _name(name),
        _model(model),
        _ledger(ledger)
{
}

void Inbox::happened(std::wstring const& what, std::function<void()> const& change)
{
   _ledger.say(_name, what);
   std::lock_guard<std::mutex> const lock(_mutex);
   ++_callbacks;
   change();
   _changed.notify_all();
}

// An evoked federate gets its callbacks inside this; an immediate one is told that they came.
void Inbox::waitUntil(Ambassador& rti, std::function<bool()> const& condition)
{
   std::chrono::steady_clock::time_point const deadline =
         std::chrono::steady_clock::now() + std::chrono::seconds(30);
   std::unique_lock<std::mutex> lock(_mutex);
   while (!condition()) {
      if (_model == rti1516e::HLA_EVOKED) {
         lock.unlock();
         rti->evokeMultipleCallbacks(0.01, 0.1);
         lock.lock();
      } else {
         _changed.wait_for(lock, std::chrono::milliseconds(100));
      }
      if (_ledger.hasFailed()) {
         throw std::runtime_error("gave up, because another federate has failed");
      }
      if (std::chrono::steady_clock::now() > deadline) {
         throw std::runtime_error("waited for 30 seconds in vain");
      }
   }
}

int Inbox::callbacks() const
{
   return _callbacks;
}
