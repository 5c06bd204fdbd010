// Two federates in one process, each with an ambassador of its own: one takes its callbacks when it
// asks for them, the other one whenever they come. Ends with 0 if everything sent arrived as sent.
#include "../Text.h"
#include "Federate.h"

#include <clocale>
#include <exception>
#include <iostream>
#include <thread>

namespace {

int const steps = 5;

void runGuarded(Federate& federate, Ledger& ledger)
{
   try {
      federate.run(steps);
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
   pilot.join(fomModule);
   tower.join(fomModule);
   pilot.registerStart();

   std::thread towerThread([&] { runGuarded(tower, ledger); });
   runGuarded(pilot, ledger);
   towerThread.join();
   pilot.leave();
   tower.leave();

   std::wcout << pilot.services() + tower.services() << L" services called, "
              << pilot.callbacks() + tower.callbacks() << L" callbacks received" << std::endl;
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
