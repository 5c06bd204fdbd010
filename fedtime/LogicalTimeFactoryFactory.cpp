// The time library of federates that use the standard times. A federate with a kind of time of its
// own brings a library of the same name that defines this one operation for it.
#include <RTI/LogicalTimeFactory.h>

namespace rti1516e {

std::auto_ptr<LogicalTimeFactory> LogicalTimeFactoryFactory::makeLogicalTimeFactory(
      std::wstring const& implementationName)
{
   return HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory(implementationName);
}

} // namespace rti1516e
