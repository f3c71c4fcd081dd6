// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/Picture.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace gdi::screenpictures {
namespace {

const std::vector<PngColour> kColours{{0, 0, 0}, {255, 0, 0}, {255, 255, 255}};

TEST(Picture, MagnifiedTwiceEachSampleIsTwoByTwo) {
  const Picture large = magnified({{2, 2}, kColours, {0, 1, 2, 0}}, 2);
  EXPECT_EQ(large.size, (Tile{4, 4}));
  EXPECT_EQ(large.palette, kColours);
  EXPECT_EQ(large.places,
            (std::vector<std::uint8_t>{0, 0, 1, 1, 0, 0, 1, 1, 2, 2, 0, 0, 2, 2, 0, 0}));
}

TEST(Picture, TwoBesideEachOtherHaveAGapBetween) {
  const Picture left{{1, 2}, kColours, {0, 0}};
  const Picture right{{2, 2}, kColours, {1, 1, 2, 1}};
  const Picture both = besideEachOther(left, right, 1, 2);
  EXPECT_EQ(both.size, (Tile{4, 2}));
  EXPECT_EQ(both.places, (std::vector<std::uint8_t>{0, 2, 1, 1, 0, 2, 2, 1}));
}

TEST(Picture, TheSamePictureIsTheSameFile) {
  const test::TemporaryFolder folder;
  const Picture picture{{2, 1}, kColours, {1, 2}};
  ASSERT_TRUE(writePicture(picture, folder.path() / "one.png"));
  ASSERT_TRUE(writePicture(picture, folder.path() / "other.png"));
  const std::string one = test::contentsOf(folder.path() / "one.png");
  EXPECT_EQ(one.substr(1, 3), "PNG");
  EXPECT_EQ(one, test::contentsOf(folder.path() / "other.png"));
}

TEST(Picture, AFolderThatIsMissingIsTold) {
  const test::TemporaryFolder folder;
  EXPECT_FALSE(writePicture({{1, 1}, kColours, {0}}, folder.path() / "missing" / "one.png"));
}

}  // namespace
}  // namespace gdi::screenpictures
