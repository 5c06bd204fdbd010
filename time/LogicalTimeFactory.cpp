// Where the type information of the abstract time factory lives.
#include <RTI/LogicalTimeFactory.h>

namespace rti1516e {

LogicalTimeFactory::~LogicalTimeFactory() {}

} // namespace rti1516e
