// The whole interface but the encoding helpers and the two standard times.

/** @mainpage
 *
 * The C++ interface of an IEEE 1516.1-2010 (HLA) run-time infrastructure.
 *
 * A federate begins with rti1516e::RTIambassadorFactory, calls the services of
 * rti1516e::RTIambassador, and takes callbacks by a class of its own that derives from
 * rti1516e::NullFederateAmbassador, or from rti1516e::FederateAmbassador if it wants them all.
 *
 * | what | where |
 * |---|---|
 * | handles, such as rti1516e::ObjectInstanceHandle | RTI/Handle.h |
 * | sets, maps and records | RTI/Typedefs.h |
 * | bytes: values and tags | rti1516e::VariableLengthData |
 * | data encodings | rti1516e::DataElement and what derives from it, RTI/encoding/ |
 * | logical time | rti1516e::LogicalTime, RTI/time/ |
 * | exceptions | rti1516e::Exception and what derives from it, RTI/Exception.h |
 *
 * How a federate is built and started is told in the read-me beside the installed documents.
 */
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

/// Version of this library's headers, as 50510 for 5.5.10: two digits each for the second and the
/// third number. rtiVersion() tells that of the library which the process has loaded.
#define TARN1516E_VERSION 50510

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
