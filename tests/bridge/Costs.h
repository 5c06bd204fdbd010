// Services and callbacks whose cost is watched: what native memory they take, and how many
// instructions they are between federate and VM.
#ifndef tests_bridge_Costs_h
#define tests_bridge_Costs_h

#include <functional>
#include <string>
#include <vector>

namespace net {

struct Cost {
   std::string name;
   std::function<void()> call;
   long allocations; // at most, from the second call on
};

// On an ambassador that is made at the first call and stays, on the VM that is none.
std::vector<Cost> const& costs();

} // namespace net

#endif
