// The time library of the federation: what it is built to takes the place of the installation's
// libfedtime1516e.so. One function gives the factories, by the name of the kind of time.
#include "ClockTime.h"
#include "TideTime.h"

#include <RTI/LogicalTimeFactory.h>
#include <RTI/time/HLAfloat64TimeFactory.h>

using namespace rti1516e;

RTI_BEGIN_INTERFACE

namespace {

template <class Time, class Interval>
class Factory : public LogicalTimeFactory {
public:
   std::auto_ptr<LogicalTime> makeInitial() RTI_THROW((InternalError)) override
   {
      std::auto_ptr<LogicalTime> time(new Time);
      time->setInitial();
      return time;
   }

   std::auto_ptr<LogicalTime> makeFinal() RTI_THROW((InternalError)) override
   {
      std::auto_ptr<LogicalTime> time(new Time);
      time->setFinal();
      return time;
   }

   std::auto_ptr<LogicalTimeInterval> makeZero() RTI_THROW((InternalError)) override
   {
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);
      interval->setZero();
      return interval;
   }

   std::auto_ptr<LogicalTimeInterval> makeEpsilon() RTI_THROW((InternalError)) override
   {
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);
      interval->setEpsilon();
      return interval;
   }

   std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      std::auto_ptr<LogicalTime> time(new Time);
      time->decode(data);
      return time;
   }

   std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      std::auto_ptr<LogicalTime> time(new Time);
      time->decode(buffer, bufferSize);
      return time;
   }

   std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);
      interval->decode(data);
      return interval;
   }

   std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode)) override
   {
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);
      interval->decode(buffer, bufferSize);
      return interval;
   }

   std::wstring getName() const override
   {
      return Time().implementationName();
   }
};

} // namespace

std::auto_ptr<LogicalTimeFactory> LogicalTimeFactoryFactory::makeLogicalTimeFactory(
      std::wstring const& implementationName)
{
   std::auto_ptr<LogicalTimeFactory> factory;
   if (implementationName == tideTimeName) {
      factory.reset(new Factory<TideTime, TideInterval>);
   } else if (implementationName == HLAfloat64TimeName || implementationName.empty()) {
      factory.reset(new Factory<ClockTime, HLAfloat64Interval>);
   } else {
      factory = HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory(implementationName);
   }
   return factory;
}

RTI_END_INTERFACE
