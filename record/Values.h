// Arguments and results as short texts.
#ifndef record_Values_h
#define record_Values_h

#include "record/Names.h"
#include "record/Text.h"
#include <RTI/RTI1516.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tarn1516e {
namespace record {

// Where a value is written, and what it may look like there.
struct Place {
   Text& text;
   int ambassador;         // whose names count
   std::size_t shownBytes; // of an opaque value
};

void show(Place const& to, bool value);
void show(Place const& to, double value);
void show(Place const& to, unsigned long value);
void show(Place const& to, std::wstring const& value);
void show(Place const& to, std::set<std::wstring> const& values);
void show(Place const& to, std::vector<std::wstring> const& values);
void show(Place const& to, rti1516e::VariableLengthData const& value);

// Each with its name instead of its class's, if that is known: Ferry<7>.
void show(Place const& to, rti1516e::FederateHandle const& handle);
void show(Place const& to, rti1516e::ObjectClassHandle const& handle);
void show(Place const& to, rti1516e::InteractionClassHandle const& handle);
void show(Place const& to, rti1516e::ObjectInstanceHandle const& handle);
void show(Place const& to, rti1516e::AttributeHandle const& handle);
void show(Place const& to, rti1516e::ParameterHandle const& handle);
void show(Place const& to, rti1516e::DimensionHandle const& handle);
void show(Place const& to, rti1516e::RegionHandle const& handle);
void show(Place const& to, rti1516e::MessageRetractionHandle const& handle);

void show(Place const& to, rti1516e::AttributeHandleSet const& handles);
void show(Place const& to, rti1516e::DimensionHandleSet const& handles);
void show(Place const& to, rti1516e::RegionHandleSet const& handles);
void show(Place const& to, rti1516e::FederateHandleSet const& handles);
void show(Place const& to, rti1516e::AttributeHandleValueMap const& values);
void show(Place const& to, rti1516e::ParameterHandleValueMap const& values);
void show(Place const& to, rti1516e::AttributeHandleSetRegionHandleSetPairVector const& pairs);
void show(Place const& to, rti1516e::RangeBounds const& bounds);

// As toString has them; what that throws is the federate's affair and not shown.
void show(Place const& to, rti1516e::LogicalTime const& time);
void show(Place const& to, rti1516e::LogicalTimeInterval const& interval);

void show(Place const& to, rti1516e::OrderType value);
void show(Place const& to, rti1516e::TransportationType value);
void show(Place const& to, rti1516e::ResignAction value);
void show(Place const& to, rti1516e::ServiceGroup value);
void show(Place const& to, rti1516e::CallbackModel value);
void show(Place const& to, rti1516e::SynchronizationPointFailureReason value);
void show(Place const& to, rti1516e::SaveFailureReason value);
void show(Place const& to, rti1516e::RestoreFailureReason value);

void show(Place const& to, rti1516e::SupplementalReflectInfo const& info);
void show(Place const& to, rti1516e::SupplementalReceiveInfo const& info);
void show(Place const& to, rti1516e::SupplementalRemoveInfo const& info);
void show(Place const& to, rti1516e::FederateHandleSaveStatusPairVector const& statuses);
void show(Place const& to, rti1516e::FederateRestoreStatusVector const& statuses);
void show(Place const& to, rti1516e::FederationExecutionInformationVector const& executions);

// The class's name.
void show(Place const& to, rti1516e::FederateAmbassador const& federate);
void show(Place const& to, std::auto_ptr<rti1516e::LogicalTimeFactory> const& factory);

// A class's name without its namespace, in quotes.
void showClass(Text& text, std::type_info const& type);

// Keeps what a look-up has shown.
void learn(int ambassador, rti1516e::FederateHandle const& handle, std::wstring const& name);
void learn(int ambassador, rti1516e::ObjectClassHandle const& handle, std::wstring const& name);
void learn(
      int ambassador, rti1516e::InteractionClassHandle const& handle, std::wstring const& name);
void learn(int ambassador, rti1516e::ObjectInstanceHandle const& handle, std::wstring const& name);
void learn(int ambassador, rti1516e::AttributeHandle const& handle, std::wstring const& name);
void learn(int ambassador, rti1516e::ParameterHandle const& handle, std::wstring const& name);
void learn(int ambassador, rti1516e::DimensionHandle const& handle, std::wstring const& name);

} // namespace record
} // namespace tarn1516e

#endif
