// The factory of the standard float time.
#ifndef RTI_HLAfloat64TimeFactory_h
#define RTI_HLAfloat64TimeFactory_h

#include <RTI/LogicalTimeFactory.h>
#include <RTI/SpecificConfig.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Name of the standard float time, as a federation execution is created with it.
std::wstring const HLAfloat64TimeName(L"HLAfloat64Time");

/// Makes HLAfloat64Time and HLAfloat64Interval. What the decoders do with a buffer that is too
/// short is told with those classes.
class RTI_EXPORT HLAfloat64TimeFactory : public LogicalTimeFactory {
public:
   HLAfloat64TimeFactory();
   virtual ~HLAfloat64TimeFactory();

   virtual std::auto_ptr<LogicalTime> makeInitial() RTI_THROW((InternalError));
   virtual std::auto_ptr<LogicalTime> makeFinal() RTI_THROW((InternalError));
   virtual std::auto_ptr<LogicalTimeInterval> makeZero() RTI_THROW((InternalError));

   /// 1.0, which is not what isEpsilon() asks for.
   virtual std::auto_ptr<LogicalTimeInterval> makeEpsilon() RTI_THROW((InternalError));

   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode));

   /// HLAfloat64TimeName.
   virtual std::wstring getName() const;

   /// A time or an interval of that value. The caller owns it.
   virtual std::auto_ptr<HLAfloat64Time> makeLogicalTime(double value) RTI_THROW((InternalError));
   virtual std::auto_ptr<HLAfloat64Interval> makeLogicalTimeInterval(double value)
         RTI_THROW((InternalError));
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
