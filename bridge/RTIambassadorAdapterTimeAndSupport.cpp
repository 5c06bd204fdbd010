// The adapter's forwards for time, data distribution and support, and the decoding of handles.
#include "api/HandleFriends.h"
#include "bridge/RTIambassadorAdapter.h"
#include "gen/cpp_generated/RTIambassadorC.h"
#include <RTI/LogicalTimeFactory.h>

namespace tarn1516e {

namespace {

// Gives the caller's object the value that the RTI answered. The answer is empty as long as there
// is no time factory to decode it, that is before the first join.
template <class Value>
void assign(Value& out, std::unique_ptr<Value> const& answer)
{
   if (answer == nullptr) {
      throw RTIinternalError(L"There is no time factory to decode the RTI's answer with");
   }
   out = *answer;
}

// Leaves the caller's time as it is if there is no such time.
bool assignIfAny(LogicalTime& out, TimeQueryReturn const& answer)
{
   if (answer.first) {
      assign(out, answer.second);
   }
   return answer.first;
}

} // namespace

// ---- Time management ----------------------------------------------------------------------------

void RTIambassadorAdapter::enableTimeRegulation(LogicalTimeInterval const& theLookahead)
      RTI_THROW((InvalidLookahead, InTimeAdvancingState, RequestForTimeRegulationPending,
            TimeRegulationAlreadyEnabled, RTI_COMMON_TAIL))
{
   _rti->enableTimeRegulation(theLookahead);
}

void RTIambassadorAdapter::disableTimeRegulation()
      RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL))
{
   _rti->disableTimeRegulation();
}

void RTIambassadorAdapter::enableTimeConstrained() RTI_THROW((InTimeAdvancingState,
      RequestForTimeConstrainedPending, TimeConstrainedAlreadyEnabled, RTI_COMMON_TAIL))
{
   _rti->enableTimeConstrained();
}

void RTIambassadorAdapter::disableTimeConstrained()
      RTI_THROW((TimeConstrainedIsNotEnabled, RTI_COMMON_TAIL))
{
   _rti->disableTimeConstrained();
}

void RTIambassadorAdapter::timeAdvanceRequest(LogicalTime const& theTime)
      RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
            RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL))
{
   _rti->timeAdvanceRequest(theTime);
}

void RTIambassadorAdapter::timeAdvanceRequestAvailable(LogicalTime const& theTime)
      RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
            RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL))
{
   _rti->timeAdvanceRequestAvailable(theTime);
}

void RTIambassadorAdapter::nextMessageRequest(LogicalTime const& theTime)
      RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
            RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL))
{
   _rti->nextMessageRequest(theTime);
}

void RTIambassadorAdapter::nextMessageRequestAvailable(LogicalTime const& theTime)
      RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
            RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL))
{
   _rti->nextMessageRequestAvailable(theTime);
}

void RTIambassadorAdapter::flushQueueRequest(LogicalTime const& theTime)
      RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
            RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL))
{
   _rti->flushQueueRequest(theTime);
}

void RTIambassadorAdapter::enableAsynchronousDelivery()
      RTI_THROW((AsynchronousDeliveryAlreadyEnabled, RTI_COMMON_TAIL))
{
   _rti->enableAsynchronousDelivery();
}

void RTIambassadorAdapter::disableAsynchronousDelivery()
      RTI_THROW((AsynchronousDeliveryAlreadyDisabled, RTI_COMMON_TAIL))
{
   _rti->disableAsynchronousDelivery();
}

bool RTIambassadorAdapter::queryGALT(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL))
{
   return assignIfAny(theTime, _rti->queryGALT());
}

void RTIambassadorAdapter::queryLogicalTime(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL))
{
   assign(theTime, _rti->queryLogicalTime());
}

bool RTIambassadorAdapter::queryLITS(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL))
{
   return assignIfAny(theTime, _rti->queryLITS());
}

void RTIambassadorAdapter::modifyLookahead(LogicalTimeInterval const& theLookahead) RTI_THROW(
      (InvalidLookahead, InTimeAdvancingState, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL))
{
   _rti->modifyLookahead(theLookahead);
}

void RTIambassadorAdapter::queryLookahead(LogicalTimeInterval& theInterval)
      RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL))
{
   assign(theInterval, _rti->queryLookahead());
}

