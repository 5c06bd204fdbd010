// The adapter's life, and its forwards for federations, declarations, objects and ownership.
#include "bridge/RTIambassadorAdapter.h"
#include "gen/cpp_generated/RTIambassadorC.h"

namespace tarn1516e {

RTIambassadorAdapter::RTIambassadorAdapter() : _rti(new RTIambassadorC) {}

RTIambassadorAdapter::~RTIambassadorAdapter() {}

// ---- Federation management ----------------------------------------------------------------------

void RTIambassadorAdapter::connect(FederateAmbassador& theFederateAmbassador,
      CallbackModel theCallbackModel, std::wstring const& localSettingsDesignator)
      RTI_THROW((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
            AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError))
{
   _rti->connect(theFederateAmbassador, theCallbackModel, localSettingsDesignator);
}

void RTIambassadorAdapter::disconnect()
      RTI_THROW((FederateIsExecutionMember, CallNotAllowedFromWithinCallback, RTIinternalError))
{
   _rti->disconnect();
}

void RTIambassadorAdapter::createFederationExecution(std::wstring const& federationExecutionName,
      std::wstring const& fomModule, std::wstring const& logicalTimeImplementationName)
      RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
            CouldNotOpenFDD, FederationExecutionAlreadyExists, NotConnected, RTIinternalError))
{
   _rti->createFederationExecution(
         federationExecutionName, fomModule, logicalTimeImplementationName);
}

void RTIambassadorAdapter::createFederationExecution(std::wstring const& federationExecutionName,
      std::vector<std::wstring> const& fomModules,
      std::wstring const& logicalTimeImplementationName)
      RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
            CouldNotOpenFDD, FederationExecutionAlreadyExists, NotConnected, RTIinternalError))
{
   _rti->createFederationExecution(
         federationExecutionName, fomModules, logicalTimeImplementationName);
}

void RTIambassadorAdapter::createFederationExecutionWithMIM(
      std::wstring const& federationExecutionName, std::vector<std::wstring> const& fomModules,
      std::wstring const& mimModule, std::wstring const& logicalTimeImplementationName)
      RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
            CouldNotOpenFDD, DesignatorIsHLAstandardMIM, ErrorReadingMIM, CouldNotOpenMIM,
            FederationExecutionAlreadyExists, NotConnected, RTIinternalError))
{
   _rti->createFederationExecution(
         federationExecutionName, fomModules, mimModule, logicalTimeImplementationName);
}

void RTIambassadorAdapter::destroyFederationExecution(std::wstring const& federationExecutionName)
      RTI_THROW((FederatesCurrentlyJoined, FederationExecutionDoesNotExist, NotConnected,
            RTIinternalError))
{
   _rti->destroyFederationExecution(federationExecutionName);
}

void RTIambassadorAdapter::listFederationExecutions() RTI_THROW((NotConnected, RTIinternalError))
{
   _rti->listFederationExecutions();
}

FederateHandle RTIambassadorAdapter::joinFederationExecution(std::wstring const& federateType,
      std::wstring const& federationExecutionName,
      std::vector<std::wstring> const& additionalFomModules)
      RTI_THROW((CouldNotCreateLogicalTimeFactory, FederationExecutionDoesNotExist, InconsistentFDD,
            ErrorReadingFDD, CouldNotOpenFDD, SaveInProgress, RestoreInProgress,
            FederateAlreadyExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
            RTIinternalError))
{
   return _rti->joinFederationExecution(
         federateType, federationExecutionName, additionalFomModules);
}

FederateHandle RTIambassadorAdapter::joinFederationExecution(std::wstring const& federateName,
      std::wstring const& federateType, std::wstring const& federationExecutionName,
      std::vector<std::wstring> const& additionalFomModules)
      RTI_THROW((CouldNotCreateLogicalTimeFactory, FederateNameAlreadyInUse,
            FederationExecutionDoesNotExist, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
            SaveInProgress, RestoreInProgress, FederateAlreadyExecutionMember, NotConnected,
            CallNotAllowedFromWithinCallback, RTIinternalError))
{
   return _rti->joinFederationExecution(
         federateName, federateType, federationExecutionName, additionalFomModules);
}

void RTIambassadorAdapter::resignFederationExecution(ResignAction theResignAction) RTI_THROW((
      InvalidResignAction, OwnershipAcquisitionPending, FederateOwnsAttributes,
      FederateNotExecutionMember, NotConnected, CallNotAllowedFromWithinCallback, RTIinternalError))
{
   _rti->resignFederationExecution(theResignAction);
}

