// A kind of time that a federate brings itself: ticks of a clock, counted from 0 in 8 bytes, most
// significant first.
#ifndef fedtime_TickTime_h
#define fedtime_TickTime_h

#include <RTI/LogicalTimeFactory.h>

// Time and interval are one class template: a count, and the base that says which of the two.
template <class Base, class Refused>
class Ticks : public Base {
public:
   explicit Ticks(long long ticks = 0) : count(ticks) {}

   Base& operator=(Base const& value) RTI_THROW((Refused)) override
   {
      count = of(value);
      return *this;
   }

   Base& operator+=(rti1516e::LogicalTimeInterval const& addend) RTI_THROW(
         (rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTimeInterval)) override;
   Base& operator-=(rti1516e::LogicalTimeInterval const& subtrahend) RTI_THROW(
         (rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTimeInterval)) override;

   bool operator>(Base const& value) const RTI_THROW((Refused)) override
   {
      return count > of(value);
   }

   bool operator<(Base const& value) const RTI_THROW((Refused)) override
   {
      return count < of(value);
   }

   bool operator==(Base const& value) const RTI_THROW((Refused)) override
   {
      return count == of(value);
   }

   bool operator>=(Base const& value) const RTI_THROW((Refused)) override
   {
      return count >= of(value);
   }

   bool operator<=(Base const& value) const RTI_THROW((Refused)) override
   {
      return count <= of(value);
   }

   rti1516e::VariableLengthData encode() const override
   {
      char bytes[8];
      encode(bytes, sizeof bytes);
      return rti1516e::VariableLengthData(bytes, sizeof bytes);
   }

   size_t encode(void* buffer, size_t) const RTI_THROW((rti1516e::CouldNotEncode)) override
   {
      for (int i = 0; i < 8; ++i) {
         static_cast<char*>(buffer)[i] = static_cast<char>(count >> (56 - 8 * i));
      }
      return 8;
   }

   size_t encodedLength() const override
   {
      return 8;
   }

   void decode(rti1516e::VariableLengthData const& data)
         RTI_THROW((rti1516e::InternalError, rti1516e::CouldNotDecode)) override
   {
      read(data.data(), data.size());
   }

   void decode(void* buffer, size_t size)
         RTI_THROW((rti1516e::InternalError, rti1516e::CouldNotDecode)) override
   {
      read(buffer, size);
   }

   std::wstring toString() const override
   {
      return std::to_wstring(count) + L" ticks";
   }

   std::wstring implementationName() const override
   {
      return L"TickTime";
   }

   long long count;

protected:
   static long long of(Base const& value)
   {
      return dynamic_cast<Ticks const&>(value).count;
   }

private:
   void read(void const* bytes, size_t size)
   {
      if (size != 8) {
         throw rti1516e::CouldNotDecode(L"ticks take 8 bytes");
      }
      count = 0;
      for (int i = 0; i < 8; ++i) {
         count = count << 8 | static_cast<unsigned char const*>(bytes)[i];
      }
   }
};

class TickInterval
      : public Ticks<rti1516e::LogicalTimeInterval, rti1516e::InvalidLogicalTimeInterval> {
public:
   using Ticks::Ticks;

   void setZero() override;
   bool isZero() const override;
   void setEpsilon() override;
   bool isEpsilon() const override;
   void setToDifference(
         rti1516e::LogicalTime const& minuend, rti1516e::LogicalTime const& subtrahend)
         RTI_THROW((rti1516e::IllegalTimeArithmetic, rti1516e::InvalidLogicalTime)) override;
};

class TickTime : public Ticks<rti1516e::LogicalTime, rti1516e::InvalidLogicalTime> {
public:
   using Ticks::Ticks;

   void setInitial() override;
   bool isInitial() const override;
   void setFinal() override;
   bool isFinal() const override;
};

#endif
