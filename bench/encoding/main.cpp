// The encoding helpers' benchmarks. A subject and its floor are interleaved when the run is told
// so; scripts/bench does.
#include "bench/encoding/Figures.h"

int main(int argc, char** argv)
{
   benchmark::Initialize(&argc, argv);
   if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
      return 1;
   }
   addScalars();
   addRecords();
   addArrays();
   addBlocks();
   addMakes();
   benchmark::RunSpecifiedBenchmarks();
   return 0;
}
