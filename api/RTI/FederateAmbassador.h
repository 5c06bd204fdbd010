// The federate ambassador: what the RTI tells a federate.
#ifndef RTI_FederateAmbassador_h
#define RTI_FederateAmbassador_h

#include <RTI/SpecificConfig.h>

#include <RTI/Enums.h>
#include <RTI/Exception.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>
#include <set>
#include <string>
#include <vector>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Receives the callbacks. A federate derives a class of its own and hands an object of it to
/// RTIambassador::connect; the object stays the federate's. A class that needs only some of the
/// callbacks derives from NullFederateAmbassador.
///
/// Callbacks come on any thread, in the model HLA_EVOKED only while the federate calls
/// evokeCallback or evokeMultipleCallbacks. They may call services whose lists lack
/// CallNotAllowedFromWithinCallback. References hold until the callback returns: what is needed
/// longer must be copied. Times are of the federation's kind.
///
/// What a callback throws goes back to the RTI as the Java exception FederateInternalError. Its
/// text is what() of an Exception, of each character the low 8 bits, what() of a std::exception,
/// the text of a thrown std::string, and "Unknown C++ exception" for anything else. The latter
/// passes uncaught into the Java VM if the environment variable TARN1516_DONTCATCHALL was set when
/// the process made its last ambassador.
///
/// The operations have no exception list, so that a federate may override them with or without the
/// list (FederateInternalError). Up to C++14 an override with a list keeps to it: what is not in
/// it ends the process.
class RTI_EXPORT FederateAmbassador {
protected:
   FederateAmbassador();

public:
   virtual ~FederateAmbassador() = 0;

   // ---- Federation management

   /// The connection to the RTI is lost. The federate is no longer joined.
   virtual void connectionLost(std::wstring const& faultDescription) = 0;

   /// Answers listFederationExecutions, in the RTI's order.
   virtual void reportFederationExecutions(
         FederationExecutionInformationVector const& theExecutions) = 0;

   /// Answers registerFederationSynchronizationPoint.
   virtual void synchronizationPointRegistrationSucceeded(std::wstring const& label) = 0;

   /// Answers registerFederationSynchronizationPoint.
   virtual void synchronizationPointRegistrationFailed(
         std::wstring const& label, SynchronizationPointFailureReason theReason) = 0;

   /// There is a synchronization point. The federate answers by synchronizationPointAchieved when
   /// it has reached it.
   virtual void announceSynchronizationPoint(
         std::wstring const& label, VariableLengthData const& theUserSuppliedTag) = 0;

   /// All federates have reached the synchronization point, those of the set without success.
   virtual void federationSynchronized(
         std::wstring const& label, FederateHandleSet const& failedToSyncSet) = 0;

   /// The federate is to save itself now, under the label. It answers by federateSaveBegun, then by
   /// federateSaveComplete or federateSaveNotComplete.
   virtual void initiateFederateSave(std::wstring const& label) = 0;

   /// The same for a save that was asked for at a logical time.
   virtual void initiateFederateSave(std::wstring const& label, LogicalTime const& theTime) = 0;

   /// The save is complete.
   virtual void federationSaved() = 0;

   /// The save has failed.
   virtual void federationNotSaved(SaveFailureReason theReason) = 0;

   /// Answers queryFederationSaveStatus, in the RTI's order.
   virtual void federationSaveStatusResponse(
         FederateHandleSaveStatusPairVector const& theStatuses) = 0;

   /// Answers requestFederationRestore.
   virtual void requestFederationRestoreSucceeded(std::wstring const& label) = 0;

   /// Answers requestFederationRestore.
   virtual void requestFederationRestoreFailed(std::wstring const& label) = 0;

   /// A restore has begun: the federate waits for initiateFederateRestore.
   virtual void federationRestoreBegun() = 0;

   /// The federate is to restore itself from the save with that label, and has this name and handle
   /// from now on. It answers by federateRestoreComplete or federateRestoreNotComplete.
   virtual void initiateFederateRestore(std::wstring const& label, std::wstring const& federateName,
         FederateHandle postRestoreHandle) = 0;

   /// The restore is complete.
   virtual void federationRestored() = 0;

