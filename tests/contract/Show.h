// Values of the interface as text, so that what a federate received can be compared with what was
// sent, whatever its type.
#ifndef tests_contract_Show_h
#define tests_contract_Show_h

#include "tests/api/Bytes.h"
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace contract {

std::string show(std::wstring const& value); // characters outside ASCII as numbers
std::string show(double value);              // all digits
std::string show(rti1516e::VariableLengthData const& value);
std::string show(rti1516e::MessageRetractionHandle const& value); // with its further bytes
std::string show(rti1516e::RangeBounds const& value);
std::string show(rti1516e::FederateRestoreStatus const& value);
std::string show(rti1516e::FederationExecutionInformation const& value);
std::string show(rti1516e::SupplementalReflectInfo const& value);
std::string show(rti1516e::SupplementalReceiveInfo const& value);
std::string show(rti1516e::SupplementalRemoveInfo const& value);
std::string show(rti1516e::LogicalTime const& value); // with the bytes that it encodes to
std::string show(rti1516e::LogicalTimeInterval const& value);

#define SHOW_HANDLE(H) std::string show(rti1516e::H const& value);
RTI_FOR_EACH_HANDLE(SHOW_HANDLE)
#undef SHOW_HANDLE

// A boolean, an integer or an enumeration.
template <class Number>
std::enable_if_t<std::is_integral<Number>::value || std::is_enum<Number>::value, std::string> show(
      Number value)
{
   return std::to_string(+static_cast<std::common_type_t<Number, int>>(value));
}

template <class T>
std::string show(std::shared_ptr<T> const& value)
{
   return show(*value);
}

inline std::string show(std::auto_ptr<rti1516e::LogicalTimeFactory> value)
{
   return value.get() == nullptr ? "none" : show(value->getName());
}

template <class A, class B>
std::string show(std::pair<A, B> const& value)
{
   return show(value.first) + ": " + show(value.second);
}

template <class Container>
std::string showAll(Container const& values)
{
   std::string text = "{";
   for (auto const& value : values) {
      text += (text.size() == 1 ? "" : ", ") + show(value);
   }
   return text + "}";
}

template <class T>
std::string show(std::set<T> const& values)
{
   return showAll(values);
}

template <class T>
std::string show(std::vector<T> const& values)
{
   return showAll(values);
}

template <class K, class T>
std::string show(std::map<K, T> const& values)
{
   return showAll(values);
}

} // namespace contract

#endif
