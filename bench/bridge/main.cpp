// The bridge's benchmarks: one process, one VM, whose options may be given by TARN1516_OPTION2 and
// on, such as -XX:+UseParallelGC. A subject and its floor are interleaved when the run is told so;
// scripts/bench does.
#include "bench/bridge/Cases.h"

int main(int argc, char** argv)
{
   benchmark::Initialize(&argc, argv);
   if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
      return 1;
   }
   member(); // brings up the VM
   addServices();
   addCallbacks();
   addScaling();
   benchmark::RunSpecifiedBenchmarks();
   return 0;
}
