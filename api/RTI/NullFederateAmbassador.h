// A federate ambassador that ignores everything it is told.
#ifndef RTI_NullFederateAmbassador_h
#define RTI_NullFederateAmbassador_h

#include <RTI/FederateAmbassador.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Every callback does nothing. A federate derives its ambassador from this class and overrides
/// the callbacks that concern it.
class RTI_EXPORT NullFederateAmbassador : public FederateAmbassador {
public:
   NullFederateAmbassador() {}
   virtual ~NullFederateAmbassador() {}

   // ---- Federation management

   virtual void connectionLost(std::wstring const&) {}
   virtual void reportFederationExecutions(FederationExecutionInformationVector const&) {}
   virtual void synchronizationPointRegistrationSucceeded(std::wstring const&) {}
   virtual void synchronizationPointRegistrationFailed(
         std::wstring const&, SynchronizationPointFailureReason)
   {
   }
   virtual void announceSynchronizationPoint(std::wstring const&, VariableLengthData const&) {}
   virtual void federationSynchronized(std::wstring const&, FederateHandleSet const&) {}
   virtual void initiateFederateSave(std::wstring const&) {}
   virtual void initiateFederateSave(std::wstring const&, LogicalTime const&) {}
   virtual void federationSaved() {}
   virtual void federationNotSaved(SaveFailureReason) {}
   virtual void federationSaveStatusResponse(FederateHandleSaveStatusPairVector const&) {}
   virtual void requestFederationRestoreSucceeded(std::wstring const&) {}
   virtual void requestFederationRestoreFailed(std::wstring const&) {}
   virtual void federationRestoreBegun() {}
   virtual void initiateFederateRestore(std::wstring const&, std::wstring const&, FederateHandle) {}
   virtual void federationRestored() {}
   virtual void federationNotRestored(RestoreFailureReason) {}
   virtual void federationRestoreStatusResponse(FederateRestoreStatusVector const&) {}

   // ---- Declaration management

   virtual void startRegistrationForObjectClass(ObjectClassHandle) {}
   virtual void stopRegistrationForObjectClass(ObjectClassHandle) {}
   virtual void turnInteractionsOn(InteractionClassHandle) {}
   virtual void turnInteractionsOff(InteractionClassHandle) {}

   // ---- Object management

   virtual void objectInstanceNameReservationSucceeded(std::wstring const&) {}
   virtual void objectInstanceNameReservationFailed(std::wstring const&) {}
   virtual void multipleObjectInstanceNameReservationSucceeded(std::set<std::wstring> const&) {}
   virtual void multipleObjectInstanceNameReservationFailed(std::set<std::wstring> const&) {}
   virtual void discoverObjectInstance(ObjectInstanceHandle, ObjectClassHandle, std::wstring const&)
   {
   }
   virtual void discoverObjectInstance(
         ObjectInstanceHandle, ObjectClassHandle, std::wstring const&, FederateHandle)
   {
   }
   virtual void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, SupplementalReflectInfo)
   {
   }
   virtual void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         SupplementalReflectInfo)
   {
   }
   virtual void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         MessageRetractionHandle, SupplementalReflectInfo)
   {
   }
   virtual void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, SupplementalReceiveInfo)
   {
   }
   virtual void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         SupplementalReceiveInfo)
   {
   }
   virtual void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         MessageRetractionHandle, SupplementalReceiveInfo)
   {
   }
   virtual void removeObjectInstance(
         ObjectInstanceHandle, VariableLengthData const&, OrderType, SupplementalRemoveInfo)
   {
   }
   virtual void removeObjectInstance(ObjectInstanceHandle, VariableLengthData const&, OrderType,
         LogicalTime const&, OrderType, SupplementalRemoveInfo)
   {
   }
   virtual void removeObjectInstance(ObjectInstanceHandle, VariableLengthData const&, OrderType,
         LogicalTime const&, OrderType, MessageRetractionHandle, SupplementalRemoveInfo)
   {
   }
   virtual void attributesInScope(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void attributesOutOfScope(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void provideAttributeValueUpdate(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&)
   {
   }
   virtual void turnUpdatesOnForObjectInstance(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void turnUpdatesOnForObjectInstance(
         ObjectInstanceHandle, AttributeHandleSet const&, std::wstring const&)
   {
   }
   virtual void turnUpdatesOffForObjectInstance(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void confirmAttributeTransportationTypeChange(
         ObjectInstanceHandle, AttributeHandleSet, TransportationType)
   {
   }
   virtual void reportAttributeTransportationType(
         ObjectInstanceHandle, AttributeHandle, TransportationType)
   {
   }
   virtual void confirmInteractionTransportationTypeChange(
         InteractionClassHandle, TransportationType)
   {
   }
   virtual void reportInteractionTransportationType(
         FederateHandle, InteractionClassHandle, TransportationType)
   {
   }

   // ---- Ownership management

   virtual void requestAttributeOwnershipAssumption(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&)
   {
   }
   virtual void requestDivestitureConfirmation(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void attributeOwnershipAcquisitionNotification(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&)
   {
   }
   virtual void attributeOwnershipUnavailable(ObjectInstanceHandle, AttributeHandleSet const&) {}
   virtual void requestAttributeOwnershipRelease(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&)
   {
   }
   virtual void confirmAttributeOwnershipAcquisitionCancellation(
         ObjectInstanceHandle, AttributeHandleSet const&)
   {
   }
   virtual void informAttributeOwnership(ObjectInstanceHandle, AttributeHandle, FederateHandle) {}
   virtual void attributeIsNotOwned(ObjectInstanceHandle, AttributeHandle) {}
   virtual void attributeIsOwnedByRTI(ObjectInstanceHandle, AttributeHandle) {}

   // ---- Time management

   virtual void timeRegulationEnabled(LogicalTime const&) {}
   virtual void timeConstrainedEnabled(LogicalTime const&) {}
   virtual void timeAdvanceGrant(LogicalTime const&) {}
   virtual void requestRetraction(MessageRetractionHandle) {}
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
