// What the factories of the standard times have alike, which is all but their constants.
#ifndef time_StandardTimeFactory_h
#define time_StandardTimeFactory_h

#include <RTI/LogicalTimeFactory.h>

// Defines Factory, which makes Time and Interval from a Value. Name is the text of getName().
#define DEFINE_STANDARD_TIME_FACTORY(Factory, Time, Interval, Value, Epsilon, Name)                \
   Factory::Factory() {}                                                                           \
                                                                                                   \
   Factory::~Factory() {}                                                                          \
                                                                                                   \
   std::auto_ptr<LogicalTime> Factory::makeInitial() RTI_THROW((InternalError))                    \
   {                                                                                               \
      return std::auto_ptr<LogicalTime>(new Time);                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTime> Factory::makeFinal() RTI_THROW((InternalError))                      \
   {                                                                                               \
      std::auto_ptr<LogicalTime> time(new Time);                                                   \
      time->setFinal();                                                                            \
      return time;                                                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTimeInterval> Factory::makeZero() RTI_THROW((InternalError))               \
   {                                                                                               \
      return std::auto_ptr<LogicalTimeInterval>(new Interval);                                     \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTimeInterval> Factory::makeEpsilon() RTI_THROW((InternalError))            \
   {                                                                                               \
      return std::auto_ptr<LogicalTimeInterval>(new Interval(Epsilon));                            \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTime> Factory::decodeLogicalTime(VariableLengthData const& data)           \
         RTI_THROW((InternalError, CouldNotDecode))                                                \
   {                                                                                               \
      std::auto_ptr<LogicalTime> time(new Time);                                                   \
      time->decode(data);                                                                          \
      return time;                                                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTime> Factory::decodeLogicalTime(void* buffer, size_t bufferSize)          \
         RTI_THROW((InternalError, CouldNotDecode))                                                \
   {                                                                                               \
      std::auto_ptr<LogicalTime> time(new Time);                                                   \
      time->decode(buffer, bufferSize);                                                            \
      return time;                                                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTimeInterval> Factory::decodeLogicalTimeInterval(                          \
         VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode))                \
   {                                                                                               \
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);                                   \
      interval->decode(data);                                                                      \
      return interval;                                                                             \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<LogicalTimeInterval> Factory::decodeLogicalTimeInterval(                          \
         void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode))               \
   {                                                                                               \
      std::auto_ptr<LogicalTimeInterval> interval(new Interval);                                   \
      interval->decode(buffer, bufferSize);                                                        \
      return interval;                                                                             \
   }                                                                                               \
                                                                                                   \
   std::wstring Factory::getName() const                                                           \
   {                                                                                               \
      return Name;                                                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<Time> Factory::makeLogicalTime(Value value) RTI_THROW((InternalError))            \
   {                                                                                               \
      return std::auto_ptr<Time>(new Time(value));                                                 \
   }                                                                                               \
                                                                                                   \
   std::auto_ptr<Interval> Factory::makeLogicalTimeInterval(Value value)                           \
         RTI_THROW((InternalError))                                                                \
   {                                                                                               \
      return std::auto_ptr<Interval>(new Interval(value));                                         \
   }

#endif