void RTIambassadorAdapter::retract(MessageRetractionHandle theHandle)
      RTI_THROW((MessageCanNoLongerBeRetracted, InvalidMessageRetractionHandle,
            TimeRegulationIsNotEnabled, RTI_COMMON_TAIL))
{
   _rti->retract(theHandle);
}

void RTIambassadorAdapter::changeAttributeOrderType(
      ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes, OrderType theOrder)
      RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->changeAttributeOrderType(theObject, theAttributes, theOrder);
}

void RTIambassadorAdapter::changeInteractionOrderType(
      InteractionClassHandle theInteraction, OrderType theOrder)
      RTI_THROW((InteractionClassNotPublished, InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->changeInteractionOrderType(theInteraction, theOrder);
}

// ---- Data distribution management ---------------------------------------------------------------

RegionHandle RTIambassadorAdapter::createRegion(DimensionHandleSet const& theDimensions)
      RTI_THROW((InvalidDimensionHandle, RTI_COMMON_TAIL))
{
   return _rti->createRegion(theDimensions);
}

void RTIambassadorAdapter::commitRegionModifications(RegionHandleSet const& theRegions)
      RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL))
{
   _rti->commitRegionModifications(theRegions);
}

void RTIambassadorAdapter::deleteRegion(RegionHandle const& theRegion)
      RTI_THROW((RegionInUseForUpdateOrSubscription, RegionNotCreatedByThisFederate, InvalidRegion,
            RTI_COMMON_TAIL))
{
   _rti->deleteRegion(theRegion);
}

ObjectInstanceHandle RTIambassadorAdapter::registerObjectInstanceWithRegions(
      ObjectClassHandle theClass,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
      RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
            AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
            ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->registerObjectInstanceWithRegions(theClass, theAttributesAndRegions);
}

ObjectInstanceHandle RTIambassadorAdapter::registerObjectInstanceWithRegions(
      ObjectClassHandle theClass,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
      std::wstring const& theName)
      RTI_THROW((ObjectInstanceNameInUse, ObjectInstanceNameNotReserved, InvalidRegionContext,
            RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotPublished,
            ObjectClassNotPublished, AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->registerObjectInstanceWithRegions(theClass, theAttributesAndRegions, theName);
}

void RTIambassadorAdapter::associateRegionsForUpdates(ObjectInstanceHandle theObject,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
      RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
            AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->associateRegionsForUpdates(theObject, theAttributesAndRegions);
}

void RTIambassadorAdapter::unassociateRegionsForUpdates(ObjectInstanceHandle theObject,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
      RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
            ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->unassociateRegionsForUpdates(theObject, theAttributesAndRegions);
}

void RTIambassadorAdapter::subscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions, bool active,
      std::wstring const& updateRateDesignator) RTI_THROW((InvalidRegionContext,
      RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined, ObjectClassNotDefined,
      InvalidUpdateRateDesignator, RTI_COMMON_TAIL))
{
   _rti->subscribeObjectClassAttributesWithRegions(
         theClass, theAttributesAndRegions, active, updateRateDesignator);
}

void RTIambassadorAdapter::unsubscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
      RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
            ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unsubscribeObjectClassAttributesWithRegions(theClass, theAttributesAndRegions);
}

void RTIambassadorAdapter::subscribeInteractionClassWithRegions(
      InteractionClassHandle theInteraction, RegionHandleSet const& theRegions, bool active)
      RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InvalidRegionContext,
            RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotDefined,
            RTI_COMMON_TAIL))
{
   _rti->subscribeInteractionClassWithRegions(theInteraction, active, theRegions);
}

void RTIambassadorAdapter::unsubscribeInteractionClassWithRegions(
      InteractionClassHandle theInteraction, RegionHandleSet const& theRegions)
      RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotDefined,
            RTI_COMMON_TAIL))
{
   _rti->unsubscribeInteractionClassWithRegions(theInteraction, theRegions);
}

