// Two ships in one process, each a federate with an ambassador of its own: one takes its callbacks
// when it asks for them, the other one whenever they come. A third federate comes late and looks
// who is there. Ends with 0 if everything sent arrived as sent.
#include "../Text.h"
#include "Federate.h"
#include "Lookout.h"

#include <clocale>
#include <exception>
#include <functional>
#include <iostream>
#include <thread>

namespace {

int const steps = 5;

void runGuarded(Ledger& ledger, std::function<void()> const& life)
{
   try {
      life();
   } catch (rti1516e::Exception const& e) {
      ledger.failed(e.what());
   } catch (std::exception const& e) {
      ledger.failed(wide(e.what()));
   }
}

int runFederation(std::wstring const& fomModule)
{
   std::wcout << rti1516e::rtiName() << L" " << rti1516e::rtiVersion() << std::endl;
   Ledger ledger;
   Federate pilot(L"Pilot", rti1516e::HLA_EVOKED, ledger);
   Federate tower(L"Tower", rti1516e::HLA_IMMEDIATE, ledger);
   Lookout lookout(L"Lookout", ledger);
   pilot.join(fomModule);
   tower.join(fomModule);
   pilot.registerStart();

   std::thread sailing([&] { runGuarded(ledger, [&] { tower.run(steps); }); });
   runGuarded(ledger, [&] { pilot.run(steps); });
   sailing.join();

   std::thread pilotStaying([&] { runGuarded(ledger, [&] { pilot.stay(); }); });
   std::thread towerStaying([&] { runGuarded(ledger, [&] { tower.stay(); }); });
   runGuarded(ledger, [&] {
      lookout.join();
      lookout.look({L"Pilot", L"Tower", L"Lookout"});
      lookout.finish();
   });
   pilotStaying.join();
   towerStaying.join();
   pilot.leave();
   tower.leave();
   lookout.leave();

   std::wcout << pilot.services() + tower.services() + lookout.services() << L" services called, "
              << pilot.callbacks() + tower.callbacks() + lookout.callbacks()
              << L" callbacks received" << std::endl;
   return ledger.close() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
   std::setlocale(LC_ALL, "");
   std::string const module = argc > 1 ? argv[1] : HARBOUR_FOM;
   try {
      return runFederation(wide(module));
   } catch (rti1516e::Exception const& e) {
      std::wcerr << e.what() << std::endl;
   } catch (std::exception const& e) {
      std::wcerr << e.what() << std::endl;
   }
   return 1;
}
