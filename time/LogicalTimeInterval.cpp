// What every kind of interval shares: where its type information lives, and its printing.
#include <RTI/LogicalTimeInterval.h>

#include <ostream>

namespace rti1516e {

LogicalTimeInterval::~LogicalTimeInterval() {}

} // namespace rti1516e

std::wostream& operator<<(std::wostream& stream, rti1516e::LogicalTimeInterval const& value)
{
   return stream << value.toString();
}
