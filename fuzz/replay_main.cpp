// SPDX-License-Identifier: MIT
//
// Runs a fuzz target over every file of a folder, with any compiler: replay FOLDER.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* data, std::size_t size);

int main(int const argc, char const* const* const argv) {
  std::size_t count = 0;
  for (auto const& entry : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::vector<char> const bytes{std::istreambuf_iterator<char>(file), {}};
    std::vector<std::uint8_t> const input(bytes.begin(), bytes.end());
    std::fprintf(stderr, "%s\n", entry.path().filename().c_str());  // the last one is the culprit
    if (!file) {
      return 2;
    }
    LLVMFuzzerTestOneInput(input.data(), input.size());
    ++count;
  }
  std::printf("%zu inputs\n", count);
  return count > 0 ? 0 : 1;
}
