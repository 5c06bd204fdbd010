// The factory of the standard integer time.
#ifndef RTI_HLAinteger64TimeFactory_h
#define RTI_HLAinteger64TimeFactory_h

#include <RTI/LogicalTimeFactory.h>
#include <RTI/SpecificConfig.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Name of the standard integer time, as a federation execution is created with it.
std::wstring const HLAinteger64TimeName(L"HLAinteger64Time");

/// Makes HLAinteger64Time and HLAinteger64Interval. What the decoders do with a buffer that is too
/// short is told with those classes.
class RTI_EXPORT HLAinteger64TimeFactory : public LogicalTimeFactory {
public:
   HLAinteger64TimeFactory();
   virtual ~HLAinteger64TimeFactory();

   virtual std::auto_ptr<LogicalTime> makeInitial() RTI_THROW((InternalError));
   virtual std::auto_ptr<LogicalTime> makeFinal() RTI_THROW((InternalError));
   virtual std::auto_ptr<LogicalTimeInterval> makeZero() RTI_THROW((InternalError));

   /// 1, which is what isEpsilon() asks for.
   virtual std::auto_ptr<LogicalTimeInterval> makeEpsilon() RTI_THROW((InternalError));

   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t bufferSize)
         RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         VariableLengthData const& data) RTI_THROW((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         void* buffer, size_t bufferSize) RTI_THROW((InternalError, CouldNotDecode));

   /// HLAinteger64TimeName.
   virtual std::wstring getName() const;

   /// A time or an interval of that value. The caller owns it.
   virtual std::auto_ptr<HLAinteger64Time> makeLogicalTime(long long value)
         RTI_THROW((InternalError));
   virtual std::auto_ptr<HLAinteger64Interval> makeLogicalTimeInterval(long long value)
         RTI_THROW((InternalError));
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
