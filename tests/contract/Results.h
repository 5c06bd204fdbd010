// What Java may answer, by the result's code in the rows, and what a federate gets of it.
#ifndef tests_contract_Results_h
#define tests_contract_Results_h

#include <functional>
#include <string>
#include <vector>

namespace contract {

struct Result {
   std::function<void(std::string const& method)> answer; // tells the script
   std::string shown;
};

// In a federation of that time implementation.
std::vector<Result> results(std::string const& code, std::string const& timeName);

} // namespace contract

#endif
