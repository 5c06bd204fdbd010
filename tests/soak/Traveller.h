// A federate of the soak: one ambassador that two threads use at once, one of them to travel
// through time with the others, one for everything else.
#ifndef tests_soak_Traveller_h
#define tests_soak_Traveller_h

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTIambassador.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace soak {

// What all of them have done.
struct Totals {
   std::atomic<long> calls{0};
   std::atomic<long> callbacks{0};
   std::atomic<long> messages{0};   // that others are to get
   std::atomic<long> arrivals{0};   // of those
   std::atomic<long> exceptions{0}; // in both directions
   std::atomic<bool> wrong{false};  // something arrived that nobody sent
};

class Traveller : public rti1516e::NullFederateAmbassador {
public:
   // `handle` is the one that its connect gets, the numbers of connects so far. Tags have up to
   // `tagLimit` bytes.
   Traveller(int handle, rti1516e::CallbackModel model, std::size_t tagLimit, Totals& totals);

   void join(std::wstring const& objectModel);

   // After all have joined.
   void startTime();

   // One round of each thread's work.
   void travel();
   void trade();

   // What travel began and waits for.
   bool isAdvancing() const;
   void wait();

   void leave();

private:
   typedef rti1516e::LogicalTime const& Time;
   typedef rti1516e::VariableLengthData const& Tag;
   typedef rti1516e::AttributeHandleValueMap const& Values;
   typedef rti1516e::ParameterHandleValueMap const& Parameters;

   // For a call that is counted.
   rti1516e::RTIambassador& rti();

   rti1516e::VariableLengthData makeTag();
   rti1516e::AttributeHandleValueMap makeValues();
   rti1516e::ParameterHandleValueMap makeParameters();
   void lookUp();
   void tradeOwnership();
   void sendNow();
   void fail();
   void fireNatives();
   void happened();
   void arrived(Tag tag);
   void check(bool right);

   void discoverObjectInstance(rti1516e::ObjectInstanceHandle object, rti1516e::ObjectClassHandle,
         std::wstring const&) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle, Values, Tag tag, rti1516e::OrderType,
         rti1516e::TransportationType, rti1516e::SupplementalReflectInfo) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle, Values, Tag tag, rti1516e::OrderType,
         rti1516e::TransportationType, Time, rti1516e::OrderType,
         rti1516e::SupplementalReflectInfo) override;
   void reflectAttributeValues(rti1516e::ObjectInstanceHandle, Values, Tag tag, rti1516e::OrderType,
         rti1516e::TransportationType, Time, rti1516e::OrderType, rti1516e::MessageRetractionHandle,
         rti1516e::SupplementalReflectInfo) override;
   void receiveInteraction(rti1516e::InteractionClassHandle, Parameters, Tag tag,
         rti1516e::OrderType, rti1516e::TransportationType,
         rti1516e::SupplementalReceiveInfo) override;
   void receiveInteraction(rti1516e::InteractionClassHandle, Parameters, Tag tag,
         rti1516e::OrderType, rti1516e::TransportationType, Time, rti1516e::OrderType,
         rti1516e::SupplementalReceiveInfo) override;
   void receiveInteraction(rti1516e::InteractionClassHandle, Parameters, Tag tag,
         rti1516e::OrderType, rti1516e::TransportationType, Time, rti1516e::OrderType,
         rti1516e::MessageRetractionHandle, rti1516e::SupplementalReceiveInfo) override;
   void removeObjectInstance(rti1516e::ObjectInstanceHandle, Tag, rti1516e::OrderType,
         rti1516e::SupplementalRemoveInfo) override;
   void provideAttributeValueUpdate(
         rti1516e::ObjectInstanceHandle, rti1516e::AttributeHandleSet const&, Tag) override;
   void informAttributeOwnership(rti1516e::ObjectInstanceHandle, rti1516e::AttributeHandle,
         rti1516e::FederateHandle) override;
   void objectInstanceNameReservationSucceeded(std::wstring const&) override;
   void reportAttributeTransportationType(rti1516e::ObjectInstanceHandle, rti1516e::AttributeHandle,
         rti1516e::TransportationType) override;
   void federationNotSaved(rti1516e::SaveFailureReason) override;
   void timeRegulationEnabled(Time) override;
   void timeConstrainedEnabled(Time) override;
   void timeAdvanceGrant(Time time) override;

   int const _handle;
   rti1516e::CallbackModel const _model;
   std::size_t const _tagLimit;
   Totals& _totals;
   std::unique_ptr<rti1516e::RTIambassador> _rti;

   rti1516e::ObjectClassHandle _ship;
   rti1516e::AttributeHandle _name, _position;
   rti1516e::InteractionClassHandle _signal;
   rti1516e::ParameterHandle _text;
   rti1516e::DimensionHandle _area;
   rti1516e::RegionHandle _region;
   rti1516e::ObjectInstanceHandle _mine;
   std::vector<std::string> _frames; // one for each native
   std::size_t _nextFrame = 0;
   std::atomic<unsigned> _tags{0};
   long _trades = 0;

   std::atomic<bool> _isRegulating{false};
   std::atomic<bool> _isConstrained{false};
   std::atomic<long> _granted{0};
   long _asked = 0;
};

} // namespace soak

#endif
