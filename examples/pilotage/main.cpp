// A ship is handed from its master to a pilot, and a region filters what each sees of it: the
// position is an attribute that changes its owner, and only positions within the sea area that a
// party watches arrive there. Both parties take their callbacks when they ask for them, so that the
// story always runs the same way.
#include "../Ambassador.h"
#include "../Text.h"

#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>

#include <clocale>
#include <iostream>
#include <stdexcept>

using namespace rti1516e;

namespace {

std::wstring const federation = L"Pilotage";
VariableLengthData const noTag;

class Party : public NullFederateAmbassador {
public:
   Party(std::wstring const& name, std::wstring const& fomModule) : _name(name)
   {
      _rti->connect(*this, HLA_EVOKED);
      try {
         _rti->createFederationExecution(federation, fomModule);
      } catch (FederationExecutionAlreadyExists const&) {
         // The other party was first.
      }
      _rti->joinFederationExecution(_name, L"Party", federation);
      _ship = _rti->getObjectClassHandle(L"Ship");
      _position.insert(_rti->getAttributeHandle(_ship, L"Position"));
      _seaArea = _rti->getDimensionHandle(L"SeaArea");
      _rti->publishObjectClassAttributes(_ship, _position);
   }

   // Sees what happens between two bounds of the dimension SeaArea, the upper one excluded.
   void watch(unsigned long from, unsigned long to)
   {
      say(L"watches the sea from ") << from << L" to " << to << std::endl;
      RegionHandle const region = makeRegion(from, to);
      _rti->subscribeObjectClassAttributesWithRegions(_ship, positionIn(region));
   }

   void launch(std::wstring const& shipName, unsigned long from, unsigned long to)
   {
      say(L"launches ") << shipName << std::endl;
      _rti->reserveObjectInstanceName(shipName);
      while (_nameState == ASKED) {
         evoke();
      }
      if (_nameState == REFUSED) {
         throw std::runtime_error("the ship's name is taken");
      }
      _shipRegion = makeRegion(from, to);
      _aurora = _rti->registerObjectInstanceWithRegions(_ship, positionIn(_shipRegion), shipName);
   }

   // The bounds say where the ship is found, the value where it is: metres to the east.
   void sail(unsigned long from, unsigned long to, double position)
   {
      say(L"sails to ") << position << L", within " << from << L" to " << to << std::endl;
      if (!_shipRegion.isValid()) {
         _shipRegion = makeRegion(from, to);
         _rti->associateRegionsForUpdates(_aurora, positionIn(_shipRegion));
      }
      setBounds(_shipRegion, from, to);
      AttributeHandleValueMap values;
      HLAfixedRecord record;
      record.appendElement(HLAfloat64BE(position));
      record.appendElement(HLAfloat64BE(0.0));
      values[*_position.begin()] = record.encode();
      _rti->updateAttributeValues(_aurora, values, noTag);
   }

   void offerShip()
   {
      say(L"offers the ship") << std::endl;
      _rti->negotiatedAttributeOwnershipDivestiture(_aurora, _position, noTag);
   }

   bool ownsShip()
   {
      return _rti->isAttributeOwnedByFederate(_aurora, *_position.begin());
   }

   bool knowsShip() const
   {
      return _aurora.isValid();
   }

   int reflected() const
   {
      return _reflected;
   }

   void evoke()
   {
      while (_rti->evokeMultipleCallbacks(0.0, 0.1)) {
      }
   }

   void leave()
   {
      _rti.leave(federation);
   }

private:
   std::wostream& say(std::wstring const& text)
   {
      return std::wcout << _name << L" " << text;
   }

   RegionHandle makeRegion(unsigned long from, unsigned long to)
   {
      DimensionHandleSet dimensions;
      dimensions.insert(_seaArea);
      RegionHandle const region = _rti->createRegion(dimensions);
      setBounds(region, from, to);
      return region;
   }

   void setBounds(RegionHandle const& region, unsigned long from, unsigned long to)
   {
      RegionHandleSet regions;
      regions.insert(region);
      _rti->setRangeBounds(region, _seaArea, RangeBounds(from, to));
      _rti->commitRegionModifications(regions);
   }

   AttributeHandleSetRegionHandleSetPairVector positionIn(RegionHandle const& region)
   {
      RegionHandleSet regions;
      regions.insert(region);
      return AttributeHandleSetRegionHandleSetPairVector(
            1, AttributeHandleSetRegionHandleSetPair(_position, regions));
   }

   void objectInstanceNameReservationSucceeded(std::wstring const&) override
   {
      _nameState = RESERVED;
   }

