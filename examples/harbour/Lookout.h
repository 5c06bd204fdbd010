// A federate that comes late: it asks who is there and what was sent before it came.
#ifndef harbour_Lookout_h
#define harbour_Lookout_h

#include "Inbox.h"

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>

#include <map>
#include <set>

// Who is there it learns from the management object model, in which the RTI itself has an object
// instance for each federate. The ships tell their state when they are asked to. The lookout has no
// part in the federation's time, and takes its callbacks when it asks for them.
class Lookout : public rti1516e::NullFederateAmbassador {
public:
   Lookout(std::wstring const& name, Ledger& ledger);

   // To a federation execution that is under way.
   void join();

   // Until all ships and all federates have told what they are.
   void look(std::set<std::wstring> const& expected);

   // The ships may go now.
   void finish();

   void leave();

   int services() const;
   int callbacks() const;

private:
   void subscribe();
   void waitUntil(std::function<bool()> const& condition);
   void see(rti1516e::ObjectInstanceHandle object, rti1516e::AttributeHandleValueMap const& values,
         std::wstring const& tag);

   // Callbacks.
   void synchronizationPointRegistrationSucceeded(std::wstring const& label) override;
   void announceSynchronizationPoint(
         std::wstring const& label, rti1516e::VariableLengthData const& tag) override;
   void federationSynchronized(
         std::wstring const& label, rti1516e::FederateHandleSet const& failed) override;
   void discoverObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::ObjectClassHandle objectClass, std::wstring const& name) override;
   void discoverObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::ObjectClassHandle objectClass, std::wstring const& name,
         rti1516e::FederateHandle producer) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle object,
         rti1516e::AttributeHandleValueMap const& values, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType sent, rti1516e::TransportationType type,
         rti1516e::SupplementalReflectInfo info) override;
   void removeObjectInstance(rti1516e::ObjectInstanceHandle object,
         rti1516e::VariableLengthData const& tag, rti1516e::OrderType sent,
         rti1516e::SupplementalRemoveInfo info) override;

   // A federate as the RTI tells of it.
   struct Known {
      std::wstring name, type;
   };

   std::wstring const _name;
   Ledger& _ledger;

   ShipClass _shipClass;
   rti1516e::ObjectClassHandle _federateClass;
   rti1516e::AttributeHandleSet _federateAttributes;
   rti1516e::AttributeHandle _federateName, _federateType;

   // What callbacks change.
   Inbox _inbox;
   bool _announced = false;
   bool _synchronized = false;
   std::map<rti1516e::ObjectInstanceHandle, Ship> _ships;
   std::map<rti1516e::ObjectInstanceHandle, Known> _federates;

   Ambassador _rti;
};

#endif
