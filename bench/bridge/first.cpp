// The first ambassador of a process, for bench/first_ambassador.py to watch.
#include <RTI/RTI1516.h>

#include <cstdio>
#include <memory>

int main()
{
   std::auto_ptr<rti1516e::RTIambassador> const ambassador =
         rti1516e::RTIambassadorFactory().createRTIambassador();
   std::fputs("made\n", stderr);
   return 0;
}
