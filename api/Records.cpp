// The plain records that services and callbacks carry.
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>

namespace rti1516e {

RangeBounds::RangeBounds() {}

RangeBounds::RangeBounds(unsigned long lowerBound, unsigned long upperBound)
      : _lowerBound(lowerBound),
        _upperBound(upperBound)
{
}

unsigned long RangeBounds::getLowerBound() const
{
   return _lowerBound;
}

unsigned long RangeBounds::getUpperBound() const
{
   return _upperBound;
}

void RangeBounds::setLowerBound(unsigned long lowerBound)
{
   _lowerBound = lowerBound;
}

void RangeBounds::setUpperBound(unsigned long upperBound)
{
   _upperBound = upperBound;
}

FederateRestoreStatus::FederateRestoreStatus(FederateHandle const& inPreRestoreHandle,
      FederateHandle const& inPostRestoreHandle, RestoreStatus inStatus)
      : preRestoreHandle(inPreRestoreHandle),
        postRestoreHandle(inPostRestoreHandle),
        status(inStatus)
{
}

FederationExecutionInformation::FederationExecutionInformation(
      std::wstring const& inFederationExecutionName,
      std::wstring const& inLogicalTimeImplementationName)
      : federationExecutionName(inFederationExecutionName),
        logicalTimeImplementationName(inLogicalTimeImplementationName)
{
}

// The two records of what comes with a message are alike.
#define DEFINE_MESSAGE_INFO(A)                                                                     \
   A::A() : hasProducingFederate(false), hasSentRegions(false) {}                                  \
                                                                                                   \
   A::A(FederateHandle const& inProducingFederate)                                                 \
         : hasProducingFederate(true),                                                             \
           hasSentRegions(false),                                                                  \
           producingFederate(inProducingFederate)                                                  \
   {                                                                                               \
   }                                                                                               \
                                                                                                   \
   A::A(RegionHandleSet const& inSentRegions)                                                      \
         : hasProducingFederate(false),                                                            \
           hasSentRegions(true),                                                                   \
           sentRegions(inSentRegions)                                                              \
   {                                                                                               \
   }                                                                                               \
                                                                                                   \
   A::A(FederateHandle const& inProducingFederate, RegionHandleSet const& inSentRegions)           \
         : hasProducingFederate(true),                                                             \
           hasSentRegions(true),                                                                   \
           producingFederate(inProducingFederate),                                                 \
           sentRegions(inSentRegions)                                                              \
   {                                                                                               \
   }

DEFINE_MESSAGE_INFO(SupplementalReflectInfo)
DEFINE_MESSAGE_INFO(SupplementalReceiveInfo)

SupplementalRemoveInfo::SupplementalRemoveInfo() : hasProducingFederate(false) {}

SupplementalRemoveInfo::SupplementalRemoveInfo(FederateHandle const& inProducingFederate)
      : hasProducingFederate(true),
        producingFederate(inProducingFederate)
{
}

} // namespace rti1516e
