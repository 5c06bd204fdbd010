// Reads the directory of a zip archive.
#include "tools/tarn1516e-check/Archive.h"

#include <fstream>
#include <sstream>

namespace check {

namespace {

// All numbers of the format are unsigned, least significant byte first. Of the end record, which
// lies at the end of the file before a comment:
//
//    offset  size  content
//    0       4     endMark
//    10      2     number of entries
//    16      4     offset of the first entry
//
// Of an entry:
//
//    0       4     entryMark
//    28      2     length of its name
//    30      2     length of the extra field
//    32      2     length of the comment
//    46            name, extra field, comment
unsigned long const endMark = 0x06054b50;
unsigned long const entryMark = 0x02014b50;
std::size_t const endSize = 22;
std::size_t const entrySize = 46;

class Bytes {
public:
   explicit Bytes(std::string const& path) : _content(load(path)) {}

   std::size_t size() const
   {
      return _content.size();
   }

   bool has(std::size_t offset, std::size_t count) const
   {
      return offset <= _content.size() && count <= _content.size() - offset;
   }

   unsigned long number(std::size_t offset, int count) const
   {
      unsigned long value = 0;
      for (int i = count - 1; i >= 0; --i) {
         value = value << 8 | static_cast<unsigned char>(_content[offset + std::size_t(i)]);
      }
      return value;
   }

   std::string text(std::size_t offset, std::size_t count) const
   {
      return _content.substr(offset, count);
   }

private:
   static std::string load(std::string const& path)
   {
      std::ifstream file(path, std::ios::binary);
      std::ostringstream content;
      content << file.rdbuf();
      return content.str();
   }

   std::string _content;
};

// Offset of the end record, or the file's size if there is none.
std::size_t findEnd(Bytes const& bytes)
{
   for (std::size_t back = endSize; back <= bytes.size() && back <= endSize + 0xffff; ++back) {
      if (bytes.number(bytes.size() - back, 4) == endMark) {
         return bytes.size() - back;
      }
   }
   return bytes.size();
}

} // namespace

Archive readArchive(std::string const& path)
{
   Bytes const bytes(path);
   Archive archive;
   std::size_t const end = findEnd(bytes);
   if (end == bytes.size()) {
      return archive;
   }
   archive.isArchive = true;
   std::size_t offset = bytes.number(end + 16, 4);
   for (unsigned long left = bytes.number(end + 10, 2); left > 0; --left) {
      if (!bytes.has(offset, entrySize) || bytes.number(offset, 4) != entryMark) {
         break;
      }
      std::size_t const nameSize = bytes.number(offset + 28, 2);
      if (!bytes.has(offset + entrySize, nameSize)) {
         break;
      }
      archive.names.insert(bytes.text(offset + entrySize, nameSize));
      offset += entrySize + nameSize + bytes.number(offset + 30, 2) + bytes.number(offset + 32, 2);
   }
   return archive;
}

} // namespace check
