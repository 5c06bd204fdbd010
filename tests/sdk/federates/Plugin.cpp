#include "Plugin.h"

void pluginThrows()
{
   throw rti1516e::FederateInternalError(L"by the plugin");
}

void pluginCalls(rti1516e::RTIambassador& rti)
{
   rti.resignFederationExecution(rti1516e::NO_ACTION);
}

bool pluginCatches(rti1516e::RTIambassador& rti)
{
   int caught = 0;
   try {
      pluginCalls(rti);
   } catch (rti1516e::FederateNotExecutionMember const&) {
      ++caught;
   } catch (...) {
      return false;
   }
   try {
      pluginCalls(rti);
   } catch (rti1516e::Exception const& e) {
      caught += dynamic_cast<rti1516e::FederateNotExecutionMember const*>(&e) != 0;
   }
   return caught == 2;
}
