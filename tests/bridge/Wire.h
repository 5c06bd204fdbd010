// What crosses the bridge, in bytes: the one place of the tests that knows. Plain bytes, most
// significant first, made without any of the library's marshalling.
#ifndef tests_bridge_Wire_h
#define tests_bridge_Wire_h

#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace net {

// Bytes that are written, and zeros that a service array has behind its last field for them.
struct Wire {
   std::string bytes;
   std::size_t surplus;

   Wire& operator+=(Wire const& other);

   std::string whole() const
   {
      return bytes + std::string(surplus, '\0');
   }
};

Wire operator+(Wire left, Wire const& right);

Wire integer(std::int64_t value); // the low 32 bits
Wire longInteger(std::uint64_t value);
Wire block(std::string const& bytes);            // their number ahead
Wire counted(std::vector<Wire> const& elements); // the same

// What Java hands to a native: the magic words and the handle around the fields.
std::string frame(int handle, std::string const& fields);

std::string hex(std::string const& bytes);

// The fields of values, as services send them. So what a federate received can be compared with the
// bytes that Java sent, whatever its type.
Wire wire(bool value);
Wire wire(double value);
Wire wire(std::wstring const& value); // two bytes for each character, and as many again declared
Wire wire(rti1516e::VariableLengthData const& value);
Wire wire(rti1516e::RangeBounds const& value);
Wire wire(rti1516e::FederateRestoreStatus const& value);
Wire wire(rti1516e::FederationExecutionInformation const& value);
Wire wire(rti1516e::SupplementalRemoveInfo const& value); // all that it holds
Wire wire(rti1516e::OrderType value);
Wire wire(rti1516e::ServiceGroup value);
Wire wire(rti1516e::CallbackModel value);
Wire wire(rti1516e::LogicalTime const& value);
Wire wire(rti1516e::LogicalTimeInterval const& value);
Wire wire(std::auto_ptr<rti1516e::LogicalTimeFactory> value);

// A reflection's or a reception's record: all that it holds, whatever the flags say.
template <class Info>
auto wire(Info const& value) -> decltype(value.sentRegions, Wire());

// A handle.
template <class Handle>
auto wire(Handle const& value) -> decltype(value.isValid(), Wire());

// An enumeration whose codes are its values, or a number.
template <class Number>
auto wire(Number value)
      -> std::enable_if_t<std::is_enum<Number>::value || std::is_integral<Number>::value, Wire>
{
   return sizeof value == 8 ? longInteger(static_cast<std::uint64_t>(value))
                            : integer(static_cast<std::int64_t>(value));
}

template <class T>
Wire wire(std::set<T> const& values);
template <class T>
Wire wire(std::vector<T> const& values);

template <class T>
Wire wire(std::shared_ptr<T> const& value)
{
   return wire(*value);
}

template <class A, class B>
Wire wire(std::pair<A, B> const& value)
{
   return wire(value.first) + wire(value.second);
}

template <class Container>
Wire wireOfAll(Container const& values)
{
   std::vector<Wire> elements;
   for (auto const& value : values) {
      elements.push_back(wire(value));
   }
   return counted(elements);
}

template <class T>
Wire wire(std::set<T> const& values)
{
   return wireOfAll(values);
}

template <class T>
Wire wire(std::vector<T> const& values)
{
   return wireOfAll(values);
}

template <class K, class T>
Wire wire(std::map<K, T> const& values)
{
   return wireOfAll(values);
}

inline std::string bytesOf(rti1516e::VariableLengthData const& data)
{
   return std::string(static_cast<char const*>(data.data()), data.size());
}

template <class Handle>
auto wire(Handle const& value) -> decltype(value.isValid(), Wire())
{
   return Wire{bytesOf(value.encode()), 0};
}

template <class Info>
auto wire(Info const& value) -> decltype(value.sentRegions, Wire())
{
   Wire wires = wire(value.hasProducingFederate) + wire(value.hasSentRegions);
   wires += wire(value.producingFederate);
   return wires + wire(value.sentRegions);
}

} // namespace net

#endif
