// A federate that derives from FederateAmbassador itself and so overrides every callback.
// compile: 98 11 14 17 20 2b -DLIST= -DOVERRIDE=
// compile: 11 14 17 20 2b -DLIST= -DOVERRIDE=override
// compile: 98 11 14 -DLIST=throw(FederateInternalError) -DOVERRIDE= -Wno-deprecated
#include <RTI/FederateAmbassador.h>

using namespace rti1516e;

namespace {

class Listener : public FederateAmbassador {
public:
   virtual ~Listener() RTI_NOEXCEPT {}

   void connectionLost(std::wstring const&) LIST OVERRIDE {}
   void reportFederationExecutions(FederationExecutionInformationVector const&) LIST OVERRIDE {}
   void synchronizationPointRegistrationSucceeded(std::wstring const&) LIST OVERRIDE {}
   void synchronizationPointRegistrationFailed(
         std::wstring const&, SynchronizationPointFailureReason) LIST OVERRIDE
   {
   }
   void announceSynchronizationPoint(std::wstring const&, VariableLengthData const&) LIST OVERRIDE
   {
   }
   void federationSynchronized(std::wstring const&, FederateHandleSet const&) LIST OVERRIDE {}
   void initiateFederateSave(std::wstring const&) LIST OVERRIDE {}
   void initiateFederateSave(std::wstring const&, LogicalTime const&) LIST OVERRIDE {}
   void federationSaved() LIST OVERRIDE {}
   void federationNotSaved(SaveFailureReason) LIST OVERRIDE {}
   void federationSaveStatusResponse(FederateHandleSaveStatusPairVector const&) LIST OVERRIDE {}
   void requestFederationRestoreSucceeded(std::wstring const&) LIST OVERRIDE {}
   void requestFederationRestoreFailed(std::wstring const&) LIST OVERRIDE {}
   void federationRestoreBegun() LIST OVERRIDE {}
   void initiateFederateRestore(
         std::wstring const&, std::wstring const&, FederateHandle) LIST OVERRIDE
   {
   }
   void federationRestored() LIST OVERRIDE {}
   void federationNotRestored(RestoreFailureReason) LIST OVERRIDE {}
   void federationRestoreStatusResponse(FederateRestoreStatusVector const&) LIST OVERRIDE {}
   void startRegistrationForObjectClass(ObjectClassHandle) LIST OVERRIDE {}
   void stopRegistrationForObjectClass(ObjectClassHandle) LIST OVERRIDE {}
   void turnInteractionsOn(InteractionClassHandle) LIST OVERRIDE {}
   void turnInteractionsOff(InteractionClassHandle) LIST OVERRIDE {}
   void objectInstanceNameReservationSucceeded(std::wstring const&) LIST OVERRIDE {}
   void objectInstanceNameReservationFailed(std::wstring const&) LIST OVERRIDE {}
   void multipleObjectInstanceNameReservationSucceeded(std::set<std::wstring> const&) LIST OVERRIDE
   {
   }
   void multipleObjectInstanceNameReservationFailed(std::set<std::wstring> const&) LIST OVERRIDE {}
   void discoverObjectInstance(
         ObjectInstanceHandle, ObjectClassHandle, std::wstring const&) LIST OVERRIDE
   {
   }
   void discoverObjectInstance(
         ObjectInstanceHandle, ObjectClassHandle, std::wstring const&, FederateHandle) LIST OVERRIDE
   {
   }
   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType,
         SupplementalReflectInfo) LIST OVERRIDE
   {
   }
   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         SupplementalReflectInfo) LIST OVERRIDE
   {
   }
   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         MessageRetractionHandle, SupplementalReflectInfo) LIST OVERRIDE
   {
   }
   void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType,
         SupplementalReceiveInfo) LIST OVERRIDE
   {
   }
   void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         SupplementalReceiveInfo) LIST OVERRIDE
   {
   }
   void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const&,
         VariableLengthData const&, OrderType, TransportationType, LogicalTime const&, OrderType,
         MessageRetractionHandle, SupplementalReceiveInfo) LIST OVERRIDE
   {
   }
   void removeObjectInstance(ObjectInstanceHandle, VariableLengthData const&, OrderType,
         SupplementalRemoveInfo) LIST OVERRIDE
   {
   }
   void removeObjectInstance(ObjectInstanceHandle, VariableLengthData const&, OrderType,
         LogicalTime const&, OrderType, SupplementalRemoveInfo) LIST OVERRIDE
   {
   }
   void removeObjectInstance(ObjectInstanceHandle, VariableLengthData const&, OrderType,
         LogicalTime const&, OrderType, MessageRetractionHandle,
         SupplementalRemoveInfo) LIST OVERRIDE
   {
   }
   void attributesInScope(ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE {}
   void attributesOutOfScope(ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE {}
   void provideAttributeValueUpdate(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&) LIST OVERRIDE
   {
   }
   void turnUpdatesOnForObjectInstance(
         ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE
   {
   }
   void turnUpdatesOnForObjectInstance(
         ObjectInstanceHandle, AttributeHandleSet const&, std::wstring const&) LIST OVERRIDE
   {
   }
   void turnUpdatesOffForObjectInstance(
         ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE
   {
   }
   void confirmAttributeTransportationTypeChange(
         ObjectInstanceHandle, AttributeHandleSet, TransportationType) LIST OVERRIDE
   {
   }
   void reportAttributeTransportationType(
         ObjectInstanceHandle, AttributeHandle, TransportationType) LIST OVERRIDE
   {
   }
   void confirmInteractionTransportationTypeChange(
         InteractionClassHandle, TransportationType) LIST OVERRIDE
   {
   }
   void reportInteractionTransportationType(
         FederateHandle, InteractionClassHandle, TransportationType) LIST OVERRIDE
   {
   }
   void requestAttributeOwnershipAssumption(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&) LIST OVERRIDE
   {
   }
   void requestDivestitureConfirmation(
         ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE
   {
   }
   void attributeOwnershipAcquisitionNotification(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&) LIST OVERRIDE
   {
   }
   void attributeOwnershipUnavailable(ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE
   {
   }
   void requestAttributeOwnershipRelease(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&) LIST OVERRIDE
   {
   }
   void confirmAttributeOwnershipAcquisitionCancellation(
         ObjectInstanceHandle, AttributeHandleSet const&) LIST OVERRIDE
   {
   }
   void informAttributeOwnership(
         ObjectInstanceHandle, AttributeHandle, FederateHandle) LIST OVERRIDE
   {
   }
   void attributeIsNotOwned(ObjectInstanceHandle, AttributeHandle) LIST OVERRIDE {}
   void attributeIsOwnedByRTI(ObjectInstanceHandle, AttributeHandle) LIST OVERRIDE {}
   void timeRegulationEnabled(LogicalTime const&) LIST OVERRIDE {}
   void timeConstrainedEnabled(LogicalTime const&) LIST OVERRIDE {}
   void timeAdvanceGrant(LogicalTime const&) LIST OVERRIDE {}
   void requestRetraction(MessageRetractionHandle) LIST OVERRIDE {}
};

} // namespace

FederateAmbassador* makeListener()
{
   return new Listener;
}
