// A federate's member of a federation without a VM, and the calls that are counted.
#ifndef tests_performance_Cases_h
#define tests_performance_Cases_h

#include <RTI/RTI1516.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace performance {

// One service or one callback.
struct Case {
   std::string name;
   std::function<void()> call;
   long allocations; // that it makes

   // How far the last call came: the length of the array that Java got, or the number of values
   // that the federate got.
   std::function<long()> reached;
   long expected;
};

// All cases, on an ambassador that is made at the first call. It stays.
std::vector<Case> const& cases();

} // namespace performance

#endif
