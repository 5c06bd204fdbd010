// A second shared library between the federate and the interface, as plugins are.
#ifndef federates_Plugin_h
#define federates_Plugin_h

#include <RTI/RTI1516.h>

#define PLUGIN_EXPORT __attribute__((visibility("default")))

// Throws an exception of the interface that is the plugin's own.
PLUGIN_EXPORT void pluginThrows();

// Lets the library throw FederateNotExecutionMember through.
PLUGIN_EXPORT void pluginCalls(rti1516e::RTIambassador& rti);

// Whether what the library throws was caught in the plugin, by its class and by the base class.
PLUGIN_EXPORT bool pluginCatches(rti1516e::RTIambassador& rti);

#endif
