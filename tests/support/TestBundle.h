// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The main bundle made of a test's own information dictionary and strings.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace gdi::test {

class TestBundle {
 public:
  using Texts = std::map<std::string, std::string>;

  // Makes the main bundle a folder with these entries in its information dictionary. Neither keys
  // nor values may hold '<', '>' or '&'.
  TestBundle(std::initializer_list<Texts::value_type> information = {});
  // Makes the main bundle that of the folder it was before.
  ~TestBundle();
  TestBundle(const TestBundle&) = delete;
  TestBundle& operator=(const TestBundle&) = delete;

  // Writes the strings of one language ("de"); before the first look at them only. Neither keys
  // nor values may hold '"' or '\'.
  void setStrings(const std::string& language, const Texts& strings);

  // The folder, for further resources.
  [[nodiscard]] TemporaryFolder& folder() { return folder_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path formerPath_;
};

}  // namespace gdi::test
