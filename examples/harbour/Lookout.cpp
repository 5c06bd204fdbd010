#include "Lookout.h"

using namespace rti1516e;

Lookout::Lookout(std::wstring const& name, Ledger& ledger)
      : _name(name),
        _ledger(ledger),
        _inbox(name, HLA_EVOKED, ledger)
{
}

void Lookout::join()
{
   _rti->connect(*this, HLA_EVOKED);
   _rti->joinFederationExecution(_name, L"Lookout", federation);
   _ledger.say(_name, L"joined late");
}

// Subscribing brings the discovery of what is there, but none of its values: they are asked for.
void Lookout::look(std::set<std::wstring> const& expected)
{
   subscribe();
   waitUntil([&] { return _federates.size() == expected.size() && _ships.size() == 2; });
   _rti->requestAttributeValueUpdate(_shipClass.handle, _shipClass.attributes(), tagOf(_name));
   _rti->requestAttributeValueUpdate(_federateClass, _federateAttributes, tagOf(_name));

   std::set<std::wstring> names;
   waitUntil([&] {
      names.clear();
      for (std::map<ObjectInstanceHandle, Known>::value_type const& each : _federates) {
         names.insert(each.second.name);
      }
      bool areShipsKnown = true;
      for (std::map<ObjectInstanceHandle, Ship>::value_type const& each : _ships) {
         areShipsKnown = areShipsKnown && !each.second.name.empty();
      }
      return areShipsKnown && names.count(L"") == 0;
   });
   if (names != expected) {
      _ledger.differs(_name + L" has seen other federates than there are");
   }
}

void Lookout::finish()
{
   _rti->registerFederationSynchronizationPoint(seen, tagOf(L"all is well"));
   waitUntil([this] { return _announced; });
   _rti->synchronizationPointAchieved(seen);
   waitUntil([this] { return _synchronized; });
}

void Lookout::leave()
{
   bool const wasLast = _rti.leave(federation);
   _ledger.say(_name, wasLast ? L"left, and destroyed the federation execution" : L"left");
}

int Lookout::services() const
{
   return _rti.calls();
}

int Lookout::callbacks() const
{
   return _inbox.callbacks();
}

void Lookout::subscribe()
{
   _shipClass.find(_rti);
   _rti->subscribeObjectClassAttributes(_shipClass.handle, _shipClass.attributes());

   _federateClass = _rti->getObjectClassHandle(L"HLAmanager.HLAfederate");
   _federateName = _rti->getAttributeHandle(_federateClass, L"HLAfederateName");
   _federateType = _rti->getAttributeHandle(_federateClass, L"HLAfederateType");
   _federateAttributes.insert(_federateName);
   _federateAttributes.insert(_federateType);
   _rti->subscribeObjectClassAttributes(_federateClass, _federateAttributes);
}

void Lookout::waitUntil(std::function<bool()> const& condition)
{
   _inbox.waitUntil(_rti, condition);
}

void Lookout::synchronizationPointRegistrationSucceeded(std::wstring const& label)
{
   _inbox.happened(L"has registered '" + label + L"'");
}

void Lookout::announceSynchronizationPoint(std::wstring const& label, VariableLengthData const& tag)
{
   _inbox.happened(
         L"is told of '" + label + L"': " + textOf(tag), [&] { _announced = label == seen; });
}

void Lookout::federationSynchronized(std::wstring const& label, FederateHandleSet const&)
{
   _inbox.happened(L"is synchronized at '" + label + L"'", [this] { _synchronized = true; });
}

void Lookout::discoverObjectInstance(
      ObjectInstanceHandle object, ObjectClassHandle objectClass, std::wstring const& name)
{
   _inbox.happened(L"discovers " + name, [&] {
      if (objectClass == _shipClass.handle) {
         _ships[object] = Ship();
      } else {
         _federates[object] = Known();
      }
   });
}

void Lookout::discoverObjectInstance(ObjectInstanceHandle object, ObjectClassHandle objectClass,
      std::wstring const& name, FederateHandle)
{
   discoverObjectInstance(object, objectClass, name);
}

void Lookout::reflectAttributeValues(ObjectInstanceHandle object,
      AttributeHandleValueMap const& values, VariableLengthData const& tag, OrderType,
      TransportationType, SupplementalReflectInfo)
{
   see(object, values, textOf(tag));
}

// The federate's other callbacks wait meanwhile: this one runs inside the lookout's own waiting.
void Lookout::see(
      ObjectInstanceHandle object, AttributeHandleValueMap const& values, std::wstring const& tag)
{
   std::map<ObjectInstanceHandle, Ship>::iterator const ship = _ships.find(object);
   if (ship != _ships.end()) {
      _shipClass.decode(values, ship->second);
      _ledger.arrived(tag, Ledger::noTime, ship->second);
      _inbox.happened(L"sees " + ship->second.name);
      return;
   }
   Known& federate = _federates[object];
   for (AttributeHandleValueMap::value_type const& value : values) {
      if (value.first == _federateName) {
         federate.name = decodeText(value.second);
      } else if (value.first == _federateType) {
         federate.type = decodeText(value.second);
      }
   }
   _inbox.happened(L"sees that " + federate.name + L" is here, a " + federate.type);
}

void Lookout::removeObjectInstance(
      ObjectInstanceHandle object, VariableLengthData const&, OrderType, SupplementalRemoveInfo)
{
   bool const isShip = _ships.count(object) != 0;
   _inbox.happened(
         L"sees " + (isShip ? _ships[object].name : _federates[object].name) + L" gone", [&] {
            _ships.erase(object);
            _federates.erase(object);
         });
}
