// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A test in a fresh folder with the debug log switched on, whose messages can be read back.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "filter/log/debug_log.h"

namespace gdi {

class LoggedTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "bands-XXXXXX";
    folder_ = mkdtemp(pattern.data());
    marker_ = folder_ / "marker";
    log_ = folder_ / "log";
    scratch_ = folder_ / "plane";
    std::ofstream(marker_).put('\n');
    gDebugMarkerPath = marker_.c_str();
    gDebugLogPath = log_.c_str();
  }
  void TearDown() override {
    DebugEnd();
    std::filesystem::remove_all(folder_);
  }

  // The messages so far, each without its date, time and process id.
  [[nodiscard]] std::vector<std::string> messages() const {
    std::vector<std::string> result;
    std::ifstream file(log_);
    for (std::string line; std::getline(file, line);) {
      result.push_back(line.substr(line.find(") ") + 2));
    }
    return result;
  }

  std::filesystem::path folder_;
  std::filesystem::path marker_;
  std::filesystem::path log_;
  std::filesystem::path scratch_;
};

}  // namespace gdi
