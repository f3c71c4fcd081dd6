// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A program, run by the shell in a temporary folder of its own.
#pragma once

#include <string>
#include <utility>

#include "tests/support/TemporaryFolder.h"

namespace gdi::test {

class ProgramInFolder {
 public:
  explicit ProgramInFolder(std::string program) : program_(std::move(program)) {}

  // The exit status; -1 when the program could not be run or was killed. `arguments` are words for
  // the shell; `input` and `output` are files, seen from the folder.
  [[nodiscard]] int run(const std::string& arguments, const std::string& input = "/dev/null",
                        const std::string& output = "out") const;

  // What the last run wrote to the file "out", and to standard error.
  [[nodiscard]] std::string out() const { return contentsOf(folder_.path() / "out"); }
  [[nodiscard]] std::string errors() const { return contentsOf(folder_.path() / "errors"); }

  [[nodiscard]] TemporaryFolder& folder() { return folder_; }

 private:
  std::string program_;
  TemporaryFolder folder_;
};

}  // namespace gdi::test