   void objectInstanceNameReservationFailed(std::wstring const&) override
   {
      _nameState = REFUSED;
   }

   void discoverObjectInstance(
         ObjectInstanceHandle object, ObjectClassHandle, std::wstring const& name) override
   {
      say(L"discovers ") << name << std::endl;
      _aurora = object;
   }

   void discoverObjectInstance(ObjectInstanceHandle object, ObjectClassHandle objectClass,
         std::wstring const& name, FederateHandle) override
   {
      discoverObjectInstance(object, objectClass, name);
   }

   void removeObjectInstance(ObjectInstanceHandle object, VariableLengthData const&, OrderType,
         SupplementalRemoveInfo) override
   {
      if (object == _aurora) {
         say(L"sees the ship no more") << std::endl;
         _aurora = ObjectInstanceHandle();
      }
   }

   // An update holds what its sender gave it, which may be less than all attributes.
   void reflectAttributeValues(ObjectInstanceHandle object, AttributeHandleValueMap const& values,
         VariableLengthData const&, OrderType, TransportationType, SupplementalReflectInfo) override
   {
      AttributeHandleValueMap::const_iterator const value = values.find(*_position.begin());
      if (object != _aurora || value == values.end()) {
         return;
      }
      HLAfloat64BE position;
      HLAfloat64BE north;
      HLAfixedRecord record;
      record.appendElementPointer(&position);
      record.appendElementPointer(&north);
      record.decode(value->second);
      ++_reflected;
      say(L"sees the ship at ") << position.get() << std::endl;
   }

   void requestAttributeOwnershipAssumption(ObjectInstanceHandle object,
         AttributeHandleSet const& offered, VariableLengthData const&) override
   {
      say(L"is offered the ship and takes it") << std::endl;
      _rti->attributeOwnershipAcquisition(object, offered, noTag);
   }

   void requestDivestitureConfirmation(
         ObjectInstanceHandle object, AttributeHandleSet const& attributes) override
   {
      say(L"confirms the handing over") << std::endl;
      _rti->confirmDivestiture(object, attributes, noTag);
      _shipRegion = RegionHandle();
   }

   void attributeOwnershipAcquisitionNotification(
         ObjectInstanceHandle, AttributeHandleSet const&, VariableLengthData const&) override
   {
      say(L"has the ship") << std::endl;
   }

   std::wstring const _name;
   ObjectClassHandle _ship;
   AttributeHandleSet _position;
   DimensionHandle _seaArea;
   ObjectInstanceHandle _aurora;
   RegionHandle _shipRegion; // where the one that sails it says it is
   enum {
      ASKED,
      RESERVED,
      REFUSED
   } _nameState = ASKED;
   int _reflected = 0;

   Ambassador _rti;
};

void evokeBoth(Party& one, Party& other)
{
   for (int i = 0; i < 3; ++i) { // a callback may lead to one at the other party
      one.evoke();
      other.evoke();
   }
}

void require(bool condition, char const* what)
{
   if (!condition) {
      throw std::runtime_error(what);
   }
}

void tell(std::wstring const& fomModule)
{
   Party master(L"Master", fomModule);
   Party pilot(L"Pilot", fomModule);
   pilot.watch(100, 200);
   master.watch(0, 1000);

   master.launch(L"Aurora", 150, 160);
   evokeBoth(master, pilot);
   master.sail(150, 160, 155);
   evokeBoth(master, pilot);
   require(pilot.reflected() == 1, "the pilot should see the ship in the area watched");
   master.sail(500, 510, 505);
   evokeBoth(master, pilot);
   require(pilot.reflected() == 1, "the pilot should not see the ship far out");

   master.offerShip();
   evokeBoth(master, pilot);
   require(pilot.ownsShip() && !master.ownsShip(), "the pilot should have the ship");
   pilot.sail(20, 30, 25);
   evokeBoth(master, pilot);
   require(master.reflected() == 1, "the master should see where the pilot takes the ship");

   master.leave();
   pilot.evoke();
   require(!pilot.knowsShip(), "the ship should go with the master who launched it");
   pilot.leave();
}

} // namespace

int main(int argc, char** argv)
{
   std::setlocale(LC_ALL, "");
   std::string const module = argc > 1 ? argv[1] : HARBOUR_FOM;
   try {
      tell(wide(module));
      std::wcout << L"The ship is in harbour." << std::endl;
      return 0;
   } catch (Exception const& e) {
      std::wcerr << e.what() << std::endl;
   } catch (std::exception const& e) {
      std::wcerr << e.what() << std::endl;
   }
   return 1;
}
