// The record behind a VariableLengthData, for the library's own loops over many values.
#ifndef api_VariableLengthDataImplementation_h
#define api_VariableLengthDataImplementation_h

#include <RTI/VariableLengthData.h>

#include <cstring>
#include <new>

namespace rti1516e {

// Copied bytes lie behind the record, in one allocation with it; all others lie where the caller
// has them.
class VariableLengthDataImplementation {
public:
   VariableLengthDataImplementation() : data(nullptr), size(0), deleter(nullptr), owned(false) {}

   // A new record with a copy of the bytes.
   static VariableLengthDataImplementation* makeCopy(void const* inData, unsigned long inSize)
   {
      unsigned long const room = sizeof(VariableLengthDataImplementation) + inSize;
      if (room < inSize) { // more than there are addresses
         throw std::bad_alloc();
      }
      VariableLengthDataImplementation* const record =
            new (::operator new(room)) VariableLengthDataImplementation;
      record->data = record + 1;
      record->size = inSize;
      if (inSize != 0) {
         std::memcpy(record->data, inData, inSize);
      }
      return record;
   }

   // Without a size, which would be that of a record alone.
   static void operator delete(void* record)
   {
      ::operator delete(record);
   }

   VariableLengthDataImplementation(VariableLengthDataImplementation const&) = delete;
   VariableLengthDataImplementation& operator=(VariableLengthDataImplementation const&) = delete;

   ~VariableLengthDataImplementation()
   {
      if (!owned) {
         return;
      }
      if (deleter != nullptr) {
         deleter(data);
      } else {
         delete[] static_cast<char*>(data);
      }
   }

   void* data;
   unsigned long size;
   void (*deleter)(void*); // null: the bytes are an array of char
   bool owned;             // whether the bytes must be freed apart from the record
};

class VariableLengthDataFriend {
public:
   static VariableLengthDataImplementation const& getImplementation(VariableLengthData const& data)
   {
      return *data._implementation;
   }
};

} // namespace rti1516e

#endif
