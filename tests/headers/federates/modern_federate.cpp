// A federate in the manner of C++11 and later: override, braces for a tag or a handle set, the
// ambassador in a std::unique_ptr, infinite waits.
// compile: 11 14 17 20 2b
#include <iostream>
#include <limits>
#include <memory>
#include <RTI/encoding/HLAfixedArray.h>
#include <RTI/encoding/HLAvariableArray.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <string>

namespace {

class Listener final : public rti1516e::NullFederateAmbassador {
public:
   void receiveInteraction(rti1516e::InteractionClassHandle,
         rti1516e::ParameterHandleValueMap const&, rti1516e::VariableLengthData const& tag,
         rti1516e::OrderType, rti1516e::TransportationType,
         rti1516e::SupplementalReceiveInfo info) override
   {
      regions = info.hasSentRegions ? info.sentRegions.size() : tag.size();
   }

   void connectionLost(std::wstring const& faultDescription) override
   {
      throw rti1516e::FederateInternalError(faultDescription);
   }

   std::size_t regions = 0;
};

} // namespace

double run()
{
   Listener listener;
   std::unique_ptr<rti1516e::RTIambassador> const ambassador{
         rti1516e::RTIambassadorFactory().createRTIambassador().release()};
   std::unique_ptr<rti1516e::RTIambassador> other =
         rti1516e::RTIambassadorFactory().createRTIambassador();
   ambassador->connect(listener, rti1516e::HLA_EVOKED, L"");

   std::vector<std::wstring> const modules{L"a.xml", L"b.xml", L"c.xml"};
   ambassador->createFederationExecution(L"federation", modules, rti1516e::HLAfloat64TimeName);
   ambassador->createFederationExecution(L"federation", {L"a.xml", L"b.xml", L"c.xml"});
   ambassador->joinFederationExecution(L"type", L"federation", modules);
   ambassador->joinFederationExecution(L"name", L"type", L"federation", modules);

   auto const shape = ambassador->getObjectClassHandle(L"Shape");
   auto const size = ambassador->getAttributeHandle(shape, L"size");
   ambassador->publishObjectClassAttributes(shape, {size});
   auto const object = ambassador->registerObjectInstance(shape);
   std::string const tag = "tag";
   ambassador->updateAttributeValues(object, {{size, {tag.data(), tag.size()}}}, {NULL, 0});
   ambassador->updateAttributeValues(
         object, {{size, {tag.data(), 2}}}, {}, rti1516e::HLAfloat64Time(1.5));

   auto const infinity = std::numeric_limits<double>::infinity();
   ambassador->evokeMultipleCallbacks(infinity, infinity);
   rti1516e::HLAfloat64Time time;
   try {
      ambassador->queryLogicalTime(time);
      ambassador->resignFederationExecution(rti1516e::CANCEL_THEN_DELETE_THEN_DIVEST);
   } catch (rti1516e::RTIinternalError const& e) {
      std::wcerr << e.what();
   } catch (rti1516e::Exception const& e) {
      std::wcerr << e.what();
   }
   return time.getTime();
}
