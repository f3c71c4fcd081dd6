// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/searchscreens/small_screens.h"

#include <optional>

#include <gtest/gtest.h>

namespace gdi::searchscreens {

std::string smallParameters() {
  return "quality Fast 1\n"
         "class plain 0.58 0.42 0.055 1.1 0.035 0.16\n"
         "paper Plain plain\n"
         "screen plain Fast cyan    14 2 -3 4 1   0.01 0.013 28 0 6 1 1 0 0 1 0 0 2 3 1\n"
         "screen plain Fast magenta 14 3 2 1 -4   0.01 0.013 28 0 6 1 1 0 0 1 0 0 2 3 1\n"
         "screen plain Fast yellow  15 2 3 3 -3   0.25 0.26  28 0 6 1 1 0 0 1 0 0 2 3 1\n"
         "screen plain Fast black   17 1 4 4 -1   0.25 0.26  28 0 6 1 1 0 0 1 0 0 2 3 1\n"
         "screen plain Fast mono    20 4 -2 -2 -4 0.25 0.26  18 0 0 1 1 -0.9 0 1 0.9 0 1 1 1\n";
}

makescreens::Parameters parsed(std::string_view text) {
  std::string error;
  const std::optional<makescreens::Parameters> read =
      makescreens::parseParameters(text, "screens.conf", error);
  EXPECT_TRUE(read.has_value()) << error;
  return read.value_or(makescreens::Parameters{});
}

}  // namespace gdi::searchscreens
