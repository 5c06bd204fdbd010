// How callbacks treat exceptions, for the whole process.
#include "gen/cpp/CallbackFrame.h"

namespace tarn1516e {

int catchAll = 0;
char const* const javaFederateInternalErrorClass = "hla/rti1516e/exceptions/FederateInternalError";

} // namespace tarn1516e

void setCatchAll(bool catchAll)
{
   tarn1516e::catchAll = catchAll;
}
