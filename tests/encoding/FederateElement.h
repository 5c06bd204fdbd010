// Element classes as a federate writes them.
#ifndef tests_encoding_FederateElement_h
#define tests_encoding_FederateElement_h

#include <RTI/encoding/BasicDataElements.h>

// Three bytes at a boundary of three, and a count of the objects that are alive.
class Triple : public rti1516e::DataElement {
public:
   explicit Triple(std::string const& three = "...") : value(three)
   {
      ++alive;
   }

   Triple(Triple const& rhs) : DataElement(rhs), value(rhs.value)
   {
      ++alive;
   }

   Triple& operator=(Triple const&) = default;

   ~Triple()
   {
      --alive;
   }

   std::auto_ptr<DataElement> clone() const override
   {
      newestClone = new Triple(*this);
      return std::auto_ptr<DataElement>(newestClone);
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
      while (buffer.size() % 3 != 0) {
         buffer.push_back(0);
      }
      buffer.insert(buffer.end(), value.begin(), value.end());
   }

   void decode(rti1516e::VariableLengthData const& data)
         RTI_THROW((rti1516e::EncoderException)) override
   {
      value.assign(static_cast<char const*>(data.data()), 3);
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

   std::string value;
   static int alive;
   static Triple* newestClone;
};

// Tells more bytes than it writes.
class Braggart : public Triple {
public:
   std::auto_ptr<DataElement> clone() const override
   {
      return std::auto_ptr<DataElement>(new Braggart(*this));
   }

   std::size_t getEncodedLength() const RTI_THROW((rti1516e::EncoderException)) override
   {
      return 100;
   }
};

// A scalar that stands at multiples of 8 and adds 1 to what it decodes.
class WideInteger : public rti1516e::HLAinteger32BE {
public:
   explicit WideInteger(int value = 0) : HLAinteger32BE(value) {}

   std::auto_ptr<DataElement> clone() const override
   {
      return std::auto_ptr<DataElement>(new WideInteger(get()));
   }

   std::size_t decodeFrom(std::vector<rti1516e::Octet> const& buffer, std::size_t index)
         RTI_THROW((rti1516e::EncoderException)) override
   {
      std::size_t const next = HLAinteger32BE::decodeFrom(buffer, index);
      set(get() + 1);
      return next;
   }

   unsigned int getOctetBoundary() const override
   {
      return 8;
   }
};

#endif
