#include "tests/contract/Show.h"

#include <cstdio>

using namespace rti1516e;

namespace contract {

std::string show(std::wstring const& value)
{
   std::string text;
   for (wchar_t const character : value) {
      if (character > 0x1F && character < 0x7F && character != L'\\') {
         text += static_cast<char>(character);
      } else {
         text += "\\" + std::to_string(static_cast<unsigned>(character)) + ".";
      }
   }
   return text;
}

std::string show(double value)
{
   char text[40];
   std::snprintf(text, sizeof text, "%.17g", value);
   return text;
}

std::string show(VariableLengthData const& value)
{
   return std::to_string(value.size()) + " bytes " + hex(value);
}

std::string show(MessageRetractionHandle const& value)
{
   return show(value.toString()) + " " + hex(value.encode());
}

std::string show(RangeBounds const& value)
{
   return show(value.getLowerBound()) + " to " + show(value.getUpperBound());
}

std::string show(FederateRestoreStatus const& value)
{
   return show(value.preRestoreHandle) + " " + show(value.postRestoreHandle) + " "
         + show(value.status);
}

std::string show(FederationExecutionInformation const& value)
{
   return show(value.federationExecutionName) + " " + show(value.logicalTimeImplementationName);
}

namespace {

template <class Info>
std::string showInfo(Info const& value)
{
   return show(value.hasProducingFederate) + show(value.hasSentRegions) + " "
         + show(value.producingFederate) + " " + show(value.sentRegions);
}

} // namespace

std::string show(SupplementalReflectInfo const& value)
{
   return showInfo(value);
}

std::string show(SupplementalReceiveInfo const& value)
{
   return showInfo(value);
}

std::string show(SupplementalRemoveInfo const& value)
{
   return show(value.hasProducingFederate) + " " + show(value.producingFederate);
}

std::string show(LogicalTime const& value)
{
   return show(value.implementationName()) + " time " + hex(value.encode());
}

std::string show(LogicalTimeInterval const& value)
{
   return show(value.implementationName()) + " interval " + hex(value.encode());
}

#define SHOW_HANDLE(H)                                                                             \
   std::string show(H const& value)                                                                \
   {                                                                                               \
      return show(value.toString());                                                               \
   }

RTI_FOR_EACH_HANDLE(SHOW_HANDLE)

} // namespace contract
