// What was sent, what arrived of it, and everything that the demonstration prints.
#ifndef harbour_Ledger_h
#define harbour_Ledger_h

#include "Values.h"

#include <map>
#include <mutex>
#include <string>

// Shared by all federates of the process. Everything sent must arrive once, unchanged.
class Ledger {
public:
   void say(std::wstring const& federate, std::wstring const& text);

   // For messages that carry none.
   static long long const noTime = -1;

   // A message is known by the tag that travels with it.
   void sent(std::wstring const& tag, long long time, Ship const& ship);
   void sent(std::wstring const& tag, long long time, Signal const& signal);
   void arrived(std::wstring const& tag, long long time, Ship const& ship);
   void arrived(std::wstring const& tag, long long time, Signal const& signal);

   // Something that should not be.
   void differs(std::wstring const& what);

   // A federate can't go on, and nobody needs to wait for it.
   void failed(std::wstring const& why);
   bool hasFailed();

   // Prints the comparison; whether all was as it should be.
   bool close();

private:
   template <class Value>
   struct Entry {
      long long time;
      Value value;
      int arrivals;
   };

   template <class Value>
   using Entries = std::map<std::wstring, Entry<Value>>;

   template <class Value>
   void arrived(
         Entries<Value>& entries, std::wstring const& tag, long long time, Value const& value);

   template <class Value>
   void count(Entries<Value> const& entries);

   std::mutex _mutex;
   Entries<Ship> _ships;
   Entries<Signal> _signals;
   int _compared = 0;
   int _differences = 0;
   bool _hasFailed = false;
};

#endif
