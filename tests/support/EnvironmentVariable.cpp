// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/EnvironmentVariable.h"

#include <cstdlib>
#include <utility>

namespace gdi::test {

namespace {

// Tests have one thread, which is what these calls ask for.
void put(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    (void)setenv(name.c_str(), value->c_str(), 1);
  } else {
    (void)unsetenv(name.c_str());
  }
}

}  // namespace

EnvironmentVariable::EnvironmentVariable(std::string name, const std::optional<std::string>& value)
    : name_(std::move(name)) {
  if (const char* before = std::getenv(name_.c_str()); before != nullptr) {
    before_ = before;
  }
  put(name_, value);
}

EnvironmentVariable::~EnvironmentVariable() {
  put(name_, before_);
}

}  // namespace gdi::test
