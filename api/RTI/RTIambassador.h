// The RTI ambassador: the services of the RTI, as a federate calls them.
#ifndef RTI_RTIambassador_h
#define RTI_RTIambassador_h

#include <RTI/SpecificConfig.h>

#include <memory>
#include <RTI/Enums.h>
#include <RTI/Exception.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>
#include <set>
#include <string>
#include <vector>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class FederateAmbassador;

/// The exceptions with which most lists end. The first macro is for the services that any joined
/// federate may call, the second for those that have to wait while a save or restore is under way.
#define RTI_MEMBER_TAIL                                                                            \
   rti1516e::FederateNotExecutionMember, rti1516e::NotConnected, rti1516e::RTIinternalError
#define RTI_COMMON_TAIL rti1516e::SaveInProgress, rti1516e::RestoreInProgress, RTI_MEMBER_TAIL

class RTI_EXPORT RTIambassador {
protected:
   RTIambassador();

public:
   virtual ~RTIambassador();

   // ---- Federation management

   virtual void connect(FederateAmbassador& theFederateAmbassador, CallbackModel theCallbackModel,
         std::wstring const& localSettingsDesignator = L"")
         RTI_THROW((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
               AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   virtual void disconnect() RTI_THROW(
         (FederateIsExecutionMember, CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   virtual void createFederationExecution(std::wstring const& federationExecutionName,
         std::wstring const& fomModule, std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   virtual void createFederationExecution(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules,
         std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   virtual void createFederationExecutionWithMIM(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules, std::wstring const& mimModule,
         std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
               CouldNotOpenFDD, DesignatorIsHLAstandardMIM, ErrorReadingMIM, CouldNotOpenMIM,
               FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   virtual void destroyFederationExecution(std::wstring const& federationExecutionName)
         RTI_THROW((FederatesCurrentlyJoined, FederationExecutionDoesNotExist, NotConnected,
               RTIinternalError)) = 0;

   virtual void listFederationExecutions() RTI_THROW((NotConnected, RTIinternalError)) = 0;

   virtual FederateHandle joinFederationExecution(std::wstring const& federateType,
         std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules = std::vector<std::wstring>())
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederationExecutionDoesNotExist,
               InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD, SaveInProgress, RestoreInProgress,
               FederateAlreadyExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
               RTIinternalError)) = 0;

   virtual FederateHandle joinFederationExecution(std::wstring const& federateName,
         std::wstring const& federateType, std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules = std::vector<std::wstring>())
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederateNameAlreadyInUse,
               FederationExecutionDoesNotExist, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
               SaveInProgress, RestoreInProgress, FederateAlreadyExecutionMember, NotConnected,
               CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   virtual void resignFederationExecution(ResignAction theResignAction)
         RTI_THROW((InvalidResignAction, OwnershipAcquisitionPending, FederateOwnsAttributes,
               FederateNotExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
               RTIinternalError)) = 0;

   virtual void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag, FederateHandleSet const& synchronizationSet)
         RTI_THROW((InvalidFederateHandle, RTI_COMMON_TAIL)) = 0;

   virtual void synchronizationPointAchieved(std::wstring const& label, bool successfully = true)
         RTI_THROW((SynchronizationPointLabelNotAnnounced, RTI_COMMON_TAIL)) = 0;

   virtual void requestFederationSave(std::wstring const& label) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual void requestFederationSave(std::wstring const& label, LogicalTime const& theTime)
         RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, FederateUnableToUseTime,
               RTI_COMMON_TAIL)) = 0;

   virtual void federateSaveBegun()
         RTI_THROW((SaveNotInitiated, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void federateSaveComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void federateSaveNotComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void abortFederationSave() RTI_THROW((SaveNotInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void queryFederationSaveStatus() RTI_THROW((RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void requestFederationRestore(std::wstring const& label)
         RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual void federateRestoreComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void federateRestoreNotComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void abortFederationRestore() RTI_THROW((RestoreNotInProgress, RTI_MEMBER_TAIL)) = 0;

   virtual void queryFederationRestoreStatus() RTI_THROW((SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   // ---- Declaration management

   virtual void publishObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void unpublishObjectClass(ObjectClassHandle theClass)
         RTI_THROW((OwnershipAcquisitionPending, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void unpublishObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes) RTI_THROW((OwnershipAcquisitionPending,
         AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void publishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void unpublishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void subscribeObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, bool active = true,
         std::wstring const& updateRateDesignator = L"") RTI_THROW((AttributeNotDefined,
         ObjectClassNotDefined, InvalidUpdateRateDesignator, RTI_COMMON_TAIL)) = 0;

   virtual void unsubscribeObjectClass(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void unsubscribeObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void subscribeInteractionClass(InteractionClassHandle theInteraction, bool active = true)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) = 0;

   virtual void unsubscribeInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Object management

   virtual void reserveObjectInstanceName(std::wstring const& theName)
         RTI_THROW((IllegalName, RTI_COMMON_TAIL)) = 0;

   virtual void releaseObjectInstanceName(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) = 0;

   virtual void reserveMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((IllegalName, NameSetWasEmpty, RTI_COMMON_TAIL)) = 0;

   virtual void releaseMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) = 0;

   virtual ObjectInstanceHandle registerObjectInstance(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotPublished, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual ObjectInstanceHandle registerObjectInstance(
         ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameInUse, ObjectInstanceNameNotReserved, ObjectClassNotPublished,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual MessageRetractionHandle updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual MessageRetractionHandle sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, InteractionClassNotPublished,
               InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void deleteObjectInstance(
         ObjectInstanceHandle theObject, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((DeletePrivilegeNotHeld, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual MessageRetractionHandle deleteObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, DeletePrivilegeNotHeld, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   virtual void localDeleteObjectInstance(ObjectInstanceHandle theObject)
         RTI_THROW((OwnershipAcquisitionPending, FederateOwnsAttributes, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   virtual void requestAttributeValueUpdate(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void requestAttributeValueUpdate(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void requestAttributeTransportationTypeChange(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, TransportationType theType)
         RTI_THROW((AttributeAlreadyBeingChanged, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, InvalidTransportationType, RTI_COMMON_TAIL)) = 0;

   virtual void queryAttributeTransportationType(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void requestInteractionTransportationTypeChange(
         InteractionClassHandle theInteraction, TransportationType theType)
         RTI_THROW((InteractionClassAlreadyBeingChanged, InteractionClassNotPublished,
               InteractionClassNotDefined, InvalidTransportationType, RTI_COMMON_TAIL)) = 0;

   virtual void queryInteractionTransportationType(
         FederateHandle theFederate, InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Ownership management

   virtual void unconditionalAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void negotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeAlreadyBeingDivested, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void confirmDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((NoAcquisitionPending, AttributeDivestitureWasNotRequested, AttributeNotOwned,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void attributeOwnershipAcquisition(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void attributeOwnershipAcquisitionIfAvailable(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAlreadyBeingAcquired,
         AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void attributeOwnershipReleaseDenied(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void attributeOwnershipDivestitureIfWanted(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, AttributeHandleSet& theDivestedAttributes)
         RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   virtual void cancelNegotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeDivestitureWasNotRequested,
         AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void cancelAttributeOwnershipAcquisition(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAcquisitionWasNotRequested,
         AttributeAlreadyOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void queryAttributeOwnership(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual bool isAttributeOwnedByFederate(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   // ---- Time management

   virtual void enableTimeRegulation(LogicalTimeInterval const& theLookahead)
         RTI_THROW((InvalidLookahead, InTimeAdvancingState, RequestForTimeRegulationPending,
               TimeRegulationAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void disableTimeRegulation()
         RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void enableTimeConstrained() RTI_THROW((InTimeAdvancingState,
         RequestForTimeConstrainedPending, TimeConstrainedAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void disableTimeConstrained()
         RTI_THROW((TimeConstrainedIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void timeAdvanceRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   virtual void timeAdvanceRequestAvailable(LogicalTime const& theTime) RTI_THROW((
         LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
         RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   virtual void nextMessageRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   virtual void nextMessageRequestAvailable(LogicalTime const& theTime) RTI_THROW((
         LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
         RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   virtual void flushQueueRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   virtual void enableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void disableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyDisabled, RTI_COMMON_TAIL)) = 0;

   virtual bool queryGALT(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual void queryLogicalTime(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual bool queryLITS(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   virtual void modifyLookahead(LogicalTimeInterval const& theLookahead) RTI_THROW(
         (InvalidLookahead, InTimeAdvancingState, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void queryLookahead(LogicalTimeInterval& theInterval)
         RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void retract(MessageRetractionHandle theHandle) RTI_THROW((MessageCanNoLongerBeRetracted,
         InvalidMessageRetractionHandle, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   virtual void changeAttributeOrderType(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, OrderType theOrder) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void changeInteractionOrderType(
         InteractionClassHandle theInteraction, OrderType theOrder)
         RTI_THROW((InteractionClassNotPublished, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Data distribution management

   virtual RegionHandle createRegion(DimensionHandleSet const& theDimensions)
         RTI_THROW((InvalidDimensionHandle, RTI_COMMON_TAIL)) = 0;

   virtual void commitRegionModifications(RegionHandleSet const& theRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   virtual void deleteRegion(RegionHandle const& theRegion)
         RTI_THROW((RegionInUseForUpdateOrSubscription, RegionNotCreatedByThisFederate,
               InvalidRegion, RTI_COMMON_TAIL)) = 0;

   virtual ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         std::wstring const& theName) RTI_THROW((ObjectInstanceNameInUse,
         ObjectInstanceNameNotReserved, InvalidRegionContext, RegionNotCreatedByThisFederate,
         InvalidRegion, AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
         ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void associateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void unassociateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   virtual void subscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         bool active = true, std::wstring const& updateRateDesignator = L"")
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectClassNotDefined, InvalidUpdateRateDesignator,
               RTI_COMMON_TAIL)) = 0;

   virtual void unsubscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void subscribeInteractionClassWithRegions(InteractionClassHandle theInteraction,
         RegionHandleSet const& theRegions, bool active = true)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InvalidRegionContext,
               RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) = 0;

   virtual void unsubscribeInteractionClassWithRegions(InteractionClassHandle theInteraction,
         RegionHandleSet const& theRegions) RTI_THROW((RegionNotCreatedByThisFederate,
         InvalidRegion, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InvalidRegionContext,
         RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual MessageRetractionHandle sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, InvalidRegionContext, RegionNotCreatedByThisFederate,
               InvalidRegion, InteractionClassNotPublished, InteractionParameterNotDefined,
               InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   virtual void requestAttributeValueUpdateWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Support services

   virtual ResignAction getAutomaticResignDirective() RTI_THROW((RTI_MEMBER_TAIL)) = 0;

   virtual void setAutomaticResignDirective(ResignAction theResignAction)
         RTI_THROW((InvalidResignAction, RTI_MEMBER_TAIL)) = 0;

   virtual FederateHandle getFederateHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getFederateName(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, FederateHandleNotKnown, RTI_MEMBER_TAIL)) = 0;

   virtual ObjectClassHandle getObjectClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getObjectClassName(ObjectClassHandle theClass)
         RTI_THROW((InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual ObjectClassHandle getKnownObjectClassHandle(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   virtual ObjectInstanceHandle getObjectInstanceHandle(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getObjectInstanceName(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   virtual AttributeHandle getAttributeHandle(
         ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getAttributeName(ObjectClassHandle theClass, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, InvalidAttributeHandle, InvalidObjectClassHandle,
               RTI_MEMBER_TAIL)) = 0;

   virtual double getUpdateRateValue(std::wstring const& updateRateDesignator)
         RTI_THROW((InvalidUpdateRateDesignator, RTI_MEMBER_TAIL)) = 0;

   virtual double getUpdateRateValueForAttribute(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((ObjectInstanceNotKnown, AttributeNotDefined, RTI_MEMBER_TAIL)) = 0;

   virtual InteractionClassHandle getInteractionClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getInteractionClassName(InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual ParameterHandle getParameterHandle(
         InteractionClassHandle theInteraction, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getParameterName(InteractionClassHandle theInteraction,
         ParameterHandle theParameter) RTI_THROW((InteractionParameterNotDefined,
         InvalidParameterHandle, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual OrderType getOrderType(std::wstring const& theName)
         RTI_THROW((InvalidOrderName, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getOrderName(OrderType theOrder)
         RTI_THROW((InvalidOrderType, RTI_MEMBER_TAIL)) = 0;

   virtual TransportationType getTransportationType(std::wstring const& theName)
         RTI_THROW((InvalidTransportationName, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getTransportationName(TransportationType theType)
         RTI_THROW((InvalidTransportationType, RTI_MEMBER_TAIL)) = 0;

   virtual DimensionHandleSet getAvailableDimensionsForClassAttribute(
         ObjectClassHandle theClass, AttributeHandle theAttribute) RTI_THROW((AttributeNotDefined,
         InvalidAttributeHandle, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual DimensionHandleSet getAvailableDimensionsForInteractionClass(
         InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   virtual DimensionHandle getDimensionHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   virtual std::wstring getDimensionName(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) = 0;

   virtual unsigned long getDimensionUpperBound(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) = 0;

   virtual DimensionHandleSet getDimensionHandleSet(RegionHandle theRegion)
         RTI_THROW((InvalidRegion, RTI_COMMON_TAIL)) = 0;

   virtual RangeBounds getRangeBounds(RegionHandle theRegion, DimensionHandle theDimension)
         RTI_THROW((RegionDoesNotContainSpecifiedDimension, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   virtual void setRangeBounds(
         RegionHandle theRegion, DimensionHandle theDimension, RangeBounds const& theRangeBounds)
         RTI_THROW((InvalidRangeBound, RegionDoesNotContainSpecifiedDimension,
               RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   virtual unsigned long normalizeFederateHandle(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, RTI_MEMBER_TAIL)) = 0;

   virtual unsigned long normalizeServiceGroup(ServiceGroup theServiceGroup)
         RTI_THROW((InvalidServiceGroup, RTI_MEMBER_TAIL)) = 0;

   virtual void enableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   virtual void disableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   virtual void enableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   virtual void disableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   virtual void enableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   virtual void disableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   virtual void enableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   virtual void disableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   virtual bool evokeCallback(double approximateMinimumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   virtual bool evokeMultipleCallbacks(
         double approximateMinimumTimeInSeconds, double approximateMaximumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   virtual void enableCallbacks()
         RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) = 0;

   virtual void disableCallbacks()
         RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) = 0;

   virtual std::auto_ptr<LogicalTimeFactory> getTimeFactory() const
         RTI_THROW((RTI_MEMBER_TAIL)) = 0;

   // ---- Decoding of handles

   virtual FederateHandle decodeFederateHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ObjectClassHandle decodeObjectClassHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual InteractionClassHandle decodeInteractionClassHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ObjectInstanceHandle decodeObjectInstanceHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual AttributeHandle decodeAttributeHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ParameterHandle decodeParameterHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual DimensionHandle decodeDimensionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual MessageRetractionHandle decodeMessageRetractionHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual RegionHandle decodeRegionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
