#include "Ledger.h"

#include <iomanip>
#include <iostream>

typedef std::lock_guard<std::mutex> Guard;

void Ledger::say(std::wstring const& federate, std::wstring const& text)
{
   Guard const guard(_mutex);
   std::wcout << std::left << std::setw(7) << federate << L" | " << text << std::endl;
}

void Ledger::sent(std::wstring const& tag, long long time, Ship const& ship)
{
   Guard const guard(_mutex);
   _ships[tag] = {time, ship, 0};
}

void Ledger::sent(std::wstring const& tag, long long time, Signal const& signal)
{
   Guard const guard(_mutex);
   _signals[tag] = {time, signal, 0};
}

void Ledger::arrived(std::wstring const& tag, long long time, Ship const& ship)
{
   arrived(_ships, tag, time, ship);
}

void Ledger::arrived(std::wstring const& tag, long long time, Signal const& signal)
{
   arrived(_signals, tag, time, signal);
}

template <class Value>
void Ledger::arrived(
      Entries<Value>& entries, std::wstring const& tag, long long time, Value const& value)
{
   std::unique_lock<std::mutex> guard(_mutex);
   typename Entries<Value>::iterator const entry = entries.find(tag);
   if (entry == entries.end()) {
      guard.unlock();
      differs(L"'" + tag + L"' arrived and was never sent");
      return;
   }
   ++_compared;
   ++entry->second.arrivals;
   if (entry->second.time != time || !(entry->second.value == value)) {
      guard.unlock();
      differs(L"'" + tag + L"' arrived changed");
   }
}

void Ledger::differs(std::wstring const& what)
{
   Guard const guard(_mutex);
   ++_differences;
   std::wcout << L"DIFFERS: " << what << std::endl;
}

void Ledger::failed(std::wstring const& why)
{
   differs(why);
   Guard const guard(_mutex);
   _hasFailed = true;
}

bool Ledger::hasFailed()
{
   Guard const guard(_mutex);
   return _hasFailed;
}

template <class Value>
void Ledger::count(Entries<Value> const& entries)
{
   for (typename Entries<Value>::value_type const& entry : entries) {
      if (entry.second.arrivals != 1) {
         differs(L"'" + entry.first + L"' arrived " + std::to_wstring(entry.second.arrivals)
               + L" times");
      }
   }
}

bool Ledger::close()
{
   count(_ships);
   count(_signals);
   std::wcout << _ships.size() + _signals.size() << L" messages sent, " << _compared
              << L" compared on arrival, " << _differences << L" differences" << std::endl;
   return _differences == 0 && _compared > 0;
}
