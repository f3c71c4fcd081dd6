// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One environment variable set or removed for as long as this object exists.
#pragma once

#include <optional>
#include <string>

namespace gdi::test {

class EnvironmentVariable {
 public:
  // Sets the variable to `value`, or removes it when there is none.
  EnvironmentVariable(std::string name, const std::optional<std::string>& value);
  ~EnvironmentVariable();
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace gdi::test
