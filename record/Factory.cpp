// Stands in front of the library's factory: the ambassador that it makes is handed out inside one
// that records. All else of the recorder follows from here.
#include "record/Event.h"
#include "record/generated/RecordingAmbassador.h"
#include <RTI/RTIambassadorFactory.h>

#include <dlfcn.h>
#include <memory>

namespace {

using namespace rti1516e;

// The factory's member as a function: its object is the first argument.
typedef std::auto_ptr<RTIambassador> (*Create)(RTIambassadorFactory*);

Create nextFactory()
{
   char const name[] = "_ZN8rti1516e20RTIambassadorFactory19createRTIambassadorEv";
   Create const next = reinterpret_cast<Create>(dlsym(RTLD_NEXT, name));
   if (next == nullptr) {
      throw RTIinternalError(L"tarn1516e-record finds no library to make an ambassador");
   }
   return next;
}

// Runs as late as a library can: federates may call services while their static objects go.
__attribute__((destructor)) void endRecording()
{
   tarn1516e::record::Recording::end();
}

} // namespace

namespace rti1516e {

RTI_EXPORT std::auto_ptr<RTIambassador> RTIambassadorFactory::createRTIambassador()
      RTI_THROW((RTIinternalError))
{
   using namespace tarn1516e::record;
   static Create const create = nextFactory();
   Recording& recording = Recording::instance();
   if (!recording.isOn()) {
      return create(this);
   }
   int const number = recording.nextAmbassador();
   Event event(number, "start", "createRTIambassador");
   std::auto_ptr<RTIambassador> real;
   event.run([&] { real = create(this); });
   return std::auto_ptr<RTIambassador>(new RecordingAmbassador(real.release(), number));
}

} // namespace rti1516e
