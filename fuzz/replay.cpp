// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Stands in for the fuzzer where there is none: runs a target on every file of the folders that it
// is given, and on each cut in half.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::size_t files = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> text{std::istreambuf_iterator<char>(file), {}};
      const std::vector<std::uint8_t> bytes(text.begin(), text.end());
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size() / 2);
      ++files;
    }
  }
  std::cout << files << " files\n";
  return files == 0 ? 1 : 0;
}