void RTIambassadorAdapter::sendInteractionWithRegions(InteractionClassHandle theInteraction,
      ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
      VariableLengthData const& theUserSuppliedTag) RTI_THROW((InvalidRegionContext,
      RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotPublished,
      InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->sendInteractionWithRegions(
         theInteraction, theParameterValues, theRegions, theUserSuppliedTag);
}

MessageRetractionHandle RTIambassadorAdapter::sendInteractionWithRegions(
      InteractionClassHandle theInteraction, ParameterHandleValueMap const& theParameterValues,
      RegionHandleSet const& theRegions, VariableLengthData const& theUserSuppliedTag,
      LogicalTime const& theTime) RTI_THROW((InvalidLogicalTime, InvalidRegionContext,
      RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotPublished,
      InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->sendInteractionWithRegions(
         theInteraction, theParameterValues, theRegions, theUserSuppliedTag, theTime);
}

void RTIambassadorAdapter::requestAttributeValueUpdateWithRegions(ObjectClassHandle theClass,
      AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
      VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
            AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->requestAttributeValueUpdateWithRegions(
         theClass, theAttributesAndRegions, theUserSuppliedTag);
}

// ---- Support services ---------------------------------------------------------------------------

ResignAction RTIambassadorAdapter::getAutomaticResignDirective() RTI_THROW((RTI_MEMBER_TAIL))
{
   return _rti->getAutomaticResignDirective();
}

void RTIambassadorAdapter::setAutomaticResignDirective(ResignAction theResignAction)
      RTI_THROW((InvalidResignAction, RTI_MEMBER_TAIL))
{
   _rti->setAutomaticResignDirective(theResignAction);
}

FederateHandle RTIambassadorAdapter::getFederateHandle(std::wstring const& theName)
      RTI_THROW((NameNotFound, RTI_MEMBER_TAIL))
{
   return _rti->getFederateHandle(theName);
}

std::wstring RTIambassadorAdapter::getFederateName(FederateHandle theFederate)
      RTI_THROW((InvalidFederateHandle, FederateHandleNotKnown, RTI_MEMBER_TAIL))
{
   return _rti->getFederateName(theFederate);
}

ObjectClassHandle RTIambassadorAdapter::getObjectClassHandle(std::wstring const& theName)
      RTI_THROW((NameNotFound, RTI_MEMBER_TAIL))
{
   return _rti->getObjectClassHandle(theName);
}

std::wstring RTIambassadorAdapter::getObjectClassName(ObjectClassHandle theClass)
      RTI_THROW((InvalidObjectClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getObjectClassName(theClass);
}

ObjectClassHandle RTIambassadorAdapter::getKnownObjectClassHandle(ObjectInstanceHandle theObject)
      RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL))
{
   return _rti->getKnownObjectClassHandle(theObject);
}

ObjectInstanceHandle RTIambassadorAdapter::getObjectInstanceHandle(std::wstring const& theName)
      RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL))
{
   return _rti->getObjectInstanceHandle(theName);
}

std::wstring RTIambassadorAdapter::getObjectInstanceName(ObjectInstanceHandle theObject)
      RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL))
{
   return _rti->getObjectInstanceName(theObject);
}

