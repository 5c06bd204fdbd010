// Element classes as a federate writes them.
#ifndef tests_encoding_FederateElement_h
#define tests_encoding_FederateElement_h

#include <RTI/encoding/BasicDataElements.h>

// Three bytes at a boundary of three, and a count of the objects that are alive.
class Triple : public rti1516e::DataElement {
public:
   explicit Triple(std::string const& three = "...") : value(three)
   {
      ++alive();
   }

   Triple(Triple const& rhs) : DataElement(rhs), value(rhs.value)
   {
      ++alive();
   }

   Triple& operator=(Triple const&) = default;

   ~Triple()
   {
      --alive();
   }

   std::auto_ptr<DataElement> clone() const override
   {
      newestClone() = new Triple(*this);
      return std::auto_ptr<DataElement>(newestClone());
   }

   rti1516e::VariableLengthData encode() const RTI_THROW((rti1516e::EncoderException)) override
   {
      return rti1516e::VariableLengthData(value.data(), 3);
   }

   void encode(rti1516e::VariableLengthData& data) const
         RTI_THROW((rti1516e::EncoderException)) override
   {
      data = encode();
   }

   void encodeInto(std::vector<rti1516e::Octet>& buffer) const
         RTI_THROW((rti1516e::EncoderException)) override
   {
      buffer.resize((buffer.size() + 2) / 3 * 3);
      buffer.insert(buffer.end(), value.begin(), value.end());
   }

   void decode(rti1516e::VariableLengthData const& data)
         RTI_THROW((rti1516e::EncoderException)) override
   {
      char const* const bytes = static_cast<char const*>(data.data());
      decodeFrom(std::vector<rti1516e::Octet>(bytes, bytes + data.size()), 0);
   }

   std::size_t decodeFrom(std::vector<rti1516e::Octet> const& buffer, std::size_t index)
         RTI_THROW((rti1516e::EncoderException)) override
   {
      if (index + 3 > buffer.size()) {
         throw rti1516e::EncoderException(L"no triple");
      }
      value.assign(&buffer[index], 3);
      return index + 3;
   }

   std::size_t getEncodedLength() const RTI_THROW((rti1516e::EncoderException)) override
   {
      return 3;
   }

   unsigned int getOctetBoundary() const override
   {
      return 3;
   }

   static int& alive()
   {
      static int count = 0;
      return count;
   }

   static Triple*& newestClone()
   {
      static Triple* newest = nullptr;
      return newest;
   }

   std::string value;
};

// A scalar that stands at multiples of 8 and turns the lowest bit of what it decodes.
class WideInteger : public rti1516e::HLAinteger32BE {
public:
   using HLAinteger32BE::HLAinteger32BE;
   using HLAinteger32BE::operator=;

   std::auto_ptr<DataElement> clone() const override
   {
      return std::auto_ptr<DataElement>(new WideInteger(get()));
   }

   std::size_t decodeFrom(std::vector<rti1516e::Octet> const& buffer, std::size_t index)
         RTI_THROW((rti1516e::EncoderException)) override
   {
      std::size_t const next = HLAinteger32BE::decodeFrom(buffer, index);
      set(get() ^ 1);
      return next;
   }

   unsigned int getOctetBoundary() const override
   {
      return 8;
   }
};

// A scalar anywhere, with a byte behind it.
class Packed : public rti1516e::HLAinteger16BE {
public:
   using HLAinteger16BE::HLAinteger16BE;

   std::auto_ptr<DataElement> clone() const override
   {
      return std::auto_ptr<DataElement>(new Packed(get()));
   }

   std::size_t getEncodedLength() const RTI_THROW((rti1516e::EncoderException)) override
   {
      return 3;
   }

   unsigned int getOctetBoundary() const override
   {
      return 1;
   }
};

#endif
