// What an operation of the encoding helpers throws.
#ifndef tests_encoding_Failures_h
#define tests_encoding_Failures_h

#include <RTI/encoding/EncodingExceptions.h>
#include <string>

// The message of the EncoderException, or "" if the operation throws none.
template <class Operation>
std::wstring failureOf(Operation operation)
{
   try {
      operation();
   } catch (rti1516e::EncoderException const& failure) {
      return failure.what();
   }
   return std::wstring();
}

std::wstring const OUT_OF_BOUNDS = L"Index is out of bounds";
std::wstring const ARRAY_BOUNDS = L"Array index out of bounds";

#endif
