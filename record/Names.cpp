// A table of names that only grows. When it is full, later handles go without names.
#include "record/Names.h"

#include "record/Text.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <mutex>

namespace tarn1516e {
namespace record {

namespace {

std::size_t const slots = 65536;
std::size_t const mostProbes = 32;
std::size_t const longestName = 80;      // in characters
std::size_t const mostNames = slots * 4; // with those that were replaced

std::atomic<Name const*> table[slots];
std::mutex mutex;
std::size_t made = 0;

unsigned long long keyOf(int ambassador, Kind kind, int handle)
{
   return static_cast<unsigned long long>(ambassador & 0xffffff) << 40
         | static_cast<unsigned long long>(kind) << 32
         | (static_cast<unsigned long long>(handle) & 0xffffffffULL);
}

// Neighbours stay apart, and so do ambassadors.
std::size_t slotOf(unsigned long long key)
{
   return static_cast<std::size_t>(key * 0x9e3779b97f4a7c15ULL >> 48) % slots;
}

// The name's slot, or the one that it may take, or null.
std::atomic<Name const*>* find(unsigned long long key)
{
   std::size_t slot = slotOf(key);
   for (std::size_t probe = 0; probe < mostProbes; ++probe, slot = (slot + 1) % slots) {
      Name const* const name = table[slot].load(std::memory_order_acquire);
      if (name == nullptr || name->key == key) {
         return &table[slot];
      }
   }
   return nullptr;
}

// Whether a handle has the name already. The text may differ only where it is not plain.
bool isKnown(unsigned long long key, std::wstring const& name)
{
   std::atomic<Name const*>* const slot = find(key);
   Name const* const there = slot != nullptr ? slot->load(std::memory_order_acquire) : nullptr;
   if (there == nullptr || there->size != name.size()) {
      return false;
   }
   for (std::size_t i = 0; i < name.size(); ++i) {
      if (static_cast<wchar_t>(there->text[i]) != name[i]) {
         return false;
      }
   }
   return true;
}

} // namespace

Name const* findName(int ambassador, Kind kind, int handle)
{
   std::atomic<Name const*>* const slot = find(keyOf(ambassador, kind, handle));
   return slot != nullptr ? slot->load(std::memory_order_acquire) : nullptr;
}

void learnName(int ambassador, Kind kind, int handle, std::wstring const& name)
{
   unsigned long long const key = keyOf(ambassador, kind, handle);
   if (isKnown(key, name)) {
      return;
   }
   char buffer[8 * longestName + Text::reserve];
   Text text(buffer, buffer + sizeof buffer);
   for (std::size_t i = 0; i < name.size() && i < longestName; ++i) {
      text.escaped(name[i]);
   }
   std::lock_guard<std::mutex> const guard(mutex);
   std::atomic<Name const*>* const slot = find(key);
   if (slot == nullptr || made == mostNames) {
      return;
   }
   Name const* const there = *slot;
   if (there != nullptr && there->size == text.size()
         && std::memcmp(there->text, buffer, text.size()) == 0) {
      return;
   }
   Name* const entry = static_cast<Name*>(std::malloc(sizeof(Name) + text.size()));
   if (entry == nullptr) {
      return;
   }
   entry->key = key;
   entry->before = there;
   entry->size = text.size();
   std::memcpy(entry->text, buffer, text.size());
   ++made;
   slot->store(entry, std::memory_order_release);
}

} // namespace record
} // namespace tarn1516e
