// Tells the factories of the standard times apart without their headers, which bring a name that
// each unit makes for itself when the library is loaded.
#ifndef api_StandardFactories_h
#define api_StandardFactories_h

#include <RTI/LogicalTimeFactory.h>

namespace tarn1516e {

// Whether it is exactly that class's, not one derived from it.
bool isFloat64TimeFactory(rti1516e::LogicalTimeFactory const& factory);
bool isInteger64TimeFactory(rti1516e::LogicalTimeFactory const& factory);

} // namespace tarn1516e

#endif
