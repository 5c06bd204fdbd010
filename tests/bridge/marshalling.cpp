// marshalling CASE TIMES: makes one of the calls that often, for an instruction counter to watch.
#include "tests/bridge/Costs.h"

#include <cstdlib>

int main(int argc, char** argv)
{
   int const times = argc == 3 ? std::atoi(argv[2]) : 0;
   for (net::Cost const& cost : net::costs()) {
      if (argc == 3 && cost.name == argv[1]) {
         for (int i = 0; i < times; ++i) {
            cost.call();
         }
         return 0;
      }
   }
   return 1;
}