void RTIambassadorAdapter::registerFederationSynchronizationPoint(std::wstring const& label,
      VariableLengthData const& theUserSuppliedTag) RTI_THROW((RTI_COMMON_TAIL))
{
   _rti->registerFederationSynchronizationPoint(label, theUserSuppliedTag);
}

void RTIambassadorAdapter::registerFederationSynchronizationPoint(std::wstring const& label,
      VariableLengthData const& theUserSuppliedTag, FederateHandleSet const& synchronizationSet)
      RTI_THROW((InvalidFederateHandle, RTI_COMMON_TAIL))
{
   _rti->registerFederationSynchronizationPoint(label, theUserSuppliedTag, synchronizationSet);
}

void RTIambassadorAdapter::synchronizationPointAchieved(std::wstring const& label,
      bool successfully) RTI_THROW((SynchronizationPointLabelNotAnnounced, RTI_COMMON_TAIL))
{
   _rti->synchronizationPointAchieved(label, successfully);
}

void RTIambassadorAdapter::requestFederationSave(std::wstring const& label)
      RTI_THROW((RTI_COMMON_TAIL))
{
   _rti->requestFederationSave(label);
}

void RTIambassadorAdapter::requestFederationSave(
      std::wstring const& label, LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
      InvalidLogicalTime, FederateUnableToUseTime, RTI_COMMON_TAIL))
{
   _rti->requestFederationSave(label, theTime);
}

void RTIambassadorAdapter::federateSaveBegun()
      RTI_THROW((SaveNotInitiated, RestoreInProgress, RTI_MEMBER_TAIL))
{
   _rti->federateSaveBegun();
}

void RTIambassadorAdapter::federateSaveComplete()
      RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL))
{
   _rti->federateSaveComplete();
}

void RTIambassadorAdapter::federateSaveNotComplete()
      RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL))
{
   _rti->federateSaveNotComplete();
}

void RTIambassadorAdapter::abortFederationSave() RTI_THROW((SaveNotInProgress, RTI_MEMBER_TAIL))
{
   _rti->abortFederationSave();
}

void RTIambassadorAdapter::queryFederationSaveStatus()
      RTI_THROW((RestoreInProgress, RTI_MEMBER_TAIL))
{
   _rti->queryFederationSaveStatus();
}

void RTIambassadorAdapter::requestFederationRestore(std::wstring const& label)
      RTI_THROW((RTI_COMMON_TAIL))
{
   _rti->requestFederationRestore(label);
}

void RTIambassadorAdapter::federateRestoreComplete()
      RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL))
{
   _rti->federateRestoreComplete();
}

void RTIambassadorAdapter::federateRestoreNotComplete()
      RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL))
{
   _rti->federateRestoreNotComplete();
}

void RTIambassadorAdapter::abortFederationRestore()
      RTI_THROW((RestoreNotInProgress, RTI_MEMBER_TAIL))
{
   _rti->abortFederationRestore();
}

void RTIambassadorAdapter::queryFederationRestoreStatus()
      RTI_THROW((SaveInProgress, RTI_MEMBER_TAIL))
{
   _rti->queryFederationRestoreStatus();
}

// ---- Declaration management ---------------------------------------------------------------------

void RTIambassadorAdapter::publishObjectClassAttributes(
      ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->publishObjectClassAttributes(theClass, theAttributes);
}

void RTIambassadorAdapter::unpublishObjectClass(ObjectClassHandle theClass)
      RTI_THROW((OwnershipAcquisitionPending, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unpublishObjectClass(theClass);
}

void RTIambassadorAdapter::unpublishObjectClassAttributes(ObjectClassHandle theClass,
      AttributeHandleSet const& theAttributes) RTI_THROW((OwnershipAcquisitionPending,
      AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unpublishObjectClassAttributes(theClass, theAttributes);
}

void RTIambassadorAdapter::publishInteractionClass(InteractionClassHandle theInteraction)
      RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->publishInteractionClass(theInteraction);
}

void RTIambassadorAdapter::unpublishInteractionClass(InteractionClassHandle theInteraction)
      RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unpublishInteractionClass(theInteraction);
}

void RTIambassadorAdapter::subscribeObjectClassAttributes(ObjectClassHandle theClass,
      AttributeHandleSet const& theAttributes, bool active,
      std::wstring const& updateRateDesignator) RTI_THROW((AttributeNotDefined,
      ObjectClassNotDefined, InvalidUpdateRateDesignator, RTI_COMMON_TAIL))
{
   _rti->subscribeObjectClassAttributes(theClass, theAttributes, active, updateRateDesignator);
}

