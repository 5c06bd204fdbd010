// A value inside an element or in the caller's variable, and how it is encoded and decoded.
#ifndef encoding_BasicValue_h
#define encoding_BasicValue_h

#include "api/SpareMemory.h"
#include "encoding/Encoder.h"
#include "encoding/ScalarCodec.h"

#include <utility>

namespace rti1516e {

// What an element is made of and what its members do. Where a boundary or a length is given, it is
// the one that the element tells, which may be that of a federate's subclass.
template <class ElementCoding>
class BasicValue {
public:
   typedef ElementCoding Coding;
   typedef typename Coding::Value Value;

   BasicValue() : _external(nullptr), _value() {}
   explicit BasicValue(Value const& value) : _external(nullptr), _value(value) {}
   explicit BasicValue(Value* external) : _external(external), _value() {}

   // Federates make elements that end with the statement.
   static void* operator new(std::size_t size)
   {
      return SpareMemory::allocate(size);
   }

   static void operator delete(void* memory, std::size_t size)
   {
      SpareMemory::free(memory, size);
   }

   Value const& get() const
   {
      return _external != nullptr ? *_external : _value;
   }

   // Ends the binding.
   void set(Value value)
   {
      _external = nullptr;
      _value = std::move(value);
   }

   void bind(Value* external)
   {
      _external = external;
   }

   // Ends the binding first: assigned to itself it holds the default value.
   void assign(BasicValue const& rhs)
   {
      *this = BasicValue();
      set(rhs.get());
   }

   std::size_t length() const
   {
      return static_cast<std::size_t>(Coding::size(get()));
   }

   VariableLengthData encode() const
   {
      typename Coding::Bytes bytes(get());
      return VariableLengthData(bytes.data(), bytes.size());
   }

   void encode(VariableLengthData& data) const
   {
      typename Coding::Bytes bytes(get());
      data.setData(bytes.data(), bytes.size());
   }

   // A length beyond the value's own is filled with zeros.
   void encodeInto(std::vector<Octet>& buffer, unsigned int boundary, std::size_t length) const
   {
      std::size_t const end =
            buffer.size() + Encoder::paddingSizeInBytes(buffer.size(), boundary) + length;
      Coding::append(buffer, boundary, get());
      if (buffer.size() < end) {
         buffer.resize(end);
      }
   }

   void decode(VariableLengthData const& data, unsigned int boundary)
   {
      Coding::decode(data.data(), bytesLeft(data.size(), 0, atLeast(boundary)), decoded());
   }

   void decodeFrom(std::vector<Octet> const& buffer, std::size_t index, unsigned int boundary)
   {
      unsigned long const length = bytesLeft(buffer.size(), index, atLeast(boundary));
      Coding::decode(&buffer[index], length, decoded());
   }

   // Where a decoded value goes: the binding stays.
   Value& decoded()
   {
      return _external != nullptr ? *_external : _value;
   }

private:
   static unsigned int atLeast(unsigned int boundary)
   {
      return boundary < Coding::boundary ? Coding::boundary : boundary;
   }

   Value* _external; // the caller's
   Value _value;
};

} // namespace rti1516e

#endif
