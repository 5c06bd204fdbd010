// What every kind of logical time shares: where its type information lives, and its printing.
#include <RTI/LogicalTime.h>

#include <ostream>

namespace rti1516e {

LogicalTime::~LogicalTime() {}

std::wostream& operator<<(std::wostream& stream, LogicalTime const& value)
{
   return stream << value.toString();
}

} // namespace rti1516e