void RTIambassadorAdapter::unsubscribeObjectClass(ObjectClassHandle theClass)
      RTI_THROW((ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unsubscribeObjectClass(theClass);
}

void RTIambassadorAdapter::unsubscribeObjectClassAttributes(
      ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unsubscribeObjectClassAttributes(theClass, theAttributes);
}

void RTIambassadorAdapter::subscribeInteractionClass(InteractionClassHandle theInteraction,
      bool active) RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM,
      InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->subscribeInteractionClass(theInteraction, active);
}

void RTIambassadorAdapter::unsubscribeInteractionClass(InteractionClassHandle theInteraction)
      RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->unsubscribeInteractionClass(theInteraction);
}

// ---- Object management --------------------------------------------------------------------------

void RTIambassadorAdapter::reserveObjectInstanceName(std::wstring const& theName)
      RTI_THROW((IllegalName, RTI_COMMON_TAIL))
{
   _rti->reserveObjectInstanceName(theName);
}

void RTIambassadorAdapter::releaseObjectInstanceName(std::wstring const& theName)
      RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL))
{
   _rti->releaseObjectInstanceName(theName);
}

void RTIambassadorAdapter::reserveMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
      RTI_THROW((IllegalName, NameSetWasEmpty, RTI_COMMON_TAIL))
{
   _rti->reserveMultipleObjectInstanceName(theNames);
}

void RTIambassadorAdapter::releaseMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
      RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL))
{
   _rti->releaseMultipleObjectInstanceName(theNames);
}

