// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// An input that gives some bytes and then cannot be read.
#pragma once

#include <cstdint>
#include <ios>
#include <istream>
#include <streambuf>
#include <string>
#include <vector>

namespace gdi::test {

class FailingInput : private std::streambuf, public std::istream {
 public:
  explicit FailingInput(const std::vector<std::uint8_t>& bytes)
      : std::istream(static_cast<std::streambuf*>(this)), bytes_(bytes.begin(), bytes.end()) {
    setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
  }

 private:
  std::streambuf::int_type underflow() override { throw std::ios::failure("the disk is gone"); }

  std::string bytes_;
};

}  // namespace gdi::test
