// Values of each type code of a Java name, as a federate hands them to services; and the bytes that
// Java may send for a code in callbacks, those values' and odder ones.
#ifndef tests_bridge_Samples_h
#define tests_bridge_Samples_h

#include "tests/bridge/Wire.h"
#include <RTI/Enums.h>

#include <deque>

namespace net {

// The time of a federation.
enum class Time {
   NONE,
   INTEGER,
   FLOAT
};

template <class T>
using Samples = std::deque<T>; // of references to elements, a bool's too

// Each code with the type of the values that services take. SX stands for S where it is a set.
#define NET_FOR_EACH_CODE(X)                                                                       \
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
   X(CM, rti1516e::CallbackModel)

#define NET_DECLARE_CODE(CODE, TYPE)                                                               \
   struct CODE {                                                                                   \
      typedef TYPE Native;                                                                         \
      static Samples<Native> const& samples();                                                     \
   };

NET_FOR_EACH_CODE(NET_DECLARE_CODE)
#undef NET_DECLARE_CODE

// The codes of a native's name. S is SX where it is a set; behind FASRI stands its record:
// FASRI-ref, FASRI-rec or FASRI-rem.
std::vector<std::string> codesOf(std::string const& native);

// All of a callback's fields, other ones in every set. Those of set 0 are small.
std::string fieldsOf(std::string const& native, int set);

} // namespace net

#endif
