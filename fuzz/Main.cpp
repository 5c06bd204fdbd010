// Runs a fuzz target where there is no fuzzer: on the inputs in the files given, and on as many
// variations of them by chance as the first argument says.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

std::mt19937 random(1);

std::size_t below(std::size_t limit)
{
   return random() % limit;
}

std::string varied(std::string input)
{
   for (std::size_t i = 1 + below(4); i > 0; --i) {
      std::size_t const at = below(input.size() + 1);
      char const octet = static_cast<char>(below(2) == 0 ? random() : below(5));
      if (below(3) == 0) {
         input.insert(at, 1, octet);
      } else if (at < input.size() && below(4) == 0) {
         input.erase(at, below(9));
      } else if (at < input.size()) {
         input[at] = octet;
      }
   }
   return input;
}

void run(std::string const& input)
{
   std::vector<std::uint8_t> const data(input.begin(), input.end()); // ends where its memory ends
   LLVMFuzzerTestOneInput(data.data(), data.size());
}

} // namespace

int main(int count, char** arguments)
{
   std::vector<std::string> inputs;
   for (int i = 2; i < count; ++i) {
      std::ifstream file(arguments[i], std::ios::binary);
      inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
      run(inputs.back());
   }
   if (inputs.empty()) {
      std::fprintf(stderr, "Usage: %s VARIATIONS FILE...\n", arguments[0]);
      return 2;
   }
   for (long left = std::atol(arguments[1]); left > 0; --left) {
      std::string const input = varied(inputs[below(inputs.size())]);
      run(input);
      if (below(8) == 0 && input.size() < 300) {
         inputs[below(inputs.size())] = input; // goes on from there
      }
   }
}