ObjectInstanceHandle RTIambassadorAdapter::registerObjectInstance(ObjectClassHandle theClass)
      RTI_THROW((ObjectClassNotPublished, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->registerObjectInstance(theClass);
}

ObjectInstanceHandle RTIambassadorAdapter::registerObjectInstance(
      ObjectClassHandle theClass, std::wstring const& theName)
      RTI_THROW((ObjectInstanceNameInUse, ObjectInstanceNameNotReserved, ObjectClassNotPublished,
            ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->registerObjectInstance(theClass, theName);
}

void RTIambassadorAdapter::updateAttributeValues(ObjectInstanceHandle theObject,
      AttributeHandleValueMap const& theAttributeValues,
      VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->updateAttributeValues(theObject, theAttributeValues, theUserSuppliedTag);
}

MessageRetractionHandle RTIambassadorAdapter::updateAttributeValues(ObjectInstanceHandle theObject,
      AttributeHandleValueMap const& theAttributeValues,
      VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
      RTI_THROW((InvalidLogicalTime, AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown,
            RTI_COMMON_TAIL))
{
   return _rti->updateAttributeValues(theObject, theAttributeValues, theUserSuppliedTag, theTime);
}

void RTIambassadorAdapter::sendInteraction(InteractionClassHandle theInteraction,
      ParameterHandleValueMap const& theParameterValues,
      VariableLengthData const& theUserSuppliedTag) RTI_THROW((InteractionClassNotPublished,
      InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->sendInteraction(theInteraction, theParameterValues, theUserSuppliedTag);
}

MessageRetractionHandle RTIambassadorAdapter::sendInteraction(InteractionClassHandle theInteraction,
      ParameterHandleValueMap const& theParameterValues,
      VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
      RTI_THROW((InvalidLogicalTime, InteractionClassNotPublished, InteractionParameterNotDefined,
            InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   return _rti->sendInteraction(theInteraction, theParameterValues, theUserSuppliedTag, theTime);
}

void RTIambassadorAdapter::deleteObjectInstance(
      ObjectInstanceHandle theObject, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((DeletePrivilegeNotHeld, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->deleteObjectInstance(theObject, theUserSuppliedTag);
}

MessageRetractionHandle RTIambassadorAdapter::deleteObjectInstance(ObjectInstanceHandle theObject,
      VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
      RTI_THROW(
            (InvalidLogicalTime, DeletePrivilegeNotHeld, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   return _rti->deleteObjectInstance(theObject, theUserSuppliedTag, theTime);
}

void RTIambassadorAdapter::localDeleteObjectInstance(ObjectInstanceHandle theObject) RTI_THROW((
      OwnershipAcquisitionPending, FederateOwnsAttributes, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->localDeleteObjectInstance(theObject);
}

void RTIambassadorAdapter::requestAttributeValueUpdate(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->requestAttributeValueUpdate(theObject, theAttributes, theUserSuppliedTag);
}

void RTIambassadorAdapter::requestAttributeValueUpdate(ObjectClassHandle theClass,
      AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->requestAttributeValueUpdate(theClass, theAttributes, theUserSuppliedTag);
}

void RTIambassadorAdapter::requestAttributeTransportationTypeChange(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, TransportationType theType)
      RTI_THROW((AttributeAlreadyBeingChanged, AttributeNotOwned, AttributeNotDefined,
            ObjectInstanceNotKnown, InvalidTransportationType, RTI_COMMON_TAIL))
{
   _rti->requestAttributeTransportationTypeChange(theObject, theAttributes, theType);
}

void RTIambassadorAdapter::queryAttributeTransportationType(
      ObjectInstanceHandle theObject, AttributeHandle theAttribute)
      RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->queryAttributeTransportationType(theObject, theAttribute);
}

void RTIambassadorAdapter::requestInteractionTransportationTypeChange(
      InteractionClassHandle theInteraction, TransportationType theType)
      RTI_THROW((InteractionClassAlreadyBeingChanged, InteractionClassNotPublished,
            InteractionClassNotDefined, InvalidTransportationType, RTI_COMMON_TAIL))
{
   _rti->requestInteractionTransportationTypeChange(theInteraction, theType);
}

void RTIambassadorAdapter::queryInteractionTransportationType(
      FederateHandle theFederate, InteractionClassHandle theInteraction)
      RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL))
{
   _rti->queryInteractionTransportationType(theFederate, theInteraction);
}

// ---- Ownership management -----------------------------------------------------------------------

void RTIambassadorAdapter::unconditionalAttributeOwnershipDivestiture(
      ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->unconditionalAttributeOwnershipDivestiture(theObject, theAttributes);
}

void RTIambassadorAdapter::negotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((AttributeAlreadyBeingDivested, AttributeNotOwned, AttributeNotDefined,
            ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->negotiatedAttributeOwnershipDivestiture(theObject, theAttributes, theUserSuppliedTag);
}

void RTIambassadorAdapter::confirmDivestiture(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((NoAcquisitionPending, AttributeDivestitureWasNotRequested, AttributeNotOwned,
            AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->confirmDivestiture(theObject, theAttributes, theUserSuppliedTag);
}

void RTIambassadorAdapter::attributeOwnershipAcquisition(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
      RTI_THROW((AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
            AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->attributeOwnershipAcquisition(theObject, theAttributes, theUserSuppliedTag);
}

void RTIambassadorAdapter::attributeOwnershipAcquisitionIfAvailable(
      ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeAlreadyBeingAcquired, AttributeNotPublished, ObjectClassNotPublished,
            FederateOwnsAttributes, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->attributeOwnershipAcquisitionIfAvailable(theObject, theAttributes);
}

void RTIambassadorAdapter::attributeOwnershipReleaseDenied(
      ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->attributeOwnershipReleaseDenied(theObject, theAttributes);
}

void RTIambassadorAdapter::attributeOwnershipDivestitureIfWanted(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes, AttributeHandleSet& theDivestedAttributes)
      RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   theDivestedAttributes = *_rti->attributeOwnershipDivestitureIfWanted(theObject, theAttributes);
}

void RTIambassadorAdapter::cancelNegotiatedAttributeOwnershipDivestiture(
      ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes)
      RTI_THROW((AttributeDivestitureWasNotRequested, AttributeNotOwned, AttributeNotDefined,
            ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->cancelNegotiatedAttributeOwnershipDivestiture(theObject, theAttributes);
}

void RTIambassadorAdapter::cancelAttributeOwnershipAcquisition(ObjectInstanceHandle theObject,
      AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAcquisitionWasNotRequested,
      AttributeAlreadyOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->cancelAttributeOwnershipAcquisition(theObject, theAttributes);
}

void RTIambassadorAdapter::queryAttributeOwnership(
      ObjectInstanceHandle theObject, AttributeHandle theAttribute)
      RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   _rti->queryAttributeOwnership(theObject, theAttribute);
}

bool RTIambassadorAdapter::isAttributeOwnedByFederate(
      ObjectInstanceHandle theObject, AttributeHandle theAttribute)
      RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL))
{
   return _rti->isAttributeOwnedByFederate(theObject, theAttribute);
}

} // namespace tarn1516e
