// The record behind a VariableLengthData, for the library's own loops over many values.
#ifndef api_VariableLengthDataImplementation_h
#define api_VariableLengthDataImplementation_h

#include "api/SpareMemory.h"

#include <RTI/VariableLengthData.h>

#include <cstring>
#include <new>

namespace rti1516e {

// Copied bytes lie behind the record, in one allocation with it; all others lie where the caller
// has them. All objects without bytes share one of two records, which nobody writes to.
class VariableLengthDataImplementation {
public:
   VariableLengthDataImplementation() : VariableLengthDataImplementation(nullptr, false) {}

   VariableLengthDataImplementation(VariableLengthDataImplementation const&) = delete;
   VariableLengthDataImplementation& operator=(VariableLengthDataImplementation const&) = delete;

   static VariableLengthDataImplementation* make()
   {
      return make(sizeof(VariableLengthDataImplementation));
   }

   // The shared record of objects that never had bytes. Their data() is null.
   static VariableLengthDataImplementation* none()
   {
      return const_cast<VariableLengthDataImplementation*>(&NONE);
   }

   // A record with a copy of the bytes. Copies of no bytes share one whose data() is not null.
   static VariableLengthDataImplementation* makeCopy(void const* inData, unsigned long inSize)
   {
      if (inSize == 0) {
         return const_cast<VariableLengthDataImplementation*>(&COPY_OF_NONE);
      }
      unsigned long const bytes = sizeof(VariableLengthDataImplementation) + inSize;
      if (bytes < inSize) { // more than there are addresses
         throw std::bad_alloc();
      }
      VariableLengthDataImplementation* const record = make(bytes);
      record->room = static_cast<unsigned int>(inSize < MOST_ROOM ? inSize : MOST_ROOM);
      record->setCopy(inData, inSize);
      return record;
   }

   // Whether a copy of so many bytes can take the place of those behind the record. Few bytes do
   // not hold on to much memory.
   bool hasRoomFor(unsigned long bytes) const
   {
      return bytes != 0 && bytes <= room && room <= 2 * bytes + 64;
   }

   // The bytes may lie behind the record already.
   void setCopy(void const* inData, unsigned long inSize)
   {
      data = this + 1;
      size = inSize;
      std::memmove(data, inData, inSize);
   }

   // Frees the bytes, if they are to be freed, and the record.
   void destroy()
   {
      if (shared) {
         return;
      }
      if (owned && deleter != nullptr) {
         deleter(data);
      } else if (owned) {
         delete[] static_cast<char*>(data);
      }
      SpareMemory::free(this, sizeof(*this) + room);
   }

   void* data;
   unsigned long size;
   void (*deleter)(void*); // null: the bytes are an array of char
   unsigned int room;      // bytes behind the record, counted up to MOST_ROOM
   bool owned;             // whether the bytes must be freed apart from the record
   bool shared;

private:
   static VariableLengthDataImplementation* make(unsigned long bytes)
   {
      return new (SpareMemory::allocate(bytes)) VariableLengthDataImplementation;
   }

   static unsigned int const MOST_ROOM = 0xFFFFFFFF;
   static VariableLengthDataImplementation const NONE;
   static VariableLengthDataImplementation const COPY_OF_NONE;

   constexpr VariableLengthDataImplementation(void* inData, bool isShared)
         : data(inData),
           size(0),
           deleter(nullptr),
           room(0),
           owned(false),
           shared(isShared)
   {
   }
};

// Values by the thousand are held and looked at: a larger record is felt.
static_assert(sizeof(VariableLengthDataImplementation) == 32, "bytes of a record");

class VariableLengthDataFriend {
public:
   static VariableLengthDataImplementation const& getImplementation(VariableLengthData const& data)
   {
      return *data._implementation;
   }

   // A record that is shared or has no room must not be written to.
   static VariableLengthDataImplementation& getImplementation(VariableLengthData& data)
   {
      return *data._implementation;
   }
};

} // namespace rti1516e

#endif
