// The two abstract ambassadors. Their destructors are defined here, so that the library holds their
// type information and virtual tables for all who derive from them.
#include <RTI/FederateAmbassador.h>
#include <RTI/RTIambassador.h>

namespace rti1516e {

RTIambassador::RTIambassador() {}

RTIambassador::~RTIambassador() {}

FederateAmbassador::FederateAmbassador() {}

FederateAmbassador::~FederateAmbassador() {}

} // namespace rti1516e