   /// The restore has failed.
   virtual void federationNotRestored(RestoreFailureReason theReason) = 0;

   /// Answers queryFederationRestoreStatus, in the RTI's order.
   virtual void federationRestoreStatusResponse(FederateRestoreStatusVector const& theStatuses) = 0;

   // ---- Declaration management

   /// Another federate subscribes actively to the object class that this one publishes.
   virtual void startRegistrationForObjectClass(ObjectClassHandle theClass) = 0;

   /// No other federate does any more.
   virtual void stopRegistrationForObjectClass(ObjectClassHandle theClass) = 0;

   /// Another federate subscribes actively to the interaction class that this one publishes.
   virtual void turnInteractionsOn(InteractionClassHandle theInteraction) = 0;

   /// No other federate does any more.
   virtual void turnInteractionsOff(InteractionClassHandle theInteraction) = 0;

   // ---- Object management

   /// Answers reserveObjectInstanceName.
   virtual void objectInstanceNameReservationSucceeded(
         std::wstring const& theObjectInstanceName) = 0;

   /// Answers reserveObjectInstanceName.
   virtual void objectInstanceNameReservationFailed(std::wstring const& theObjectInstanceName) = 0;

   /// Answers reserveMultipleObjectInstanceName.
   virtual void multipleObjectInstanceNameReservationSucceeded(
         std::set<std::wstring> const& theObjectInstanceNames) = 0;

   /// Answers reserveMultipleObjectInstanceName.
   virtual void multipleObjectInstanceNameReservationFailed(
         std::set<std::wstring> const& theObjectInstanceNames) = 0;

   /// There is an object instance that the federate subscribes to. The class is the subscribed one,
   /// which can be a superclass of the one it was registered as.
   virtual void discoverObjectInstance(ObjectInstanceHandle theObject, ObjectClassHandle theClass,
         std::wstring const& theObjectInstanceName) = 0;

   /// The same, with the federate that registered it.
   virtual void discoverObjectInstance(ObjectInstanceHandle theObject, ObjectClassHandle theClass,
         std::wstring const& theObjectInstanceName, FederateHandle theProducingFederate) = 0;

