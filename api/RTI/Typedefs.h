// The collections and records of the interface.
#ifndef RTI_Typedefs_h
#define RTI_Typedefs_h

#include <RTI/SpecificConfig.h>

#include <map>
#include <RTI/Enums.h>
#include <RTI/Handle.h>
#include <RTI/VariableLengthData.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

RTI_BEGIN_INTERFACE

namespace rti1516e {

typedef std::set<AttributeHandle> AttributeHandleSet;
typedef std::set<ParameterHandle> ParameterHandleSet;
typedef std::set<FederateHandle> FederateHandleSet;
typedef std::set<DimensionHandle> DimensionHandleSet;
typedef std::set<RegionHandle> RegionHandleSet;

/// Attributes of an object instance, each with its encoded value.
typedef std::map<AttributeHandle, VariableLengthData> AttributeHandleValueMap;

/// Parameters of an interaction, each with its encoded value.
typedef std::map<ParameterHandle, VariableLengthData> ParameterHandleValueMap;

/// Attributes, and the regions that go with every one of them.
typedef std::pair<AttributeHandleSet, RegionHandleSet> AttributeHandleSetRegionHandleSetPair;
typedef std::vector<AttributeHandleSetRegionHandleSetPair>
      AttributeHandleSetRegionHandleSetPairVector;

/// A federate, and how far it is with a save.
typedef std::pair<FederateHandle, SaveStatus> FederateHandleSaveStatusPair;
typedef std::vector<FederateHandleSaveStatusPair> FederateHandleSaveStatusPairVector;

/// A federate, and how far it is with a restore.
class RTI_EXPORT FederateRestoreStatus {
public:
   /// Copies the three.
   FederateRestoreStatus(FederateHandle const& preRestoreHandle,
         FederateHandle const& postRestoreHandle, RestoreStatus status);

   /// The federate's handle before the restore.
   FederateHandle preRestoreHandle;

   /// Its handle after the restore.
   FederateHandle postRestoreHandle;

   /// How far it is.
   RestoreStatus status;
};

typedef std::vector<FederateRestoreStatus> FederateRestoreStatusVector;

/// A federation execution as listFederationExecutions reports it.
class RTI_EXPORT FederationExecutionInformation {
public:
   /// Copies both names.
   FederationExecutionInformation(std::wstring const& federationExecutionName,
         std::wstring const& logicalTimeImplementationName);

   /// The execution's name, and the name of its kind of time.
   std::wstring federationExecutionName;
   std::wstring logicalTimeImplementationName;
};

typedef std::vector<FederationExecutionInformation> FederationExecutionInformationVector;

/// What may come with a reflection: ask hasProducingFederate for the one field, and the other one
/// itself, by sentRegions.empty().
class RTI_EXPORT SupplementalReflectInfo {
public:
   /// Holds what is given; the default constructor, nothing.
   SupplementalReflectInfo();
   SupplementalReflectInfo(FederateHandle const& producingFederate);
   SupplementalReflectInfo(RegionHandleSet const& sentRegions);
   SupplementalReflectInfo(
         FederateHandle const& producingFederate, RegionHandleSet const& sentRegions);

   /// Whether producingFederate holds something.
   bool hasProducingFederate;

   /// Only the constructors set it: in a reflection it is false although regions came. Look at
   /// sentRegions instead.
   bool hasSentRegions;

   /// The federate that sent the update; invalid without its flag.
   FederateHandle producingFederate;

   /// The regions that the update was sent with; empty if there were none.
   RegionHandleSet sentRegions;
};

/// What may come with an interaction. A field holds something only if its flag is set; the
/// constructor that takes a value sets the flag.
class RTI_EXPORT SupplementalReceiveInfo {
public:
   /// Holds what is given; the default constructor, nothing.
   SupplementalReceiveInfo();
   SupplementalReceiveInfo(FederateHandle const& producingFederate);
   SupplementalReceiveInfo(RegionHandleSet const& sentRegions);
   SupplementalReceiveInfo(
         FederateHandle const& producingFederate, RegionHandleSet const& sentRegions);

   /// Whether the field of that name holds something.
   bool hasProducingFederate;
   bool hasSentRegions;

   /// The federate that sent the interaction; invalid without its flag.
   FederateHandle producingFederate;

   /// The regions that the interaction was sent with; empty without its flag.
   RegionHandleSet sentRegions;
};

/// What may come with the removal of an object instance.
class RTI_EXPORT SupplementalRemoveInfo {
public:
   /// Holds what is given; the default constructor, nothing.
   SupplementalRemoveInfo();
   SupplementalRemoveInfo(FederateHandle const& producingFederate);

   /// Whether the field of that name holds something.
   bool hasProducingFederate;

   /// The federate that deleted the instance; invalid without its flag.
   FederateHandle producingFederate;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
