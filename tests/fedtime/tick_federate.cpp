// A federate that keeps time in ticks: what it sends comes back as ticks in callbacks and results.
#include "TickTime.h"

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>

#include <iostream>
#include <memory>

using namespace rti1516e;

namespace {

class TickFederate : public NullFederateAmbassador {
public:
   void timeRegulationEnabled(LogicalTime const& time) override
   {
      regulating = dynamic_cast<TickTime const&>(time).count;
   }

   void timeAdvanceGrant(LogicalTime const& time) override
   {
      granted = dynamic_cast<TickTime const&>(time).count;
   }

   long long regulating = -1;
   long long granted = -1;
};

int faults = 0;

void expect(bool condition, char const* what)
{
   std::cout << (condition ? "ok      " : "WRONG   ") << what << std::endl;
   faults += condition ? 0 : 1;
}

void evokeUntil(RTIambassador& rti, long long const& value, long long wanted)
{
   for (int i = 0; i < 100 && value != wanted; ++i) {
      rti.evokeMultipleCallbacks(0.01, 0.1);
   }
}

void run()
{
   RTIambassadorFactory factory;
   std::unique_ptr<RTIambassador> rti(factory.createRTIambassador().release());
   TickFederate federate;
   rti->connect(federate, HLA_EVOKED);
   rti->createFederationExecution(L"Clock", std::vector<std::wstring>(), L"TickTime");
   rti->joinFederationExecution(L"Watch", L"Clock");
   std::unique_ptr<LogicalTimeFactory> ticks(rti->getTimeFactory().release());
   expect(ticks->getName() == L"TickTime", "the federation's factory is the federate's own");

   rti->enableTimeRegulation(TickInterval(3));
   evokeUntil(*rti, federate.regulating, 0);
   expect(federate.regulating == 0, "regulation begins at tick 0");
   rti->timeAdvanceRequest(TickTime(258));
   evokeUntil(*rti, federate.granted, 258);
   expect(federate.granted == 258, "the grant is a time in ticks");

   TickTime now;
   rti->queryLogicalTime(now);
   expect(now.count == 258, "so is the time that is asked for");
   TickInterval lookahead;
   rti->queryLookahead(lookahead);
   expect(lookahead.count == 3, "and the lookahead is an interval in ticks");

   rti->resignFederationExecution(NO_ACTION);
   rti->destroyFederationExecution(L"Clock");
   rti->disconnect();
}

} // namespace

int main()
{
   try {
      run();
   } catch (Exception const& e) {
      std::wcerr << e.what() << std::endl;
      return 2;
   }
   return faults == 0 ? 0 : 1;
}
