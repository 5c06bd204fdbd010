// A federate that keeps time by the tides, and then by a clock: what it sends comes back in
// callbacks and results as its own kinds of time. Ends with 0 if all came back as it should.
#include "../Ambassador.h"
#include "../Text.h"
#include "ClockTime.h"
#include "TideTime.h"

#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAfloat64TimeFactory.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>

using namespace rti1516e;

namespace {

void require(bool condition, char const* what)
{
   if (!condition) {
      throw std::runtime_error(what);
   }
}

class Keeper : public NullFederateAmbassador {
public:
   void timeRegulationEnabled(LogicalTime const&) override
   {
      ++answers;
   }

   void timeAdvanceGrant(LogicalTime const& time) override
   {
      ++answers;
      granted = time.toString(); // the reference ends with the callback
   }

   int answers = 0;
   std::wstring granted;
};

// One federation with a kind of time: regulates with the lookahead, and advances to the time.
template <class Time, class Interval>
void keepTime(std::wstring const& name, Time const& wanted, Interval const& wantedLookahead,
      std::wstring const& text)
{
   Keeper keeper;
   Ambassador rti; // after what it calls, and so destroyed before
   rti->connect(keeper, HLA_EVOKED);
   rti->createFederationExecution(L"Tides", wide(HARBOUR_FOM), name);
   rti->joinFederationExecution(L"Keeper", L"Tides");
   rti->enableTimeRegulation(wantedLookahead);
   while (keeper.answers < 1) {
      rti->evokeMultipleCallbacks(0.1, 1.0);
   }
   rti->timeAdvanceRequest(wanted);
   while (keeper.answers < 2) {
      rti->evokeMultipleCallbacks(0.1, 1.0);
   }
   std::wcout << name << L": " << keeper.granted << std::endl;
   require(keeper.granted == text, "the grant is a time of the federate's own kind");

   std::unique_ptr<LogicalTimeFactory> const times(rti->getTimeFactory().release());
   std::unique_ptr<LogicalTime> const now(times->makeInitial().release());
   rti->queryLogicalTime(*now);
   require(dynamic_cast<Time*>(now.get()) != nullptr && *now == wanted, "so is the current time");
   Interval lookahead;
   rti->queryLookahead(lookahead);
   require(lookahead == static_cast<LogicalTimeInterval const&>(wantedLookahead),
         "and the lookahead is an interval of it");

   rti.leave(L"Tides");
}

} // namespace

int main()
{
   std::setlocale(LC_ALL, "");
   // The stand-in for the RTI's Java classes takes other names than the standard's where told.
   setenv("TARN1516_OPTION19", "-Dtarn.standin.times=TideTime", 0);
   try {
      keepTime(tideTimeName, TideTime(1580), TideInterval(3), L"tide 2 + 90 min");
      keepTime(HLAfloat64TimeName, ClockTime(6.5), HLAfloat64Interval(0.25), L"06:30");
      return 0;
   } catch (Exception const& e) {
      std::wcerr << e.what() << std::endl;
   } catch (std::exception const& e) {
      std::wcerr << e.what() << std::endl;
   }
   return 1;
}
