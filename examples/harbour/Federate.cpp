#include "Federate.h"

#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

#include <stdexcept>

using namespace rti1516e;

namespace {

long long valueOf(LogicalTime const& time)
{
   return dynamic_cast<HLAinteger64Time const&>(time).getTime();
}

std::wstring at(long long time)
{
   return L" at " + std::to_wstring(time);
}

} // namespace

Federate::Federate(std::wstring const& name, CallbackModel model, Ledger& ledger)
      : _name(name),
        _model(model),
        _ledger(ledger),
        _inbox(name, model, ledger)
{
}

void Federate::join(std::wstring const& fomModule)
{
   _rti->connect(*this, _model);
   try {
      _rti->createFederationExecution(federation, fomModule, HLAinteger64TimeName);
      _ledger.say(_name, L"created the federation execution '" + federation + L"'");
   } catch (FederationExecutionAlreadyExists const&) {
      _ledger.say(_name, L"found the federation execution '" + federation + L"'");
   }
   FederateHandle const me = _rti->joinFederationExecution(_name, L"Vessel", federation);
   _ledger.say(_name,
         L"joined as " + me.toString()
               + (_model == HLA_EVOKED ? L", HLA_EVOKED" : L", HLA_IMMEDIATE"));
}

void Federate::registerStart()
{
   _rti->registerFederationSynchronizationPoint(start, tagOf(L"all aboard"));
}

// Nobody sends before both regulate time and are constrained by it.
void Federate::run(int steps)
{
   declare();
   registerShip();
   startTime();
   waitUntil([this] { return _announced.count(start) != 0; });
   _rti->synchronizationPointAchieved(start);
   waitUntil([this] { return _synchronized.count(start) != 0 && _others.size() == 1; });
   for (long long time = 1; time <= steps; ++time) {
      step(time);
   }
}

// The lookout comes late, asks for what it has missed, and announces the point when it is done.
void Federate::stay()
{
   waitUntil([this] { return _announced.count(seen) != 0; });
   _rti->synchronizationPointAchieved(seen);
   waitUntil([this] { return _synchronized.count(seen) != 0; });
}

void Federate::leave()
{
   bool const wasLast = _rti.leave(federation);
   _ledger.say(_name, wasLast ? L"left, and destroyed the federation execution" : L"left");
}

int Federate::services() const
{
   return _rti.calls();
}

int Federate::callbacks() const
{
   return _inbox.callbacks();
}

void Federate::declare()
{
   _shipClass.find(_rti);
   _rti->publishObjectClassAttributes(_shipClass.handle, _shipClass.attributes());
   _rti->subscribeObjectClassAttributes(_shipClass.handle, _shipClass.attributes());

   _signalClass = _rti->getInteractionClassHandle(L"Signal");
   _text = _rti->getParameterHandle(_signalClass, L"Text");
   _strength = _rti->getParameterHandle(_signalClass, L"Strength");
   _rti->publishInteractionClass(_signalClass);
   _rti->subscribeInteractionClass(_signalClass);
}

void Federate::registerShip()
{
   std::wstring const shipName = L"MS " + _name;
   _rti->reserveObjectInstanceName(shipName);
   waitUntil([this] { return _nameState != ASKED; });
   if (_nameState == REFUSED) {
      throw std::runtime_error("the ship's name is taken");
   }
   _ship = _rti->registerObjectInstance(_shipClass.handle, shipName);
   _ledger.say(_name, L"registered " + _rti->getObjectInstanceName(_ship));
}

void Federate::startTime()
{
   _rti->enableTimeRegulation(HLAinteger64Interval(1));
   waitUntil([this] { return _regulating; });
   _rti->enableTimeConstrained();
   waitUntil([this] { return _constrained; });
}

// Sends for the time that it then asks for; the lookahead is 1.
void Federate::step(long long time)
{
   sendShip(time);
   if (time % 2 == 0) {
      sendSignal(time);
   }
   _rti->timeAdvanceRequest(HLAinteger64Time(time));
   waitUntil([this, time] { return _granted == time; });
}

void Federate::sendShip(long long time)
{
   _sent = {L"MS " + _name, 10.5 * static_cast<double>(time), -0.25, {L"timber", L"\x9c7c"}};
   _sent.cargo.resize(static_cast<std::size_t>(time % 3), L"salt");
   std::wstring const tag = _name + L" ship" + at(time);
   _ledger.sent(tag, time, _sent);
   _ledger.say(_name,
         L"sends its ship" + at(time) + L": x " + std::to_wstring(_sent.x) + L", "
               + std::to_wstring(_sent.cargo.size()) + L" pieces of cargo");
   _rti->updateAttributeValues(_ship, _shipClass.encode(_sent), tagOf(tag), HLAinteger64Time(time));
}

void Federate::sendSignal(long long time)
{
   Signal const signal = {_name + L" ahoy", static_cast<int>(10 * time)};
   ParameterHandleValueMap values;
   values[_text] = encodeText(signal.text);
   values[_strength] = encodeStrength(signal.strength);

   std::wstring const tag = _name + L" signal" + at(time);
   _ledger.sent(tag, time, signal);
   _ledger.say(_name, L"sends a signal" + at(time) + L": '" + signal.text + L"'");
   _rti->sendInteraction(_signalClass, values, tagOf(tag), HLAinteger64Time(time));
}

void Federate::waitUntil(std::function<bool()> const& condition)
{
   _inbox.waitUntil(_rti, condition);
}

void Federate::synchronizationPointRegistrationSucceeded(std::wstring const& label)
{
   _inbox.happened(L"has registered '" + label + L"'");
}

