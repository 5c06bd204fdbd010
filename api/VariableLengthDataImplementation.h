// The record behind a VariableLengthData, for the library's own loops over many values.
#ifndef api_VariableLengthDataImplementation_h
#define api_VariableLengthDataImplementation_h

#include <RTI/VariableLengthData.h>

#include <cstring>

namespace rti1516e {

class VariableLengthDataImplementation {
public:
   VariableLengthDataImplementation() : data(nullptr), size(0), deleter(nullptr), owned(false) {}

   VariableLengthDataImplementation(void const* inData, unsigned long inSize)
         : data(new char[inSize]),
           size(inSize),
           deleter(nullptr),
           owned(true)
   {
      if (inSize != 0) {
         std::memcpy(data, inData, inSize);
      }
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
   bool owned;
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