   /// New values of attributes, sent without a time stamp. In all three forms hasSentRegions of the
   /// record is false, even if sentRegions holds the regions that the update was sent with.
   virtual void reflectAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, SupplementalReflectInfo theReflectInfo) = 0;

   /// New values of attributes, sent with a time stamp. The message was sent in sentOrder and comes
   /// in receivedOrder.
   virtual void reflectAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, LogicalTime const& theTime, OrderType receivedOrder,
         SupplementalReflectInfo theReflectInfo) = 0;

   /// The same for a message that its sender can still retract: requestRetraction names the handle.
   virtual void reflectAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, LogicalTime const& theTime, OrderType receivedOrder,
         MessageRetractionHandle theHandle, SupplementalReflectInfo theReflectInfo) = 0;

   /// An interaction, sent without a time stamp. hasSentRegions of the record tells whether it was
   /// sent with regions.
   virtual void receiveInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, SupplementalReceiveInfo theReceiveInfo) = 0;

   /// An interaction, sent with a time stamp, in sentOrder, and received in receivedOrder.
   virtual void receiveInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, LogicalTime const& theTime, OrderType receivedOrder,
         SupplementalReceiveInfo theReceiveInfo) = 0;

   /// The same for a message that its sender can still retract.
   virtual void receiveInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         TransportationType theType, LogicalTime const& theTime, OrderType receivedOrder,
         MessageRetractionHandle theHandle, SupplementalReceiveInfo theReceiveInfo) = 0;

   /// The object instance was deleted, without a time stamp.
   virtual void removeObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         SupplementalRemoveInfo theRemoveInfo) = 0;

   /// The object instance was deleted, with a time stamp, in sentOrder, and is removed in
   /// receivedOrder.
   virtual void removeObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         LogicalTime const& theTime, OrderType receivedOrder,
         SupplementalRemoveInfo theRemoveInfo) = 0;

   /// The same for a message that its sender can still retract.
   virtual void removeObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, OrderType sentOrder,
         LogicalTime const& theTime, OrderType receivedOrder, MessageRetractionHandle theHandle,
         SupplementalRemoveInfo theRemoveInfo) = 0;

   /// Updates of the attributes can reach this federate from now on.
   virtual void attributesInScope(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// They no longer can.
   virtual void attributesOutOfScope(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// Another federate asks for the values of attributes that this one owns. It answers by
   /// updateAttributeValues.
   virtual void provideAttributeValueUpdate(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag) = 0;

   /// Another federate subscribes actively to attributes that this one owns.
   virtual void turnUpdatesOnForObjectInstance(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// The same, with the highest update rate that is asked for.
   virtual void turnUpdatesOnForObjectInstance(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, std::wstring const& updateRateDesignator) = 0;

   /// No other federate does any more.
   virtual void turnUpdatesOffForObjectInstance(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// Answers requestAttributeTransportationTypeChange.
   virtual void confirmAttributeTransportationTypeChange(ObjectInstanceHandle theObject,
         AttributeHandleSet theAttributes, TransportationType theType) = 0;

   /// Answers queryAttributeTransportationType.
   virtual void reportAttributeTransportationType(ObjectInstanceHandle theObject,
         AttributeHandle theAttribute, TransportationType theType) = 0;

   /// Answers requestInteractionTransportationTypeChange.
   virtual void confirmInteractionTransportationTypeChange(
         InteractionClassHandle theInteraction, TransportationType theType) = 0;

   /// Answers queryInteractionTransportationType.
   virtual void reportInteractionTransportationType(FederateHandle theFederate,
         InteractionClassHandle theInteraction, TransportationType theType) = 0;

   // ---- Ownership management

   /// The attributes are offered, or nobody owns them. The federate may answer by
   /// attributeOwnershipAcquisition or attributeOwnershipAcquisitionIfAvailable.
   virtual void requestAttributeOwnershipAssumption(ObjectInstanceHandle theObject,
         AttributeHandleSet const& offeredAttributes,
         VariableLengthData const& theUserSuppliedTag) = 0;

   /// Another federate wants the attributes that this one offers. It answers by confirmDivestiture
   /// or cancelNegotiatedAttributeOwnershipDivestiture.
   virtual void requestDivestitureConfirmation(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// The federate owns the attributes from now on.
   virtual void attributeOwnershipAcquisitionNotification(ObjectInstanceHandle theObject,
         AttributeHandleSet const& securedAttributes,
         VariableLengthData const& theUserSuppliedTag) = 0;

   /// Answers attributeOwnershipAcquisitionIfAvailable: another federate owns the attributes.
   virtual void attributeOwnershipUnavailable(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// Another federate wants attributes that this one owns. It answers by
   /// attributeOwnershipDivestitureIfWanted, attributeOwnershipReleaseDenied or one of the
   /// divestitures.
   virtual void requestAttributeOwnershipRelease(ObjectInstanceHandle theObject,
         AttributeHandleSet const& candidateAttributes,
         VariableLengthData const& theUserSuppliedTag) = 0;

   /// Answers cancelAttributeOwnershipAcquisition.
   virtual void confirmAttributeOwnershipAcquisitionCancellation(
         ObjectInstanceHandle theObject, AttributeHandleSet const& theAttributes) = 0;

   /// Answers queryAttributeOwnership.
   virtual void informAttributeOwnership(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute, FederateHandle theOwner) = 0;

   /// Answers queryAttributeOwnership: nobody owns the attribute.
   virtual void attributeIsNotOwned(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute) = 0;

   /// Answers queryAttributeOwnership: the RTI owns the attribute.
   virtual void attributeIsOwnedByRTI(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute) = 0;

   // ---- Time management

   /// Answers enableTimeRegulation, with the federate's time.
   virtual void timeRegulationEnabled(LogicalTime const& theTime) = 0;

   /// Answers enableTimeConstrained, with the federate's time.
   virtual void timeConstrainedEnabled(LogicalTime const& theTime) = 0;

   /// Answers the five services that ask for an advance: the federate's time is now theTime.
   virtual void timeAdvanceGrant(LogicalTime const& theTime) = 0;

   /// The sender takes back a message that the federate has got already.
   virtual void requestRetraction(MessageRetractionHandle theHandle) = 0;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
