// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMProfileLocation.h"

#include <string>

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(ProfileLocation, IsOfThePathBasedKindAndZeroBehindThePath) {
  const CMProfileLocation location = CMPathLocation("a.icc");
  EXPECT_EQ(location.locType, 5);
  EXPECT_EQ(std::string(location.path.begin(), location.path.end()),
            "a.icc" + std::string(1020, '\0'));
  EXPECT_EQ(pathOfLocation(location), "a.icc");
}

TEST(ProfileLocation, HasRoomForAPathOf1024Bytes) {
  const std::string path(1024, 'x');
  EXPECT_EQ(pathOfLocation(CMPathLocation(path)), path);
}

TEST(ProfileLocation, OfALongerPathIsCutAndLeadsNowhere) {
  for (const std::size_t length : {1025U, 1026U, 5000U}) {
    const CMProfileLocation location = CMPathLocation(std::string(length, 'x'));
    EXPECT_EQ(location.path.back(), 'x');
    EXPECT_EQ(pathOfLocation(location), std::nullopt);
  }
}

TEST(ProfileLocation, OfAnotherKindLeadsNowhere) {
  EXPECT_EQ(pathOfLocation(CMProfileLocation{}), std::nullopt);
}

}  // namespace
}  // namespace gdi
