#include "tests/soak/Traveller.h"

#include "tests/reliability/FrameModel.h"
#include "tests/soak/Fire.h"
#include <RTI/RTIambassadorFactory.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

#include <chrono>
#include <stdexcept>
#include <thread>

using namespace rti1516e;

namespace soak {

namespace {

std::wstring const federation = L"Soak";
int const shots = 40;              // of one native in a row
long const backlogLimit = 4000000; // bytes of messages that are on their way
thread_local bool firing = false;  // callbacks come from a frame of this thread's

} // namespace

Traveller::Traveller(int handle, CallbackModel model, std::size_t tagLimit, Totals& totals)
      : _handle(handle),
        _model(model),
        _tagLimit(tagLimit),
        _totals(totals),
        _rti(RTIambassadorFactory().createRTIambassador().release())
{
   for (std::string const& operation : reliability::operations()) {
      _frames.push_back(reliability::sampleFrame(operation, handle));
   }
   _rti->connect(*this, model);
}

RTIambassador& Traveller::rti()
{
   ++_totals.calls;
   return *_rti;
}

void Traveller::join(std::wstring const& objectModel)
{
   try {
      _rti->createFederationExecution(federation, objectModel, L"HLAinteger64Time");
   } catch (FederationExecutionAlreadyExists const&) {
   }
   _rti->joinFederationExecution(L"Vessel", federation);
   _ship = _rti->getObjectClassHandle(L"Ship");
   _name = _rti->getAttributeHandle(_ship, L"Name");
   _position = _rti->getAttributeHandle(_ship, L"Position");
   _signal = _rti->getInteractionClassHandle(L"Signal");
   _text = _rti->getParameterHandle(_signal, L"Text");
   _area = _rti->getDimensionHandle(L"SeaArea");
   AttributeHandleSet attributes;
   attributes.insert(_name);
   attributes.insert(_position);
   _rti->publishObjectClassAttributes(_ship, attributes);
   _rti->subscribeObjectClassAttributes(_ship, attributes);
   _rti->publishInteractionClass(_signal);
   _rti->subscribeInteractionClass(_signal);
   _rti->enableAsynchronousDelivery();
   DimensionHandleSet dimensions;
   dimensions.insert(_area);
   _region = _rti->createRegion(dimensions);
   RegionHandleSet regions;
   regions.insert(_region);
   _rti->commitRegionModifications(regions);
   _mine = _rti->registerObjectInstance(_ship);
}

void Traveller::startTime()
{
   _rti->enableTimeRegulation(HLAinteger64Interval(1));
   while (!_isRegulating) {
      wait();
   }
   _rti->enableTimeConstrained();
   while (!_isConstrained) {
      wait();
   }
}

VariableLengthData Traveller::makeTag()
{
   unsigned const number = ++_tags;
   std::string const bytes(number * 37 % _tagLimit, static_cast<char>(number % 256));
   return VariableLengthData(bytes.data(), bytes.size());
}

AttributeHandleValueMap Traveller::makeValues()
{
   AttributeHandleValueMap values;
   values[_name] = VariableLengthData("MS Endurance", 12);
   values[_position] = makeTag();
   return values;
}

ParameterHandleValueMap Traveller::makeParameters()
{
   ParameterHandleValueMap values;
   values[_text] = VariableLengthData("ahoy", 4);
   return values;
}

// Messages for the next moment, and then there.
void Traveller::travel()
{
   HLAinteger64Time const next(_asked + 1);
   rti().updateAttributeValues(_mine, makeValues(), makeTag(), next);
   rti().sendInteraction(_signal, makeParameters(), makeTag(), next);
   RegionHandleSet regions;
   regions.insert(_region);
   rti().sendInteractionWithRegions(_signal, makeParameters(), regions, makeTag(), next);
   _totals.messages += 9;
   MessageRetractionHandle const retracted =
         rti().updateAttributeValues(_mine, makeValues(), makeTag(), next);
   if (retracted.isValid()) {
      rti().retract(retracted);
   }
   HLAinteger64Time now;
   rti().queryLogicalTime(now);
   HLAinteger64Time bound;
   rti().queryGALT(bound);
   rti().queryLITS(bound);
   HLAinteger64Interval lookahead;
   rti().queryLookahead(lookahead);
   check(now.getTime() == _asked && lookahead.getInterval() == 1);
   ++_asked;
   if (_asked % 2 == 0) {
      rti().timeAdvanceRequest(next);
   } else {
      rti().nextMessageRequest(next);
   }
}

bool Traveller::isAdvancing() const
{
   return _granted < _asked;
}

void Traveller::wait()
{
   if (_model == HLA_EVOKED) {
      rti().evokeMultipleCallbacks(0.001, 0.01);
   } else {
      std::this_thread::sleep_for(std::chrono::microseconds(50));
   }
}

void Traveller::trade()
{
   lookUp();
   fireNatives();
   if ((_totals.messages - _totals.arrivals) * static_cast<long>(_tagLimit) < backlogLimit) {
      sendNow();
      tradeOwnership();
   }
   if (_trades++ % 16 == 0) {
      fail();
   }
   if (_model == HLA_EVOKED) {
      rti().evokeCallback(0);
   }
}

void Traveller::lookUp()
{
   check(rti().getObjectClassHandle(L"Ship") == _ship);
   check(rti().getAttributeHandle(_ship, L"Name") == _name);
   check(rti().getAttributeName(_ship, _position) == L"Position");
   check(rti().getInteractionClassHandle(L"Signal") == _signal);
   check(rti().getParameterName(_signal, _text) == L"Text");
   check(rti().getOrderType(L"TimeStamp") == TIMESTAMP);
   check(rti().getTransportationName(RELIABLE) == L"HLAreliable");
   check(rti().getDimensionHandleSet(_region).count(_area) == 1);
   check(rti().getAvailableDimensionsForInteractionClass(_signal).count(_area) == 1);
   RangeBounds const bounds = rti().getRangeBounds(_region, _area);
   rti().setRangeBounds(_region, _area, bounds);
   check(rti().getKnownObjectClassHandle(_mine) == _ship);
   check(rti().getObjectInstanceHandle(rti().getObjectInstanceName(_mine)) == _mine);
   check(rti().isAttributeOwnedByFederate(_mine, _name));
}

void Traveller::sendNow()
{
   rti().changeInteractionOrderType(_signal, RECEIVE);
   rti().sendInteraction(_signal, makeParameters(), makeTag());
   RegionHandleSet regions;
   regions.insert(_region);
   rti().sendInteractionWithRegions(_signal, makeParameters(), regions, makeTag());
   rti().updateAttributeValues(_mine, makeValues(), makeTag());
   rti().changeInteractionOrderType(_signal, TIMESTAMP);
   _totals.messages += 9;
}

void Traveller::tradeOwnership()
{
   rti().queryAttributeOwnership(_mine, _name);
   rti().queryAttributeTransportationType(_mine, _name);
   AttributeHandleSet attributes;
   attributes.insert(_position);
   rti().requestAttributeValueUpdate(_ship, attributes, makeTag());
   std::wstring const name = L"buoy " + std::to_wstring(_handle) + L" " + std::to_wstring(_trades);
   rti().reserveObjectInstanceName(name);
   rti().releaseObjectInstanceName(name);
   ObjectInstanceHandle const buoy = rti().registerObjectInstance(_ship);
   rti().deleteObjectInstance(buoy, makeTag());
}

// In both directions.
void Traveller::fail()
{
   try {
      rti().getObjectClassHandle(L"Submarine");
      check(false);
   } catch (NameNotFound const&) {
      ++_totals.exceptions;
   }
   check(fire("federationNotSaved_SFR_Native",
               reliability::sampleFrame("federationNotSaved_SFR", _handle), 1)
         == L"hla.rti1516e.exceptions.FederateInternalError\nnot saved");
   ++_totals.exceptions;
}

// One after the other, but for the one that throws.
void Traveller::fireNatives()
{
   _nextFrame = (_nextFrame + 1) % _frames.size();
   std::string const& operation = reliability::operations()[_nextFrame];
   if (operation == "federationNotSaved_SFR") {
      return;
   }
   firing = true;
   check(fire(operation + "_Native", _frames[_nextFrame], shots).empty());
   firing = false;
   _totals.callbacks += shots;
}

void Traveller::leave()
{
   _rti->resignFederationExecution(CANCEL_THEN_DELETE_THEN_DIVEST);
   _rti->disconnect();
}

void Traveller::check(bool right)
{
   if (!right) {
      _totals.wrong = true;
   }
}

void Traveller::happened()
{
   if (!firing) {
      ++_totals.callbacks;
   }
}

// A tag has one byte all through.
void Traveller::arrived(Tag tag)
{
   if (!firing) {
      char const* const bytes = static_cast<char const*>(tag.data());
      check(tag.size() < _tagLimit
            && std::string(bytes, tag.size()).find_first_not_of(tag.size() ? bytes[0] : '\0')
                  == std::string::npos);
      ++_totals.arrivals;
      ++_totals.callbacks;
   }
}

void Traveller::discoverObjectInstance(ObjectInstanceHandle, ObjectClassHandle, std::wstring const&)
{
   happened();
}

void Traveller::reflectAttributeValues(
      ObjectInstanceHandle, Values, Tag tag, OrderType, TransportationType, SupplementalReflectInfo)
{
   arrived(tag);
}

void Traveller::reflectAttributeValues(ObjectInstanceHandle, Values, Tag tag, OrderType,
      TransportationType, Time, OrderType, SupplementalReflectInfo)
{
   arrived(tag);
}

void Traveller::reflectAttributeValues(ObjectInstanceHandle, Values, Tag tag, OrderType,
      TransportationType, Time, OrderType, MessageRetractionHandle, SupplementalReflectInfo)
{
   arrived(tag);
}

void Traveller::receiveInteraction(InteractionClassHandle, Parameters, Tag tag, OrderType,
      TransportationType, SupplementalReceiveInfo)
{
   arrived(tag);
}

void Traveller::receiveInteraction(InteractionClassHandle, Parameters, Tag tag, OrderType,
      TransportationType, Time, OrderType, SupplementalReceiveInfo)
{
   arrived(tag);
}

void Traveller::receiveInteraction(InteractionClassHandle, Parameters, Tag tag, OrderType,
      TransportationType, Time, OrderType, MessageRetractionHandle, SupplementalReceiveInfo)
{
   arrived(tag);
}

void Traveller::removeObjectInstance(ObjectInstanceHandle, Tag, OrderType, SupplementalRemoveInfo)
{
   happened();
}

void Traveller::provideAttributeValueUpdate(ObjectInstanceHandle, AttributeHandleSet const&, Tag)
{
   happened();
}

// A service from inside a callback.
void Traveller::informAttributeOwnership(ObjectInstanceHandle, AttributeHandle, FederateHandle)
{
   check(rti().getAttributeName(_ship, _name) == L"Name");
   happened();
}

void Traveller::objectInstanceNameReservationSucceeded(std::wstring const&)
{
   happened();
}

void Traveller::reportAttributeTransportationType(
      ObjectInstanceHandle, AttributeHandle, TransportationType)
{
   happened();
}

void Traveller::federationNotSaved(SaveFailureReason)
{
   throw FederateInternalError(L"not saved");
}

void Traveller::timeRegulationEnabled(Time)
{
   if (!firing) {
      _isRegulating = true;
   }
}

void Traveller::timeConstrainedEnabled(Time)
{
   if (!firing) {
      _isConstrained = true;
   }
}

void Traveller::timeAdvanceGrant(Time time)
{
   happened();
   if (!firing) {
      _granted = static_cast<long>(dynamic_cast<HLAinteger64Time const&>(time).getTime());
   }
}

} // namespace soak
