#include "Federate.h"

#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

#include <chrono>
#include <stdexcept>

using namespace rti1516e;

namespace {

std::wstring const federation = L"Harbour";
std::wstring const start = L"ReadyToSail";

VariableLengthData tagOf(std::wstring const& text)
{
   std::string const narrow(text.begin(), text.end());
   return VariableLengthData(narrow.data(), narrow.size());
}

std::wstring textOf(VariableLengthData const& tag)
{
   char const* const bytes = static_cast<char const*>(tag.data());
   return std::wstring(bytes, bytes + tag.size());
}

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
        _ledger(ledger)
{
   RTIambassadorFactory factory;
   _rti.ambassador.reset(factory.createRTIambassador().release());
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
   startTime();
   waitUntil([this] { return _announced.count(start) != 0; });
   _rti->synchronizationPointAchieved(start);
   waitUntil([this] { return _synchronized.count(start) != 0 && _discovered == 1; });
   for (long long time = 1; time <= steps; ++time) {
      step(time);
   }
}

void Federate::leave()
{
   _rti->resignFederationExecution(DELETE_OBJECTS_THEN_DIVEST);
   _ledger.say(_name, L"resigned");
   try {
      _rti->destroyFederationExecution(federation);
      _ledger.say(_name, L"destroyed the federation execution");
   } catch (FederatesCurrentlyJoined const&) {
      // The other one will.
   }
   _rti->disconnect();
}

int Federate::services() const
{
   return _rti.calls;
}

int Federate::callbacks() const
{
   return _callbacks;
}

void Federate::declare()
{
   _shipClass = _rti->getObjectClassHandle(L"Ship");
   _shipName = _rti->getAttributeHandle(_shipClass, L"Name");
   _position = _rti->getAttributeHandle(_shipClass, L"Position");
   _cargo = _rti->getAttributeHandle(_shipClass, L"Cargo");
   AttributeHandleSet attributes;
   attributes.insert(_shipName);
   attributes.insert(_position);
   attributes.insert(_cargo);
   _rti->publishObjectClassAttributes(_shipClass, attributes);
   _rti->subscribeObjectClassAttributes(_shipClass, attributes);

   _signalClass = _rti->getInteractionClassHandle(L"Signal");
   _text = _rti->getParameterHandle(_signalClass, L"Text");
   _strength = _rti->getParameterHandle(_signalClass, L"Strength");
   _rti->publishInteractionClass(_signalClass);
   _rti->subscribeInteractionClass(_signalClass);

   _ship = _rti->registerObjectInstance(_shipClass);
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
   Ship ship = {L"MS " + _name, 10.5 * static_cast<double>(time), -0.25, {L"timber", L"\x9c7c"}};
   ship.cargo.resize(static_cast<std::size_t>(time % 3), L"salt");
   AttributeHandleValueMap values;
   values[_shipName] = encodeText(ship.name);
   values[_position] = encodePosition(ship.x, ship.y);
   values[_cargo] = encodeCargo(ship.cargo);

   std::wstring const tag = _name + L" ship" + at(time);
   _ledger.sent(tag, time, ship);
   _ledger.say(_name,
         L"sends its ship" + at(time) + L": x " + std::to_wstring(ship.x) + L", "
               + std::to_wstring(ship.cargo.size()) + L" pieces of cargo");
   _rti->updateAttributeValues(_ship, values, tagOf(tag), HLAinteger64Time(time));
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

// An evoked federate gets its callbacks inside this; an immediate one is told that they came.
void Federate::waitUntil(std::function<bool()> const& condition)
{
   std::chrono::steady_clock::time_point const deadline =
         std::chrono::steady_clock::now() + std::chrono::seconds(30);
   std::unique_lock<std::mutex> lock(_mutex);
   while (!condition()) {
      if (_model == HLA_EVOKED) {
         lock.unlock();
         _rti->evokeMultipleCallbacks(0.01, 0.1);
         lock.lock();
      } else {
         _changed.wait_for(lock, std::chrono::milliseconds(100));
      }
      if (std::chrono::steady_clock::now() > deadline) {
         throw std::runtime_error("waited for 30 seconds in vain");
      }
   }
}

void Federate::happened(std::wstring const& what, std::function<void()> const& change)
{
   _ledger.say(_name, what);
   std::lock_guard<std::mutex> const lock(_mutex);
   ++_callbacks;
   change();
   _changed.notify_all();
}

void Federate::announceSynchronizationPoint(
      std::wstring const& label, VariableLengthData const& tag)
{
   happened(L"is told of '" + label + L"': " + textOf(tag), [&] { _announced.insert(label); });
}

void Federate::federationSynchronized(std::wstring const& label, FederateHandleSet const& failed)
{
   if (!failed.empty()) {
      _ledger.differs(_name + L": federates failed to synchronize");
   }
   happened(L"is synchronized at '" + label + L"'", [&] { _synchronized.insert(label); });
}

void Federate::discoverObjectInstance(
      ObjectInstanceHandle, ObjectClassHandle, std::wstring const& name)
{
   happened(L"discovers " + name, [this] { ++_discovered; });
}

void Federate::discoverObjectInstance(ObjectInstanceHandle object, ObjectClassHandle objectClass,
      std::wstring const& name, FederateHandle)
{
   discoverObjectInstance(object, objectClass, name);
}

void Federate::reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const& values,
      VariableLengthData const& tag, OrderType sent, TransportationType, LogicalTime const& time,
      OrderType received, SupplementalReflectInfo)
{
   Ship ship;
   ship.name = decodeText(values.at(_shipName));
   decodePosition(values.at(_position), ship.x, ship.y);
   ship.cargo = decodeCargo(values.at(_cargo));
   _ledger.arrived(textOf(tag), valueOf(time), ship);
   if (sent != TIMESTAMP || received != TIMESTAMP) {
      _ledger.differs(textOf(tag) + L" did not come in timestamp order");
   }
   happened(L"reflects " + textOf(tag) + L": x " + std::to_wstring(ship.x), [] {});
}

void Federate::reflectAttributeValues(ObjectInstanceHandle object,
      AttributeHandleValueMap const& values, VariableLengthData const& tag, OrderType sent,
      TransportationType type, LogicalTime const& time, OrderType received, MessageRetractionHandle,
      SupplementalReflectInfo info)
{
   reflectAttributeValues(object, values, tag, sent, type, time, received, info);
}

void Federate::receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const& values,
      VariableLengthData const& tag, OrderType sent, TransportationType, LogicalTime const& time,
      OrderType received, SupplementalReceiveInfo)
{
   Signal const signal = {decodeText(values.at(_text)), decodeStrength(values.at(_strength))};
   _ledger.arrived(textOf(tag), valueOf(time), signal);
   if (sent != TIMESTAMP || received != TIMESTAMP) {
      _ledger.differs(textOf(tag) + L" did not come in timestamp order");
   }
   happened(L"receives " + textOf(tag) + L": '" + signal.text + L"'", [] {});
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
   happened(L"regulates time from " + time.toString(), [this] { _regulating = true; });
}

void Federate::timeConstrainedEnabled(LogicalTime const& time)
{
   happened(L"is constrained from " + time.toString(), [this] { _constrained = true; });
}

void Federate::timeAdvanceGrant(LogicalTime const& time)
{
   long long const granted = valueOf(time);
   happened(L"is granted " + time.toString(), [this, granted] { _granted = granted; });
}
