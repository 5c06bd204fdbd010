// The time library of a federate with a kind of time of its own. It takes the place of
// libfedtime1516e.
#include "TickTime.h"

using namespace rti1516e;

namespace {

long long const lastTick = 1000000;

class TickTimeFactory : public LogicalTimeFactory {
public:
   std::auto_ptr<LogicalTime> makeInitial() RTI_THROW((InternalError)) override
   {
      return std::auto_ptr<LogicalTime>(new TickTime);
   }

   std::auto_ptr<LogicalTime> makeFinal() RTI_THROW((InternalError)) override
   {
      return std::auto_ptr<LogicalTime>(new TickTime(lastTick));
   }

   std::auto_ptr<LogicalTimeInterval> makeZero() RTI_THROW((InternalError)) override
   {
      return std::auto_ptr<LogicalTimeInterval>(new TickInterval);
   }

   std::auto_ptr<LogicalTimeInterval> makeEpsilon() RTI_THROW((InternalError)) override
   {
      return std::auto_ptr<LogicalTimeInterval>(new TickInterval(1));
   }

   std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return decoded<LogicalTime, TickTime>(data);
   }

   std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t size)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return decoded<LogicalTime, TickTime>(VariableLengthData(buffer, size));
   }

   std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return decoded<LogicalTimeInterval, TickInterval>(data);
   }

   std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(void* buffer, size_t size)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      return decoded<LogicalTimeInterval, TickInterval>(VariableLengthData(buffer, size));
   }

   std::wstring getName() const override
   {
      return L"TickTime";
   }

private:
   template <class Base, class Value>
   static std::auto_ptr<Base> decoded(VariableLengthData const& data)
   {
      std::auto_ptr<Base> value(new Value);
      value->decode(data);
      return value;
   }
};

} // namespace

template <class Base, class Refused>
Base& Ticks<Base, Refused>::operator+=(LogicalTimeInterval const& addend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   count += dynamic_cast<TickInterval const&>(addend).count;
   return *this;
}

template <class Base, class Refused>
Base& Ticks<Base, Refused>::operator-=(LogicalTimeInterval const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTimeInterval))
{
   count -= dynamic_cast<TickInterval const&>(subtrahend).count;
   return *this;
}

template class Ticks<LogicalTime, InvalidLogicalTime>;
template class Ticks<LogicalTimeInterval, InvalidLogicalTimeInterval>;

void TickTime::setInitial()
{
   count = 0;
}

bool TickTime::isInitial() const
{
   return count == 0;
}

void TickTime::setFinal()
{
   count = lastTick;
}

bool TickTime::isFinal() const
{
   return count == lastTick;
}

void TickInterval::setZero()
{
   count = 0;
}

bool TickInterval::isZero() const
{
   return count == 0;
}

void TickInterval::setEpsilon()
{
   count = 1;
}

bool TickInterval::isEpsilon() const
{
   return count == 1;
}

void TickInterval::setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
      RTI_THROW((IllegalTimeArithmetic, InvalidLogicalTime))
{
   count = dynamic_cast<TickTime const&>(minuend).count
         - dynamic_cast<TickTime const&>(subtrahend).count;
}

std::auto_ptr<LogicalTimeFactory> LogicalTimeFactoryFactory::makeLogicalTimeFactory(
      std::wstring const& implementationName)
{
   if (implementationName != L"TickTime") {
      return HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory(implementationName);
   }
   return std::auto_ptr<LogicalTimeFactory>(new TickTimeFactory);
}
