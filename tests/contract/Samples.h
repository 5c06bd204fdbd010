// For each type code of a Java name some values, each beside the bytes that stand for it on the
// wire, told from the wire format and not from the library.
#ifndef tests_contract_Samples_h
#define tests_contract_Samples_h

#include "tests/contract/Show.h"
#include "tests/contract/Wire.h"
#include <RTI/Enums.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace contract {

// To Java in a service; or to the federate in a callback, with the time of its federation.
enum class Way {
   OUT,
   IN_INTEGER_TIME,
   IN_FLOAT_TIME
};

template <class T>
struct Sample {
   T value;
   Wire wire;
};

template <class T>
using Samples = std::vector<Sample<T>>;

// Each code with its native type. SX stands for S where it is a set; the codes behind FASRI are
// told by their records.
#define CONTRACT_FOR_EACH_CODE(X)                                                                  \
   X(S, std::wstring)                                                                              \
   X(SX, std::set<std::wstring>)                                                                   \
   X(URL, std::wstring)                                                                            \
   X(URLX, std::vector<std::wstring>)                                                              \
   X(BX, rti1516e::VariableLengthData)                                                             \
   X(Z, bool)                                                                                      \
   X(D, double)                                                                                    \
   X(OCH, rti1516e::ObjectClassHandle)                                                             \
   X(ICH, rti1516e::InteractionClassHandle)                                                        \
   X(OIH, rti1516e::ObjectInstanceHandle)                                                          \
   X(AH, rti1516e::AttributeHandle)                                                                \
   X(PH, rti1516e::ParameterHandle)                                                                \
   X(FH, rti1516e::FederateHandle)                                                                 \
   X(DH, rti1516e::DimensionHandle)                                                                \
   X(RH, rti1516e::RegionHandle)                                                                   \
   X(AHS, rti1516e::AttributeHandleSet)                                                            \
   X(DHS, rti1516e::DimensionHandleSet)                                                            \
   X(RHS, rti1516e::RegionHandleSet)                                                               \
   X(FHS, rti1516e::FederateHandleSet)                                                             \
   X(AHVM, rti1516e::AttributeHandleValueMap)                                                      \
   X(PHVM, rti1516e::ParameterHandleValueMap)                                                      \
   X(ASRSPL, rti1516e::AttributeHandleSetRegionHandleSetPairVector)                                \
   X(RB, rti1516e::RangeBounds)                                                                    \
   X(LT, std::shared_ptr<rti1516e::LogicalTime>)                                                   \
   X(LTI, std::shared_ptr<rti1516e::LogicalTimeInterval>)                                          \
   X(MRH, rti1516e::MessageRetractionHandle)                                                       \
   X(TTH, rti1516e::TransportationType)                                                            \
   X(OT, rti1516e::OrderType)                                                                      \
   X(RA, rti1516e::ResignAction)                                                                   \
   X(SG, rti1516e::ServiceGroup)                                                                   \
   X(CM, rti1516e::CallbackModel)                                                                  \
   X(ReflectInfo, rti1516e::SupplementalReflectInfo)                                               \
   X(ReceiveInfo, rti1516e::SupplementalReceiveInfo)                                               \
   X(RemoveInfo, rti1516e::SupplementalRemoveInfo)                                                 \
   X(SPFR, rti1516e::SynchronizationPointFailureReason)                                            \
   X(SFR, rti1516e::SaveFailureReason)                                                             \
   X(RFR, rti1516e::RestoreFailureReason)                                                          \
   X(FHSSPX, rti1516e::FederateHandleSaveStatusPairVector)                                         \
   X(FRSX, rti1516e::FederateRestoreStatusVector)                                                  \
   X(FEIS, rti1516e::FederationExecutionInformationVector)

#define DECLARE_CODE(CODE, TYPE)                                                                   \
   struct CODE {                                                                                   \
      typedef TYPE Native;                                                                         \
      static Samples<Native> samples(Way way);                                                     \
   };

CONTRACT_FOR_EACH_CODE(DECLARE_CODE)
#undef DECLARE_CODE

// A handle of that word. One above the range of an int can only be decoded, one below 0 only come
// from an int.
template <class Handle>
Handle handle(long word);

} // namespace contract

#endif
