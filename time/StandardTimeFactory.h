// What the factories of the standard times have alike, which is all but their constants.
#ifndef time_StandardTimeFactory_h
#define time_StandardTimeFactory_h

#include <RTI/LogicalTimeFactory.h>

namespace rti1516e {

// A new time or interval with the value that the arguments hold, which are those of decode().
template <class Base, class Made, class... Arguments>
std::auto_ptr<Base> decoded(Arguments&... arguments)
{
   std::auto_ptr<Base> made(new Made);
   made->decode(arguments...);
   return made;
}

template <class Time>
std::auto_ptr<LogicalTime> finalTime()
{
   std::auto_ptr<LogicalTime> time(new Time);
   time->setFinal();
   return time;
}

} // namespace rti1516e

// Defines Factory, which makes Time and Interval from a Value. Name is the text of getName().
// clang-format off
#define DEFINE_STANDARD_TIME_FACTORY(Factory, Time, Interval, Value, Epsilon, Name)                \
   Factory::Factory() {}                                                                           \
   Factory::~Factory() {}                                                                          \
   std::auto_ptr<LogicalTime> Factory::makeInitial() RTI_THROW((InternalError))                    \
   { return std::auto_ptr<LogicalTime>(new Time); }                                                \
   std::auto_ptr<LogicalTime> Factory::makeFinal() RTI_THROW((InternalError))                      \
   { return finalTime<Time>(); }                                                                   \
   std::auto_ptr<LogicalTimeInterval> Factory::makeZero() RTI_THROW((InternalError))               \
   { return std::auto_ptr<LogicalTimeInterval>(new Interval); }                                    \
   std::auto_ptr<LogicalTimeInterval> Factory::makeEpsilon() RTI_THROW((InternalError))            \
   { return std::auto_ptr<LogicalTimeInterval>(new Interval(Epsilon)); }                           \
   std::auto_ptr<LogicalTime> Factory::decodeLogicalTime(VariableLengthData const& data)           \
      RTI_THROW((InternalError, CouldNotDecode))                                                   \
   { return decoded<LogicalTime, Time>(data); }                                                    \
   std::auto_ptr<LogicalTime> Factory::decodeLogicalTime(void* buffer, size_t bufferSize)          \
      RTI_THROW((InternalError, CouldNotDecode))                                                   \
   { return decoded<LogicalTime, Time>(buffer, bufferSize); }                                      \
   std::auto_ptr<LogicalTimeInterval> Factory::decodeLogicalTimeInterval(                          \
      VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode))                   \
   { return decoded<LogicalTimeInterval, Interval>(data); }                                        \
   std::auto_ptr<LogicalTimeInterval> Factory::decodeLogicalTimeInterval(                          \
      void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode))                  \
   { return decoded<LogicalTimeInterval, Interval>(buffer, bufferSize); }                          \
   std::wstring Factory::getName() const { return Name; }                                          \
   std::auto_ptr<Time> Factory::makeLogicalTime(Value value) RTI_THROW((InternalError))            \
   { return std::auto_ptr<Time>(new Time(value)); }                                                \
   std::auto_ptr<Interval> Factory::makeLogicalTimeInterval(Value value) RTI_THROW((InternalError))\
   { return std::auto_ptr<Interval>(new Interval(value)); }
// clang-format on

#endif