AttributeHandle RTIambassadorAdapter::getAttributeHandle(
      ObjectClassHandle theClass, std::wstring const& theName)
      RTI_THROW((NameNotFound, InvalidObjectClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getAttributeHandle(theClass, theName);
}

std::wstring RTIambassadorAdapter::getAttributeName(
      ObjectClassHandle theClass, AttributeHandle theAttribute) RTI_THROW((AttributeNotDefined,
      InvalidAttributeHandle, InvalidObjectClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getAttributeName(theClass, theAttribute);
}

double RTIambassadorAdapter::getUpdateRateValue(std::wstring const& updateRateDesignator)
      RTI_THROW((InvalidUpdateRateDesignator, RTI_MEMBER_TAIL))
{
   return _rti->getUpdateRateValue(updateRateDesignator);
}

double RTIambassadorAdapter::getUpdateRateValueForAttribute(
      ObjectInstanceHandle theObject, AttributeHandle theAttribute)
      RTI_THROW((ObjectInstanceNotKnown, AttributeNotDefined, RTI_MEMBER_TAIL))
{
   return _rti->getUpdateRateValueForAttribute(theObject, theAttribute);
}

InteractionClassHandle RTIambassadorAdapter::getInteractionClassHandle(std::wstring const& theName)
      RTI_THROW((NameNotFound, RTI_MEMBER_TAIL))
{
   return _rti->getInteractionClassHandle(theName);
}

std::wstring RTIambassadorAdapter::getInteractionClassName(InteractionClassHandle theInteraction)
      RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getInteractionClassName(theInteraction);
}

ParameterHandle RTIambassadorAdapter::getParameterHandle(
      InteractionClassHandle theInteraction, std::wstring const& theName)
      RTI_THROW((NameNotFound, InvalidInteractionClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getParameterHandle(theInteraction, theName);
}

std::wstring RTIambassadorAdapter::getParameterName(InteractionClassHandle theInteraction,
      ParameterHandle theParameter) RTI_THROW((InteractionParameterNotDefined,
      InvalidParameterHandle, InvalidInteractionClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getParameterName(theInteraction, theParameter);
}

OrderType RTIambassadorAdapter::getOrderType(std::wstring const& theName)
      RTI_THROW((InvalidOrderName, RTI_MEMBER_TAIL))
{
   return _rti->getOrderType(theName);
}

std::wstring RTIambassadorAdapter::getOrderName(OrderType theOrder)
      RTI_THROW((InvalidOrderType, RTI_MEMBER_TAIL))
{
   return _rti->getOrderName(theOrder);
}

TransportationType RTIambassadorAdapter::getTransportationType(std::wstring const& theName)
      RTI_THROW((InvalidTransportationName, RTI_MEMBER_TAIL))
{
   return _rti->getTransportationTypeHandle(theName);
}

std::wstring RTIambassadorAdapter::getTransportationName(TransportationType theType)
      RTI_THROW((InvalidTransportationType, RTI_MEMBER_TAIL))
{
   return _rti->getTransportationTypeName(theType);
}

DimensionHandleSet RTIambassadorAdapter::getAvailableDimensionsForClassAttribute(
      ObjectClassHandle theClass, AttributeHandle theAttribute) RTI_THROW((AttributeNotDefined,
      InvalidAttributeHandle, InvalidObjectClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getAvailableDimensionsForClassAttribute(theClass, theAttribute);
}

DimensionHandleSet RTIambassadorAdapter::getAvailableDimensionsForInteractionClass(
      InteractionClassHandle theInteraction)
      RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL))
{
   return _rti->getAvailableDimensionsForInteractionClass(theInteraction);
}

DimensionHandle RTIambassadorAdapter::getDimensionHandle(std::wstring const& theName)
      RTI_THROW((NameNotFound, RTI_MEMBER_TAIL))
{
   return _rti->getDimensionHandle(theName);
}

std::wstring RTIambassadorAdapter::getDimensionName(DimensionHandle theDimension)
      RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL))
{
   return _rti->getDimensionName(theDimension);
}

unsigned long RTIambassadorAdapter::getDimensionUpperBound(DimensionHandle theDimension)
      RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL))
{
   return _rti->getDimensionUpperBound(theDimension);
}

DimensionHandleSet RTIambassadorAdapter::getDimensionHandleSet(RegionHandle theRegion)
      RTI_THROW((InvalidRegion, RTI_COMMON_TAIL))
{
   return _rti->getDimensionHandleSet(theRegion);
}

RangeBounds RTIambassadorAdapter::getRangeBounds(
      RegionHandle theRegion, DimensionHandle theDimension)
      RTI_THROW((RegionDoesNotContainSpecifiedDimension, InvalidRegion, RTI_COMMON_TAIL))
{
   return _rti->getRangeBounds(theRegion, theDimension);
}

void RTIambassadorAdapter::setRangeBounds(
      RegionHandle theRegion, DimensionHandle theDimension, RangeBounds const& theRangeBounds)
      RTI_THROW((InvalidRangeBound, RegionDoesNotContainSpecifiedDimension,
            RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL))
{
   _rti->setRangeBounds(theRegion, theDimension, theRangeBounds);
}

unsigned long RTIambassadorAdapter::normalizeFederateHandle(FederateHandle theFederate)
      RTI_THROW((InvalidFederateHandle, RTI_MEMBER_TAIL))
{
   return _rti->normalizeFederateHandle(theFederate);
}

unsigned long RTIambassadorAdapter::normalizeServiceGroup(ServiceGroup theServiceGroup)
      RTI_THROW((InvalidServiceGroup, RTI_MEMBER_TAIL))
{
   return _rti->normalizeServiceGroup(theServiceGroup);
}

