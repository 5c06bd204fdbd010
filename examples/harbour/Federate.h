// A federate of the harbour: joins, sails and signals for some time steps, and leaves.
#ifndef harbour_Federate_h
#define harbour_Federate_h

#include "Inbox.h"

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAinteger64Time.h>

#include <map>
#include <set>

// Both ships live this same life, each on a thread of its own; they differ in their name, their
// callback model and in what they send. Ship updates and signals carry a time; both federates
// regulate time and are constrained by it.
class Federate : public rti1516e::NullFederateAmbassador {
public:
   Federate(std::wstring const& name, rti1516e::CallbackModel model, Ledger& ledger);

   // Up to the federation execution. The one that comes first creates it from the FOM module.
   void join(std::wstring const& fomModule);

   // Registers the synchronization point at which both begin.
   void registerStart();

   // From the synchronization point at the start through the time steps.
   void run(int steps);

   // Until the lookout has seen everything.
   void stay();

   // Only the last one to leave succeeds in destroying the federation execution.
   void leave();

   int services() const;
   int callbacks() const;

private:
   void declare();
   void registerShip();
   void startTime();
   void step(long long time);
   void sendShip(long long time);
   void sendSignal(long long time);
   void waitUntil(std::function<bool()> const& condition);

   // Callbacks.
   void synchronizationPointRegistrationSucceeded(std::wstring const& label) override;
   void announceSynchronizationPoint(
         std::wstring const& label, rti1516e::VariableLengthData const& tag) override;
   void federationSynchronized(
         std::wstring const& label, rti1516e::FederateHandleSet const& failed) override;
   void startRegistrationForObjectClass(rti1516e::ObjectClassHandle objectClass) override;
   void stopRegistrationForObjectClass(rti1516e::ObjectClassHandle objectClass) override;
   void turnInteractionsOn(rti1516e::InteractionClassHandle interaction) override;
   void turnInteractionsOff(rti1516e::InteractionClassHandle interaction) override;
   void objectInstanceNameReservationSucceeded(std::wstring const& name) override;
   void objectInstanceNameReservationFailed(std::wstring const& name) override;
   void discoverObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::ObjectClassHandle objectClass, std::wstring const& name) override;
   void discoverObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::ObjectClassHandle objectClass, std::wstring const& name,
         rti1516e::FederateHandle producer) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle object,
         rti1516e::AttributeHandleValueMap const& values, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType sent, rti1516e::TransportationType type,
         rti1516e::LogicalTime const& time, rti1516e::OrderType received,
         rti1516e::SupplementalReflectInfo info) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle object,
         rti1516e::AttributeHandleValueMap const& values, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType sent, rti1516e::TransportationType type,
         rti1516e::LogicalTime const& time, rti1516e::OrderType received,
         rti1516e::MessageRetractionHandle handle, rti1516e::SupplementalReflectInfo info) override;
   void provideAttributeValueUpdate(rti1516e::ObjectInstanceHandle object,
         rti1516e::AttributeHandleSet const& wanted,
         rti1516e::VariableLengthData const& tag) override;
   void removeObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::VariableLengthData const& tag, rti1516e::OrderType sent,
         rti1516e::SupplementalRemoveInfo info) override;
   void receiveInteraction(rti1516e::InteractionClassHandle interaction,
         rti1516e::ParameterHandleValueMap const& values, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType sent, rti1516e::TransportationType type,
         rti1516e::LogicalTime const& time, rti1516e::OrderType received,
         rti1516e::SupplementalReceiveInfo info) override;
   void receiveInteraction(rti1516e::InteractionClassHandle interaction,
         rti1516e::ParameterHandleValueMap const& values, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType sent, rti1516e::TransportationType type,
         rti1516e::LogicalTime const& time, rti1516e::OrderType received,
         rti1516e::MessageRetractionHandle handle, rti1516e::SupplementalReceiveInfo info) override;
   void timeRegulationEnabled(rti1516e::LogicalTime const& time) override;
   void timeConstrainedEnabled(rti1516e::LogicalTime const& time) override;
   void timeAdvanceGrant(rti1516e::LogicalTime const& time) override;

   std::wstring const _name;
   rti1516e::CallbackModel const _model;
   Ledger& _ledger;

   ShipClass _shipClass;
   rti1516e::InteractionClassHandle _signalClass;
   rti1516e::ParameterHandle _text, _strength;
   rti1516e::ObjectInstanceHandle _ship;
   Ship _sent; // its last state, which others know

   // What callbacks change.
   Inbox _inbox;
   std::set<std::wstring> _announced, _synchronized;
   enum {
      ASKED,
      RESERVED,
      REFUSED
   } _nameState = ASKED;
   std::map<rti1516e::ObjectInstanceHandle, Ship> _others; // as last reflected
   bool _regulating = false;
   bool _constrained = false;
   long long _granted = -1;

   Ambassador _rti;
};

#endif
