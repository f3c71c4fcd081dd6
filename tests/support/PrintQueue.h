// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A print queue as libcups finds it on this machine, with the PPD file of a test.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"

namespace gdi::test {

// The least PPD that libcups opens, followed by `lines`.
std::string smallPPD(const std::string& lines = "");

class PrintQueue {
 public:
  // Makes a queue known to the libcups of this process, and gives temporary files a folder of
  // their own. No `ppd`: the queue has no PPD. libcups looks at its folder's place once a process,
  // so a test makes its queue before it calls libcups in any other way.
  PrintQueue(std::string name, const std::optional<std::string>& ppd);
  ~PrintQueue();
  PrintQueue(const PrintQueue&) = delete;
  PrintQueue& operator=(const PrintQueue&) = delete;

  [[nodiscard]] const std::string& name() const { return name_; }
  // The names of the temporary files that libcups made since and nobody removed.
  [[nodiscard]] std::vector<std::string> leftovers() const { return temporary_.entries(); }

 private:
  std::string name_;
  std::string ppdPath_;    // below the root
  TemporaryFolder& root_;  // of every queue of the process
  TemporaryFolder temporary_;
  EnvironmentVariable temporaryVariable_;
};

}  // namespace gdi::test
