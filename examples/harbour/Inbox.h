// The callbacks of one federate: how many came, and how the federate waits for what they change.
#ifndef harbour_Inbox_h
#define harbour_Inbox_h

#include "../Ambassador.h"
#include "Ledger.h"

#include <condition_variable>
#include <functional>
#include <mutex>

class Inbox {
public:
   Inbox(std::wstring const& name, rti1516e::CallbackModel model, Ledger& ledger);

   // Every callback comes by here, on whatever thread it is. No condition is looked at meanwhile.
   void happened(
         std::wstring const& what, std::function<void()> const& change = [] {});

   // Until the condition holds. Throws when another federate has failed, or after a long time.
   void waitUntil(Ambassador& rti, std::function<bool()> const& condition);

   int callbacks() const;

private:
   std::wstring const _name;
   rti1516e::CallbackModel const _model;
   Ledger& _ledger;
   std::mutex _mutex;
   std::condition_variable _changed;
   int _callbacks = 0;
};

#endif
