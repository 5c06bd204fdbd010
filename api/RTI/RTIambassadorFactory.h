// The factory of RTI ambassadors.
#ifndef RTI_RTIambassadorFactory_h
#define RTI_RTIambassadorFactory_h

#include <RTI/SpecificConfig.h>

#include <memory>
#include <RTI/Exception.h>
#include <RTI/RTIambassador.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Where a federate begins. The factory holds nothing: its ambassadors outlive it.
class RTI_EXPORT RTIambassadorFactory {
public:
   RTIambassadorFactory();
   virtual ~RTIambassadorFactory();

   /// A new ambassador that is not connected. The caller owns it; how it ends is told there.
   ///
   /// The first call of a process finds and starts the Java VM, or joins the one that is there.
   /// That is done on the caller's thread and takes its time. RTIinternalError tells why it failed;
   /// the next call then starts over, but for a VM that is there.
   std::auto_ptr<RTIambassador> createRTIambassador() RTI_THROW((RTIinternalError));
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
