#include "tests/bridge/Wire.h"

#include "tests/api/Bytes.h"

#include <algorithm>
#include <cstring>

using namespace rti1516e;

namespace net {

namespace {

std::string bigEndian(std::uint64_t value, int size)
{
   std::string bytes;
   for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
      bytes += static_cast<char>(value >> shift & 0xFF);
   }
   return bytes;
}

} // namespace

Wire& Wire::operator+=(Wire const& other)
{
   bytes += other.bytes;
   surplus += other.surplus;
   return *this;
}

Wire operator+(Wire left, Wire const& right)
{
   return left += right;
}

Wire integer(std::int64_t value)
{
   return Wire{bigEndian(static_cast<std::uint64_t>(value), 4), 0};
}

Wire longInteger(std::uint64_t value)
{
   return Wire{bigEndian(value, 8), 0};
}

Wire block(std::string const& bytes)
{
   return integer(static_cast<std::int64_t>(bytes.size())) + Wire{bytes, 0};
}

Wire counted(std::vector<Wire> const& elements)
{
   Wire all = integer(static_cast<std::int64_t>(elements.size()));
   for (Wire const& element : elements) {
      all += element;
   }
   return all;
}

std::string frame(int handle, std::string const& fields)
{
   return "\x63\x62\x61\x60" + integer(handle).bytes + fields + "\x59\x58\x57\x56";
}

std::string hex(std::string const& bytes)
{
   return ::hex(bytes.data(), std::min<std::size_t>(bytes.size(), 400))
         + (bytes.size() > 400 ? " ... " : " ") + std::to_string(bytes.size()) + " bytes";
}

Wire wire(bool value)
{
   return integer(value);
}

Wire wire(double value)
{
   std::uint64_t bits;
   std::memcpy(&bits, &value, sizeof bits);
   return longInteger(bits);
}

Wire wire(std::wstring const& value)
{
   Wire all = integer(static_cast<std::int64_t>(value.size()));
   for (wchar_t const character : value) {
      all += Wire{bigEndian(static_cast<std::uint64_t>(character), 2), 2};
   }
   return all;
}

Wire wire(VariableLengthData const& value)
{
   return block(value.data() == nullptr ? "no storage" : bytesOf(value)); // an empty one has some
}

Wire wire(RangeBounds const& value)
{
   return wire(value.getLowerBound()) + wire(value.getUpperBound());
}

Wire wire(FederateRestoreStatus const& value)
{
   return wire(value.preRestoreHandle) + wire(value.postRestoreHandle) + wire(value.status);
}

Wire wire(FederationExecutionInformation const& value)
{
   return wire(value.federationExecutionName) + wire(value.logicalTimeImplementationName);
}

Wire wire(SupplementalRemoveInfo const& value)
{
   return wire(value.hasProducingFederate) + wire(value.producingFederate);
}

Wire wire(OrderType value)
{
   return integer(value == RECEIVE ? 0 : 1);
}

Wire wire(ServiceGroup value)
{
   return integer(value + 1);
}

Wire wire(CallbackModel value)
{
   return integer(value == HLA_EVOKED ? 1 : 2);
}

Wire wire(LogicalTime const& value)
{
   return Wire{bytesOf(value.encode()), 0};
}

Wire wire(LogicalTimeInterval const& value)
{
   return Wire{bytesOf(value.encode()), 0};
}

Wire wire(std::auto_ptr<LogicalTimeFactory> value)
{
   return value.get() == nullptr ? Wire{"none", 0} : wire(value->getName());
}

} // namespace net
