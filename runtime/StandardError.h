// The standard error stream, which the library shares with the federate.
#ifndef runtime_StandardError_h
#define runtime_StandardError_h

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <unistd.h>

namespace tarn1516e {

// Also where the federate has written to std::wcerr: the stream takes no bytes from then on.
inline void writeError(char const* text)
{
   if (std::fwide(stderr, 0) <= 0) {
      std::fputs(text, stderr);
   } else if (std::fflush(stderr) == 0) {
      static_cast<void>(::write(fileno(stderr), text, std::strlen(text)) == 0);
   }
}

} // namespace tarn1516e

#endif
