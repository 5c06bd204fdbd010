// marshalling CASE TIMES: makes one of the calls that often, for an instruction counter to watch.
// Without arguments it lists the cases.
#include "tests/performance/Cases.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv)
{
   std::string const name = argc > 1 ? argv[1] : "";
   int const times = argc > 2 ? std::atoi(argv[2]) : 0;
   for (performance::Case const& row : performance::cases()) {
      if (argc == 1) {
         std::cout << row.name << "\n";
      } else if (row.name == name) {
         for (int i = 0; i < times; ++i) {
            row.call();
         }
         return 0;
      }
   }
   return argc == 1 ? 0 : 1;
}