void RTIambassadorAdapter::enableObjectClassRelevanceAdvisorySwitch()
      RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL))
{
   _rti->enableObjectClassRelevanceAdvisorySwitch();
}

void RTIambassadorAdapter::disableObjectClassRelevanceAdvisorySwitch()
      RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL))
{
   _rti->disableObjectClassRelevanceAdvisorySwitch();
}

void RTIambassadorAdapter::enableAttributeRelevanceAdvisorySwitch()
      RTI_THROW((AttributeRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL))
{
   _rti->enableAttributeRelevanceAdvisorySwitch();
}

void RTIambassadorAdapter::disableAttributeRelevanceAdvisorySwitch()
      RTI_THROW((AttributeRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL))
{
   _rti->disableAttributeRelevanceAdvisorySwitch();
}

void RTIambassadorAdapter::enableAttributeScopeAdvisorySwitch()
      RTI_THROW((AttributeScopeAdvisorySwitchIsOn, RTI_COMMON_TAIL))
{
   _rti->enableAttributeScopeAdvisorySwitch();
}

void RTIambassadorAdapter::disableAttributeScopeAdvisorySwitch()
      RTI_THROW((AttributeScopeAdvisorySwitchIsOff, RTI_COMMON_TAIL))
{
   _rti->disableAttributeScopeAdvisorySwitch();
}

void RTIambassadorAdapter::enableInteractionRelevanceAdvisorySwitch()
      RTI_THROW((InteractionRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL))
{
   _rti->enableInteractionRelevanceAdvisorySwitch();
}

void RTIambassadorAdapter::disableInteractionRelevanceAdvisorySwitch()
      RTI_THROW((InteractionRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL))
{
   _rti->disableInteractionRelevanceAdvisorySwitch();
}

bool RTIambassadorAdapter::evokeCallback(double approximateMinimumTimeInSeconds)
      RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError))
{
   return _rti->evokeCallback(approximateMinimumTimeInSeconds);
}

bool RTIambassadorAdapter::evokeMultipleCallbacks(
      double approximateMinimumTimeInSeconds, double approximateMaximumTimeInSeconds)
      RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError))
{
   return _rti->evokeMultipleCallbacks(
         approximateMinimumTimeInSeconds, approximateMaximumTimeInSeconds);
}

void RTIambassadorAdapter::enableCallbacks()
      RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError))
{
   _rti->enableCallbacks();
}

void RTIambassadorAdapter::disableCallbacks()
      RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError))
{
   _rti->disableCallbacks();
}

std::auto_ptr<LogicalTimeFactory> RTIambassadorAdapter::getTimeFactory() const
      RTI_THROW((RTI_MEMBER_TAIL))
{
   return LogicalTimeFactoryFactory::makeLogicalTimeFactory(_rti->getTimeFactory());
}

// ---- Decoding of handles ------------------------------------------------------------------------

FederateHandle RTIambassadorAdapter::decodeFederateHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeFederateHandle(encodedValue);
}

ObjectClassHandle RTIambassadorAdapter::decodeObjectClassHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeObjectClassHandle(encodedValue);
}

InteractionClassHandle RTIambassadorAdapter::decodeInteractionClassHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeInteractionClassHandle(encodedValue);
}

ObjectInstanceHandle RTIambassadorAdapter::decodeObjectInstanceHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeObjectInstanceHandle(encodedValue);
}

AttributeHandle RTIambassadorAdapter::decodeAttributeHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeAttributeHandle(encodedValue);
}

ParameterHandle RTIambassadorAdapter::decodeParameterHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeParameterHandle(encodedValue);
}

DimensionHandle RTIambassadorAdapter::decodeDimensionHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeDimensionHandle(encodedValue);
}

MessageRetractionHandle RTIambassadorAdapter::decodeMessageRetractionHandle(
      VariableLengthData const& encodedValue) const RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeMessageRetractionHandle(encodedValue);
}

RegionHandle RTIambassadorAdapter::decodeRegionHandle(VariableLengthData const& encodedValue) const
      RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL))
{
   return makeRegionHandle(encodedValue);
}

} // namespace tarn1516e