void Federate::announceSynchronizationPoint(
      std::wstring const& label, VariableLengthData const& tag)
{
   _inbox.happened(
         L"is told of '" + label + L"': " + textOf(tag), [&] { _announced.insert(label); });
}

void Federate::federationSynchronized(std::wstring const& label, FederateHandleSet const& failed)
{
   if (!failed.empty()) {
      _ledger.differs(_name + L": federates failed to synchronize");
   }
   _inbox.happened(L"is synchronized at '" + label + L"'", [&] { _synchronized.insert(label); });
}

void Federate::startRegistrationForObjectClass(ObjectClassHandle)
{
   _inbox.happened(L"is told that ships are wanted");
}

void Federate::stopRegistrationForObjectClass(ObjectClassHandle)
{
   _inbox.happened(L"is told that ships are no longer wanted");
}

void Federate::turnInteractionsOn(InteractionClassHandle)
{
   _inbox.happened(L"is told that signals are wanted");
}

void Federate::turnInteractionsOff(InteractionClassHandle)
{
   _inbox.happened(L"is told that signals are no longer wanted");
}

void Federate::objectInstanceNameReservationSucceeded(std::wstring const& name)
{
   _inbox.happened(L"may call its ship " + name, [this] { _nameState = RESERVED; });
}

void Federate::objectInstanceNameReservationFailed(std::wstring const& name)
{
   _inbox.happened(L"may not call its ship " + name, [this] { _nameState = REFUSED; });
}

void Federate::discoverObjectInstance(
      ObjectInstanceHandle object, ObjectClassHandle, std::wstring const& name)
{
   _inbox.happened(L"discovers " + name, [this, object] { _others[object] = Ship(); });
}

void Federate::discoverObjectInstance(ObjectInstanceHandle object, ObjectClassHandle objectClass,
      std::wstring const& name, FederateHandle)
{
   discoverObjectInstance(object, objectClass, name);
}

// Somebody who came late wants to know what was sent before: answered without a time, at once.
void Federate::provideAttributeValueUpdate(
      ObjectInstanceHandle object, AttributeHandleSet const& wanted, VariableLengthData const& tag)
{
   AttributeHandleValueMap values;
   for (AttributeHandleValueMap::value_type const& value : _shipClass.encode(_sent)) {
      if (wanted.count(value.first) != 0) {
         values.insert(value);
      }
   }
   std::wstring const answer = _name + L" ship for " + textOf(tag);
   _ledger.sent(answer, Ledger::noTime, _sent);
   _rti->updateAttributeValues(object, values, tagOf(answer));
   _inbox.happened(L"tells " + textOf(tag) + L" of its ship");
}

void Federate::reflectAttributeValues(ObjectInstanceHandle object,
      AttributeHandleValueMap const& values, VariableLengthData const& tag, OrderType sent,
      TransportationType, LogicalTime const& time, OrderType received, SupplementalReflectInfo)
{
   Ship& ship = _others[object]; // known to callbacks alone, which come one after the other
   _shipClass.decode(values, ship);
   _ledger.arrived(textOf(tag), valueOf(time), ship);
   if (sent != TIMESTAMP || received != TIMESTAMP) {
      _ledger.differs(textOf(tag) + L" did not come in timestamp order");
   }
   _inbox.happened(L"reflects " + textOf(tag) + L": x " + std::to_wstring(ship.x));
}

void Federate::reflectAttributeValues(ObjectInstanceHandle object,
      AttributeHandleValueMap const& values, VariableLengthData const& tag, OrderType sent,
      TransportationType type, LogicalTime const& time, OrderType received, MessageRetractionHandle,
      SupplementalReflectInfo info)
{
   reflectAttributeValues(object, values, tag, sent, type, time, received, info);
}

void Federate::removeObjectInstance(
      ObjectInstanceHandle object, VariableLengthData const&, OrderType, SupplementalRemoveInfo)
{
   _inbox.happened(L"sees " + _others[object].name + L" gone", [&] { _others.erase(object); });
}

void Federate::receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const& values,
      VariableLengthData const& tag, OrderType sent, TransportationType, LogicalTime const& time,
      OrderType received, SupplementalReceiveInfo)
{
   Signal signal;
   for (ParameterHandleValueMap::value_type const& value : values) {
      if (value.first == _text) {
         signal.text = decodeText(value.second);
      } else if (value.first == _strength) {
         signal.strength = decodeStrength(value.second);
      }
   }
   _ledger.arrived(textOf(tag), valueOf(time), signal);
   if (sent != TIMESTAMP || received != TIMESTAMP) {
      _ledger.differs(textOf(tag) + L" did not come in timestamp order");
   }
   _inbox.happened(L"receives " + textOf(tag) + L": '" + signal.text + L"'");
}

void Federate::receiveInteraction(InteractionClassHandle interaction,
      ParameterHandleValueMap const& values, VariableLengthData const& tag, OrderType sent,
      TransportationType type, LogicalTime const& time, OrderType received, MessageRetractionHandle,
      SupplementalReceiveInfo info)
{
   receiveInteraction(interaction, values, tag, sent, type, time, received, info);
}

void Federate::timeRegulationEnabled(LogicalTime const& time)
{
   _inbox.happened(L"regulates time from " + time.toString(), [this] { _regulating = true; });
}

void Federate::timeConstrainedEnabled(LogicalTime const& time)
{
   _inbox.happened(L"is constrained from " + time.toString(), [this] { _constrained = true; });
}

void Federate::timeAdvanceGrant(LogicalTime const& time)
{
   long long const granted = valueOf(time);
   _inbox.happened(L"is granted " + time.toString(), [this, granted] { _granted = granted; });
}
