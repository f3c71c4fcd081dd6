// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/parallel.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

TEST(InParallel, EveryPartIsDoneOnce) {
  std::vector<std::atomic<int>> done(1000);
  inParallel(done.size(), [&](std::size_t part) { ++done[part]; });
  for (const std::atomic<int>& times : done) {
    EXPECT_EQ(times, 1);
  }
}

TEST(InParallel, NoPartsAreNoWork) {
  inParallel(0, [](std::size_t) { FAIL(); });
}

TEST(InParallel, AnExceptionComesOut) {
  EXPECT_THROW(inParallel(3,
                          [](std::size_t part) {
                            if (part == 1) {
                              throw std::runtime_error("no");
                            }
                          }),
               std::runtime_error);
}

}  // namespace
}  // namespace gdi::screenquality
