// Three troubles to be found in a recording: a grant that never comes, an exception that nobody
// expects, an attribute that is sent without need. Each federate is alone in what it does wrong.
//
//    tarn1516e-record -- troubles grant|exception|chatty [STEPS]
#include "../Ambassador.h"
#include "../Text.h"

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string>

using namespace rti1516e;

namespace {

std::wstring const federation = L"Troubles";
VariableLengthData const noTag;

class Federate : public NullFederateAmbassador {
public:
   explicit Federate(std::wstring const& name)
   {
      rti->connect(*this, HLA_EVOKED);
      try {
         rti->createFederationExecution(federation, wide(HARBOUR_FOM), HLAinteger64TimeName);
      } catch (FederationExecutionAlreadyExists const&) {
         // Another one was first.
      }
      rti->joinFederationExecution(name, L"Troubled", federation);
      ship = rti->getObjectClassHandle(L"Ship");
      shipName = rti->getAttributeHandle(ship, L"Name");
      position = rti->getAttributeHandle(ship, L"Position");
   }

   void timeAdvanceGrant(LogicalTime const&) override
   {
      isGranted = true;
   }

   ObjectClassHandle ship;
   AttributeHandle shipName;
   AttributeHandle position;
   bool isGranted = false;
   Ambassador rti;
};

// The clock regulates and never advances, so that the ship is never granted what it asks for.
void missGrant(int steps)
{
   Federate clock(L"Clock");
   clock.rti->enableTimeRegulation(HLAinteger64Interval(1));
   clock.rti->evokeMultipleCallbacks(0.01, 0.1);
   Federate ship(L"Ship");
   ship.rti->enableTimeConstrained();
   ship.rti->evokeMultipleCallbacks(0.01, 0.1);
   ship.rti->timeAdvanceRequest(HLAinteger64Time(10));
   for (int step = 0; step < steps && !ship.isGranted; ++step) {
      ship.rti->evokeMultipleCallbacks(0.01, 0.1);
   }
   std::wcout << (ship.isGranted ? L"granted" : L"gave up waiting") << std::endl;
   ship.rti.leave(federation);
   clock.rti.leave(federation);
}

// Only positions are published; the name is updated all the same, and what that throws is dropped.
void dropExceptions(int steps)
{
   Federate federate(L"Ship");
   federate.rti->publishObjectClassAttributes(federate.ship, {federate.position});
   ObjectInstanceHandle const ship = federate.rti->registerObjectInstance(federate.ship);
   for (int step = 0; step < steps; ++step) {
      AttributeHandleValueMap values;
      values[step % 5 == 0 ? federate.shipName : federate.position] =
            VariableLengthData("0123456789abcdef", 16);
      try {
         federate.rti->updateAttributeValues(ship, values, noTag);
      } catch (Exception const&) {
         // The trouble: nobody is told.
      }
   }
   std::wcout << L"all is well, it seems" << std::endl;
   federate.rti.leave(federation);
}

// The name never changes, and goes with every position.
void chatter(int steps)
{
   Federate watcher(L"Watcher");
   watcher.rti->subscribeObjectClassAttributes(watcher.ship, {watcher.shipName, watcher.position});
   Federate federate(L"Ship");
   federate.rti->publishObjectClassAttributes(
         federate.ship, {federate.shipName, federate.position});
   ObjectInstanceHandle const ship = federate.rti->registerObjectInstance(federate.ship);
   AttributeHandleValueMap values;
   values[federate.shipName] = VariableLengthData(std::string(240, 'A').data(), 240);
   for (int step = 0; step < steps; ++step) {
      values[federate.position] = VariableLengthData("0123456789abcdef", 16);
      federate.rti->updateAttributeValues(ship, values, noTag);
      watcher.rti->evokeMultipleCallbacks(0.0, 0.0);
   }
   std::wcout << L"sailed " << steps << L" steps" << std::endl;
   federate.rti.leave(federation);
   watcher.rti.leave(federation);
}

} // namespace

int main(int argc, char** argv)
{
   std::setlocale(LC_ALL, "");
   std::string const trouble = argc > 1 ? argv[1] : "";
   int const steps = argc > 2 ? std::atoi(argv[2]) : 50;
   try {
      if (trouble == "grant") {
         missGrant(steps);
      } else if (trouble == "exception") {
         dropExceptions(steps);
      } else if (trouble == "chatty") {
         chatter(steps);
      } else {
         std::wcerr << L"troubles grant|exception|chatty [STEPS]" << std::endl;
         return 2;
      }
      return 0;
   } catch (Exception const& e) {
      std::wcerr << e.what() << std::endl;
   } catch (std::exception const& e) {
      std::wcerr << e.what() << std::endl;
   }
   return 1;
}
