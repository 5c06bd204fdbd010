// What the recorder adds to a call: each case once through the recorder's ambassador and once past
// it, to an ambassador that answers at once. The recording goes into a file, as a federate's does.
#include "record/generated/RecordingAmbassador.h"
#include "record/generated/RecordingFederate.h"
#include "record/Recording.h"
#include "record/Values.h"

#include "api/HandleFriends.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/time/HLAinteger64Time.h>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

using namespace rti1516e;
using namespace tarn1516e::record;

// Of all operations only those that are measured are called.
class AtOnce : public RecordingAmbassador {
public:
   AtOnce() : RecordingAmbassador(nullptr, 0) {}

   AttributeHandle getAttributeHandle(ObjectClassHandle, std::wstring const&)
         RTI_THROW((NameNotFound, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) override
   {
      return makeAttributeHandle(2);
   }

   using RecordingAmbassador::updateAttributeValues;

   void updateAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const&,
         VariableLengthData const&) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) override
   {
   }

   void timeAdvanceRequest(LogicalTime const&) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) override
   {
   }

   bool evokeMultipleCallbacks(double, double)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) override
   {
      return false;
   }
};

std::string recordingPath()
{
   char const* const folder = std::getenv("TMPDIR");
   return std::string(folder != nullptr ? folder : "/tmp") + "/tarn-bench-"
         + std::to_string(getpid()) + ".json";
}

template <class Target, class Call>
void add(std::string const& name, Target& target, Call const& call)
{
   benchmark::RegisterBenchmark(name.c_str(), [&target, call](benchmark::State& state) {
      // Earlier runs leave a hole in the file, so that it takes no more of the disk than one does.
      static_cast<void>(truncate(recordingPath().c_str(), 0) == 0);
      for (auto _ : state) {
         call(target);
      }
   });
}

template <class Call>
void compare(
      std::string const& name, RTIambassador& floor, RTIambassador& recorded, Call const& call)
{
   add("record-" + name + "/floor", floor, call);
   add("record-" + name + "/subject", recorded, call);
}

AttributeHandleValueMap threeValues()
{
   AttributeHandleValueMap values;
   for (int i = 1; i <= 3; ++i) {
      values[makeAttributeHandle(i)] = VariableLengthData("12345678", 8);
      learn(1, makeAttributeHandle(i), L"Position" + std::to_wstring(i));
   }
   return values;
}

void addServices(RTIambassador& floor, RTIambassador& recorded)
{
   ObjectClassHandle const ship = makeObjectClassHandle(1);
   learn(1, ship, L"Ship");
   compare("getAttributeHandle", floor, recorded, [=](RTIambassador& rti) {
      static std::wstring const name = L"Position2";
      benchmark::DoNotOptimize(rti.getAttributeHandle(ship, name));
   });
   AttributeHandleValueMap const values = threeValues();
   ObjectInstanceHandle const object = makeObjectInstanceHandle(7);
   learn(1, object, L"MS Tower");
   VariableLengthData const tag("tag!", 4);
   compare("update-3x8", floor, recorded,
         [=](RTIambassador& rti) { rti.updateAttributeValues(object, values, tag); });
   HLAinteger64Time const time(1234567);
   compare("timeAdvanceRequest", floor, recorded,
         [=](RTIambassador& rti) { rti.timeAdvanceRequest(time); });
   compare("evokeMultipleCallbacks", floor, recorded, [](RTIambassador& rti) {
      benchmark::DoNotOptimize(rti.evokeMultipleCallbacks(0.1, 0.2));
   });
}

void addCallbacks(FederateAmbassador& floor, FederateAmbassador& recorded)
{
   AttributeHandleValueMap const values = threeValues();
   auto const reflect = [=](FederateAmbassador& federate) {
      static VariableLengthData const tag("tag!", 4);
      federate.reflectAttributeValues(makeObjectInstanceHandle(7), values, tag, TIMESTAMP, RELIABLE,
            SupplementalReflectInfo());
   };
   add("record-reflect-3x8/floor", floor, reflect);
   add("record-reflect-3x8/subject", recorded, reflect);
}

} // namespace

int main(int argc, char** argv)
{
   benchmark::Initialize(&argc, argv);
   if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
      return 1;
   }
   std::string const path = recordingPath();
   setenv("TARN1516E_RECORD_OUTPUT", path.c_str(), 1);
   if (!Recording::instance().isOn()) {
      return 1; // it has said why
   }
   AtOnce floor;
   RecordingAmbassador recorded(new AtOnce, 1);
   NullFederateAmbassador federate;
   RecordingFederate recordedFederate(1);
   recordedFederate.passTo(federate);
   addServices(floor, recorded);
   addCallbacks(federate, recordedFederate);
   benchmark::RunSpecifiedBenchmarks();
   Recording::end();
   unlink(path.c_str());
   return 0;
}
