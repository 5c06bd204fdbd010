// Where a federate begins: the factory of ambassadors, and the library's name and version.
#include "bridge/generated/RTIambassadorAdapter.h"
#include <RTI/RTI1516.h>

namespace rti1516e {

RTIambassadorFactory::RTIambassadorFactory() {}

RTIambassadorFactory::~RTIambassadorFactory() {}

std::auto_ptr<RTIambassador> RTIambassadorFactory::createRTIambassador()
      RTI_THROW((RTIinternalError))
{
   return std::auto_ptr<RTIambassador>(new tarn1516e::RTIambassadorAdapter);
}

std::wstring rtiName()
{
   return L"Tarn Evolved";
}

std::wstring rtiVersion()
{
   return L"5.5.10";
}

} // namespace rti1516e
