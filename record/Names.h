// What handles are called, as far as an ambassador's look-ups have shown so far. Finding a name
// takes no lock.
#ifndef record_Names_h
#define record_Names_h

#include <cstddef>
#include <string>

namespace tarn1516e {
namespace record {

// Kinds of handles, as parts of a key.
enum class Kind {
   federate,
   objectClass,
   interactionClass,
   objectInstance,
   attribute,
   parameter,
   dimension,
   region
};

// A name as JSON text, without quotes. It stays for the length of the process, since a reader holds
// no lock.
struct Name {
   unsigned long long key;
   Name const* before; // the one that it replaces
   std::size_t size;
   char text[1]; // and more
};

Name const* findName(int ambassador, Kind kind, int handle);

void learnName(int ambassador, Kind kind, int handle, std::wstring const& name);

} // namespace record
} // namespace tarn1516e

#endif
