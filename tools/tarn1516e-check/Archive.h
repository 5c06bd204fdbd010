// The names in a jar, and no more of it.
#ifndef tarn1516e_check_Archive_h
#define tarn1516e_check_Archive_h

#include <set>
#include <string>

namespace check {

struct Archive {
   bool isArchive = false;
   std::set<std::string> names; // as they stand in the archive, with '/'
};

// The directory of a zip archive. A file that is none, or can't be read, gives no names.
Archive readArchive(std::string const& path);

} // namespace check

#endif
