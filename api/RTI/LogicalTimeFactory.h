// Factories of logical times, and the factories of those: by name of the kind of time.
#ifndef RTI_LogicalTimeFactory_h
#define RTI_LogicalTimeFactory_h

#include <RTI/SpecificConfig.h>

#include <cstddef>
#include <memory>
#include <RTI/Exception.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/VariableLengthData.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Makes times and intervals of one kind. The caller owns what is made; it does not refer to the
/// factory.
class RTI_EXPORT LogicalTimeFactory {
public:
   virtual ~LogicalTimeFactory();

   /// The first time of the axis.
   virtual std::auto_ptr<LogicalTime> makeInitial() RTI_THROW((InternalError)) = 0;

   /// The last time of the axis.
   virtual std::auto_ptr<LogicalTime> makeFinal() RTI_THROW((InternalError)) = 0;

   /// The empty interval.
   virtual std::auto_ptr<LogicalTimeInterval> makeZero() RTI_THROW((InternalError)) = 0;

   /// The smallest interval that the factory offers.
   virtual std::auto_ptr<LogicalTimeInterval> makeEpsilon() RTI_THROW((InternalError)) = 0;

   /// The time that an encoded form holds. The bytes remain the caller's; sizes are in bytes.
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode)) = 0;
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode)) = 0;

   /// The interval that an encoded form holds, in the same way.
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode)) = 0;
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode)) = 0;

   /// Name of the kind of time.
   virtual std::wstring getName() const = 0;
};

/// Finds the factory that the federate's time library offers. The library asks it for the kind of
/// time of the federation at the end of each join that goes well, and again at each
/// RTIambassador::getTimeFactory(). It is defined in libfedtime1516e and not in the library
/// itself: a federate with a kind of time of its own puts its own library of that name in front.
class RTI_EXPORT_FEDTIME LogicalTimeFactoryFactory {
public:
   /// A new factory for the kind of time with that name; null if there is none.
   static std::auto_ptr<LogicalTimeFactory> makeLogicalTimeFactory(
         std::wstring const& implementationName);
};

/// Finds the factories of the two standard times.
class RTI_EXPORT HLAlogicalTimeFactoryFactory {
public:
   /// A new HLAinteger64TimeFactory or HLAfloat64TimeFactory for the name of its time; the latter
   /// also for an empty name; null for any other, upper and lower case being told apart.
   static std::auto_ptr<LogicalTimeFactory> makeLogicalTimeFactory(
         std::wstring const& implementationName);
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
