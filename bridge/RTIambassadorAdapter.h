// The ambassador that a federate holds. It keeps the exception lists of the interface in force,
// fits a few signatures to the bridge object's, and decodes handles.
#ifndef bridge_RTIambassadorAdapter_h
#define bridge_RTIambassadorAdapter_h

#include <RTI/RTIambassador.h>

#include <memory>

namespace tarn1516e {

class RTIambassadorC;

// The class is made of the interface's names throughout.
using namespace rti1516e;

// Each service is one forward. An exception that its list names passes unchanged; any other ends
// the process. Overrides may not list more than the interface does, so that the compiler compares
// the lists with it.
class RTIambassadorAdapter : public RTIambassador {
public:
   // Brings up the VM at the first construction of the process.
   RTIambassadorAdapter();

   ~RTIambassadorAdapter() override;

   // Federation management

   void connect(FederateAmbassador& theFederateAmbassador, CallbackModel theCallbackModel,
         std::wstring const& localSettingsDesignator)
         RTI_THROW((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
               AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   void disconnect() RTI_THROW(
         (FederateIsExecutionMember, CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   void createFederationExecution(std::wstring const& federationExecutionName,
         std::wstring const& fomModule, std::wstring const& logicalTimeImplementationName)
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) override;
   void createFederationExecution(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules,
         std::wstring const& logicalTimeImplementationName)
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) override;
   void createFederationExecutionWithMIM(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules, std::wstring const& mimModule,
         std::wstring const& logicalTimeImplementationName)
         RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
               CouldNotOpenFDD, DesignatorIsHLAstandardMIM, ErrorReadingMIM, CouldNotOpenMIM,
               FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) override;
   void destroyFederationExecution(std::wstring const& federationExecutionName)
         RTI_THROW((FederatesCurrentlyJoined, FederationExecutionDoesNotExist, NotConnected,
               RTIinternalError)) override;
   void listFederationExecutions() RTI_THROW((NotConnected, RTIinternalError)) override;
   FederateHandle joinFederationExecution(std::wstring const& federateType,
         std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules)
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederationExecutionDoesNotExist,
               InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD, SaveInProgress, RestoreInProgress,
               FederateAlreadyExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
               RTIinternalError)) override;
   FederateHandle joinFederationExecution(std::wstring const& federateName,
         std::wstring const& federateType, std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules)
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederateNameAlreadyInUse,
               FederationExecutionDoesNotExist, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
               SaveInProgress, RestoreInProgress, FederateAlreadyExecutionMember, NotConnected,
               CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   void resignFederationExecution(ResignAction theResignAction) RTI_THROW((InvalidResignAction,
         OwnershipAcquisitionPending, FederateOwnsAttributes, FederateNotExecutionMember,
         NotConnected, CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((RTI_COMMON_TAIL)) override;
   void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag, FederateHandleSet const& synchronizationSet)
         RTI_THROW((InvalidFederateHandle, RTI_COMMON_TAIL)) override;
   void synchronizationPointAchieved(std::wstring const& label, bool successfully)
         RTI_THROW((SynchronizationPointLabelNotAnnounced, RTI_COMMON_TAIL)) override;
   void requestFederationSave(std::wstring const& label) RTI_THROW((RTI_COMMON_TAIL)) override;
   void requestFederationSave(std::wstring const& label, LogicalTime const& theTime)
         RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, FederateUnableToUseTime,
               RTI_COMMON_TAIL)) override;
   void federateSaveBegun()
         RTI_THROW((SaveNotInitiated, RestoreInProgress, RTI_MEMBER_TAIL)) override;
   void federateSaveComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) override;
   void federateSaveNotComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) override;
   void abortFederationSave() RTI_THROW((SaveNotInProgress, RTI_MEMBER_TAIL)) override;
   void queryFederationSaveStatus() RTI_THROW((RestoreInProgress, RTI_MEMBER_TAIL)) override;
   void requestFederationRestore(std::wstring const& label) RTI_THROW((RTI_COMMON_TAIL)) override;
   void federateRestoreComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) override;
   void federateRestoreNotComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) override;
   void abortFederationRestore() RTI_THROW((RestoreNotInProgress, RTI_MEMBER_TAIL)) override;
   void queryFederationRestoreStatus() RTI_THROW((SaveInProgress, RTI_MEMBER_TAIL)) override;

   // Declaration management

   void publishObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void unpublishObjectClass(ObjectClassHandle theClass)
         RTI_THROW((OwnershipAcquisitionPending, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void unpublishObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes) RTI_THROW((OwnershipAcquisitionPending,
         AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void publishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   void unpublishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   void subscribeObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, bool active,
         std::wstring const& updateRateDesignator) RTI_THROW((AttributeNotDefined,
         ObjectClassNotDefined, InvalidUpdateRateDesignator, RTI_COMMON_TAIL)) override;
   void unsubscribeObjectClass(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void unsubscribeObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void subscribeInteractionClass(InteractionClassHandle theInteraction, bool active)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) override;
   void unsubscribeInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) override;

   // Object management

   void reserveObjectInstanceName(std::wstring const& theName)
         RTI_THROW((IllegalName, RTI_COMMON_TAIL)) override;
   void releaseObjectInstanceName(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) override;
   void reserveMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((IllegalName, NameSetWasEmpty, RTI_COMMON_TAIL)) override;
   void releaseMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) override;
   ObjectInstanceHandle registerObjectInstance(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotPublished, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   ObjectInstanceHandle registerObjectInstance(
         ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameInUse, ObjectInstanceNameNotReserved, ObjectClassNotPublished,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   MessageRetractionHandle updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   MessageRetractionHandle sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag,
         LogicalTime const& theTime) RTI_THROW((InvalidLogicalTime, InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   void deleteObjectInstance(
         ObjectInstanceHandle theObject, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((DeletePrivilegeNotHeld, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   MessageRetractionHandle deleteObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, DeletePrivilegeNotHeld, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) override;
   void localDeleteObjectInstance(ObjectInstanceHandle theObject)
         RTI_THROW((OwnershipAcquisitionPending, FederateOwnsAttributes, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) override;
   void requestAttributeValueUpdate(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void requestAttributeValueUpdate(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void requestAttributeTransportationTypeChange(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, TransportationType theType)
         RTI_THROW((AttributeAlreadyBeingChanged, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, InvalidTransportationType, RTI_COMMON_TAIL)) override;
   void queryAttributeTransportationType(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void requestInteractionTransportationTypeChange(
         InteractionClassHandle theInteraction, TransportationType theType)
         RTI_THROW((InteractionClassAlreadyBeingChanged, InteractionClassNotPublished,
               InteractionClassNotDefined, InvalidTransportationType, RTI_COMMON_TAIL)) override;
   void queryInteractionTransportationType(
         FederateHandle theFederate, InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) override;

   // Ownership management

   void unconditionalAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void negotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeAlreadyBeingDivested, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void confirmDivestiture(ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes,
         VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((NoAcquisitionPending, AttributeDivestitureWasNotRequested, AttributeNotOwned,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void attributeOwnershipAcquisition(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void attributeOwnershipAcquisitionIfAvailable(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAlreadyBeingAcquired,
         AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void attributeOwnershipReleaseDenied(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void attributeOwnershipDivestitureIfWanted(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, AttributeHandleSet& theDivestedAttributes)
         RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) override;
   void cancelNegotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeDivestitureWasNotRequested,
         AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void cancelAttributeOwnershipAcquisition(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeAcquisitionWasNotRequested, AttributeAlreadyOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void queryAttributeOwnership(ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   bool isAttributeOwnedByFederate(ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;

   // Time management

   void enableTimeRegulation(LogicalTimeInterval const& theLookahead)
         RTI_THROW((InvalidLookahead, InTimeAdvancingState, RequestForTimeRegulationPending,
               TimeRegulationAlreadyEnabled, RTI_COMMON_TAIL)) override;
   void disableTimeRegulation() RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) override;
   void enableTimeConstrained() RTI_THROW((InTimeAdvancingState, RequestForTimeConstrainedPending,
         TimeConstrainedAlreadyEnabled, RTI_COMMON_TAIL)) override;
   void disableTimeConstrained() RTI_THROW((TimeConstrainedIsNotEnabled, RTI_COMMON_TAIL)) override;
   void timeAdvanceRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override;
   void timeAdvanceRequestAvailable(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override;
   void nextMessageRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override;
   void nextMessageRequestAvailable(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override;
   void flushQueueRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override;
   void enableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyEnabled, RTI_COMMON_TAIL)) override;
   void disableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyDisabled, RTI_COMMON_TAIL)) override;
   bool queryGALT(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) override;
   void queryLogicalTime(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) override;
   bool queryLITS(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) override;
   void modifyLookahead(LogicalTimeInterval const& theLookahead) RTI_THROW((InvalidLookahead,
         InTimeAdvancingState, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) override;
   void queryLookahead(LogicalTimeInterval& theInterval)
         RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) override;
   void retract(MessageRetractionHandle theHandle) RTI_THROW((MessageCanNoLongerBeRetracted,
         InvalidMessageRetractionHandle, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) override;
   void changeAttributeOrderType(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, OrderType theOrder) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void changeInteractionOrderType(InteractionClassHandle theInteraction, OrderType theOrder)
         RTI_THROW((
               InteractionClassNotPublished, InteractionClassNotDefined, RTI_COMMON_TAIL)) override;

   // Data distribution management

   RegionHandle createRegion(DimensionHandleSet const& theDimensions)
         RTI_THROW((InvalidDimensionHandle, RTI_COMMON_TAIL)) override;
   void commitRegionModifications(RegionHandleSet const& theRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) override;
   void deleteRegion(RegionHandle const& theRegion) RTI_THROW((RegionInUseForUpdateOrSubscription,
         RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) override;
   ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         std::wstring const& theName) RTI_THROW((ObjectInstanceNameInUse,
         ObjectInstanceNameNotReserved, InvalidRegionContext, RegionNotCreatedByThisFederate,
         InvalidRegion, AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
         ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void associateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void unassociateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override;
   void subscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions, bool active,
         std::wstring const& updateRateDesignator) RTI_THROW((InvalidRegionContext,
         RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined, ObjectClassNotDefined,
         InvalidUpdateRateDesignator, RTI_COMMON_TAIL)) override;
   void unsubscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) override;
   void subscribeInteractionClassWithRegions(
         InteractionClassHandle theInteraction, RegionHandleSet const& theRegions, bool active)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InvalidRegionContext,
               RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) override;
   void unsubscribeInteractionClassWithRegions(InteractionClassHandle theInteraction,
         RegionHandleSet const& theRegions) RTI_THROW((RegionNotCreatedByThisFederate,
         InvalidRegion, InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   void sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InvalidRegionContext,
         RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   MessageRetractionHandle sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, InvalidRegionContext, RegionNotCreatedByThisFederate,
               InvalidRegion, InteractionClassNotPublished, InteractionParameterNotDefined,
               InteractionClassNotDefined, RTI_COMMON_TAIL)) override;
   void requestAttributeValueUpdateWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) override;

   // Support services

   ResignAction getAutomaticResignDirective() RTI_THROW((RTI_MEMBER_TAIL)) override;
   void setAutomaticResignDirective(ResignAction theResignAction)
         RTI_THROW((InvalidResignAction, RTI_MEMBER_TAIL)) override;
   FederateHandle getFederateHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) override;
   std::wstring getFederateName(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, FederateHandleNotKnown, RTI_MEMBER_TAIL)) override;
   ObjectClassHandle getObjectClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) override;
   std::wstring getObjectClassName(ObjectClassHandle theClass)
         RTI_THROW((InvalidObjectClassHandle, RTI_MEMBER_TAIL)) override;
   ObjectClassHandle getKnownObjectClassHandle(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) override;
   ObjectInstanceHandle getObjectInstanceHandle(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) override;
   std::wstring getObjectInstanceName(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) override;
   AttributeHandle getAttributeHandle(ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) override;
   std::wstring getAttributeName(ObjectClassHandle theClass, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, InvalidAttributeHandle, InvalidObjectClassHandle,
               RTI_MEMBER_TAIL)) override;
   double getUpdateRateValue(std::wstring const& updateRateDesignator)
         RTI_THROW((InvalidUpdateRateDesignator, RTI_MEMBER_TAIL)) override;
   double getUpdateRateValueForAttribute(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((ObjectInstanceNotKnown, AttributeNotDefined, RTI_MEMBER_TAIL)) override;
   InteractionClassHandle getInteractionClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) override;
   std::wstring getInteractionClassName(InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) override;
   ParameterHandle getParameterHandle(
         InteractionClassHandle theInteraction, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) override;
   std::wstring getParameterName(InteractionClassHandle theInteraction,
         ParameterHandle theParameter) RTI_THROW((InteractionParameterNotDefined,
         InvalidParameterHandle, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) override;
   OrderType getOrderType(std::wstring const& theName)
         RTI_THROW((InvalidOrderName, RTI_MEMBER_TAIL)) override;
   std::wstring getOrderName(OrderType theOrder)
         RTI_THROW((InvalidOrderType, RTI_MEMBER_TAIL)) override;
   TransportationType getTransportationType(std::wstring const& theName)
         RTI_THROW((InvalidTransportationName, RTI_MEMBER_TAIL)) override;
   std::wstring getTransportationName(TransportationType theType)
         RTI_THROW((InvalidTransportationType, RTI_MEMBER_TAIL)) override;
   DimensionHandleSet getAvailableDimensionsForClassAttribute(
         ObjectClassHandle theClass, AttributeHandle theAttribute) RTI_THROW((AttributeNotDefined,
         InvalidAttributeHandle, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) override;
   DimensionHandleSet getAvailableDimensionsForInteractionClass(
         InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) override;
   DimensionHandle getDimensionHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) override;
   std::wstring getDimensionName(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) override;
   unsigned long getDimensionUpperBound(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) override;
   DimensionHandleSet getDimensionHandleSet(RegionHandle theRegion)
         RTI_THROW((InvalidRegion, RTI_COMMON_TAIL)) override;
   RangeBounds getRangeBounds(RegionHandle theRegion, DimensionHandle theDimension) RTI_THROW(
         (RegionDoesNotContainSpecifiedDimension, InvalidRegion, RTI_COMMON_TAIL)) override;
   void setRangeBounds(
         RegionHandle theRegion, DimensionHandle theDimension, RangeBounds const& theRangeBounds)
         RTI_THROW((InvalidRangeBound, RegionDoesNotContainSpecifiedDimension,
               RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) override;
   unsigned long normalizeFederateHandle(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, RTI_MEMBER_TAIL)) override;
   unsigned long normalizeServiceGroup(ServiceGroup theServiceGroup)
         RTI_THROW((InvalidServiceGroup, RTI_MEMBER_TAIL)) override;
   void enableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) override;
   void disableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) override;
   void enableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) override;
   void disableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) override;
   void enableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOn, RTI_COMMON_TAIL)) override;
   void disableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOff, RTI_COMMON_TAIL)) override;
   void enableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) override;
   void disableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) override;
   bool evokeCallback(double approximateMinimumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   bool evokeMultipleCallbacks(
         double approximateMinimumTimeInSeconds, double approximateMaximumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) override;
   void enableCallbacks() RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) override;
   void disableCallbacks()
         RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) override;
   std::auto_ptr<LogicalTimeFactory> getTimeFactory() const RTI_THROW((RTI_MEMBER_TAIL)) override;

   // Decoding of handles, without the VM

   FederateHandle decodeFederateHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   ObjectClassHandle decodeObjectClassHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   InteractionClassHandle decodeInteractionClassHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   ObjectInstanceHandle decodeObjectInstanceHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   AttributeHandle decodeAttributeHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   ParameterHandle decodeParameterHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   DimensionHandle decodeDimensionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   MessageRetractionHandle decodeMessageRetractionHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;
   RegionHandle decodeRegionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) override;

private:
   RTIambassadorAdapter(RTIambassadorAdapter const&) = delete;
   RTIambassadorAdapter& operator=(RTIambassadorAdapter const&) = delete;

   std::unique_ptr<RTIambassadorC> _rti;
};

} // namespace tarn1516e

#endif
