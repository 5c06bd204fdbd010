// The whole interface but the encoding helpers and the two standard times.
#ifndef RTI_RTI1516_h
#define RTI_RTI1516_h

#include <RTI/SpecificConfig.h>

#include <RTI/Enums.h>
#include <RTI/Exception.h>
#include <RTI/FederateAmbassador.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RangeBounds.h>
#include <RTI/RTIambassador.h>
#include <RTI/RTIambassadorFactory.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>
#include <string>

/// The standard, IEEE 1516, and the version of its C++ interface.
#define HLA_SPECIFICATION_NAME "1516"
#define HLA_API_MAJOR_VERSION 2
#define HLA_API_MINOR_VERSION 0

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Name of this RTI, and the version of this library. Neither needs the Java VM.
RTI_EXPORT std::wstring rtiName();
RTI_EXPORT std::wstring rtiVersion();

} // namespace rti1516e

RTI_END_INTERFACE

#endif
