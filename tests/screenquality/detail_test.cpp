// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/detail.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"

namespace gdi::screenquality {
namespace {

constexpr int kQuarter = kDetailSide / 2;

class DetailImage : public testing::Test {
 protected:
  [[nodiscard]] int at(int x, int y) const {
    return image_[static_cast<std::size_t>(y) * kDetailSide + static_cast<std::size_t>(x)];
  }
  [[nodiscard]] std::multiset<int> levelsFrom(int left, int top) const {
    std::multiset<int> levels;
    for (int y = top; y < top + kQuarter; ++y) {
      for (int x = left; x < left + kQuarter; ++x) {
        levels.insert(at(x, y));
      }
    }
    return levels;
  }
  // Whether all pixels of a square have one level other than white.
  [[nodiscard]] bool isPatch(int left, int top, int side) const {
    for (int y = top; y < top + side; ++y) {
      for (int x = left; x < left + side; ++x) {
        if (at(x, y) == 0 || at(x, y) != at(left, top)) {
          return false;
        }
      }
    }
    return true;
  }

 private:
  std::vector<std::uint8_t> image_ = detailImage();
};

double lossOf(const Screen& screen) {
  const Conditions& plain = kPaperClasses[1];
  return detailLoss(PrintedScreen(screen, plain.paper), plain);
}

TEST_F(DetailImage, IsASquareOf384) {
  EXPECT_EQ(detailImage().size(), 384U * 384U);
}

TEST_F(DetailImage, HasDiscsOfManyTonesInItsFirstQuarter) {
  const std::multiset<int> levels = levelsFrom(0, 0);
  const std::set<int> tones(levels.begin(), levels.end());
  EXPECT_GE(tones.size(), 20U);
  EXPECT_LE(*tones.rbegin(), 220);
  int patches = 0;
  for (int y = 0; y < kQuarter; y += 12) {
    for (int x = 0; x < kQuarter; x += 12) {
      patches += isPatch(x, y, 12) ? 1 : 0;
    }
  }
  EXPECT_GE(patches, 10) << "large and small";
}

TEST_F(DetailImage, HasThinStrokesOfThreeTintsOnWhite) {
  const std::multiset<int> levels = levelsFrom(kQuarter, 0);
  EXPECT_EQ(std::set<int>(levels.begin(), levels.end()), (std::set<int>{0, 80, 150, 255}));
  EXPECT_GT(levels.count(0), levels.size() * 3 / 4);
  for (const int tint : {80, 150, 255}) {
    EXPECT_GT(levels.count(tint), 300U) << tint;
  }
  for (int y = 0; y < kQuarter - 6; ++y) {
    for (int x = kQuarter; x < kDetailSide - 6; ++x) {
      ASSERT_FALSE(isPatch(x, y, 6)) << x << ", " << y;
    }
  }
}

TEST_F(DetailImage, HasARampFromWhiteToSolid) {
  EXPECT_EQ(at(0, kQuarter), 0);
  EXPECT_EQ(at(kQuarter - 1, kQuarter), 255);
  for (int x = 1; x < kQuarter; ++x) {
    const int step = at(x, kQuarter) - at(x - 1, kQuarter);
    EXPECT_TRUE(step == 1 || step == 2) << x;
    EXPECT_EQ(at(x, kDetailSide - 1), at(x, kQuarter));
  }
}

TEST_F(DetailImage, HasRingsThatGetFinerOutwards) {
  constexpr int kMiddle = kQuarter + kQuarter / 2;
  EXPECT_EQ(at(kMiddle, kMiddle), 208);
  // Rings are dark where the radius squared is an odd multiple of 16 x 96, light at even ones.
  EXPECT_NEAR(at(kMiddle + 39, kMiddle), 48, 1);
  EXPECT_NEAR(at(kMiddle + 55, kMiddle), 208, 2);
  EXPECT_NEAR(at(kMiddle, kMiddle + 68), 48, 2);
  EXPECT_NEAR(at(kMiddle, kMiddle + 88), 48, 2);
  for (int away = 1; away < kQuarter / 2; ++away) {
    EXPECT_EQ(at(kMiddle + away, kMiddle), at(kMiddle, kMiddle - away));
  }
}

TEST(DetailLoss, WhatIsAlikeAtAllLevelsHasNoDetailToLose) {
  EXPECT_NEAR(lossOf(evenScreen({5, 3}, 0)), 0.0, 1e-6);
  EXPECT_NEAR(lossOf(evenScreen({5, 3}, 1)), 0.0, 1e-2);
}

TEST(DetailLoss, CoarseDotsLoseMoreThanFineOnes) {
  const double fine = lossOf(uprightLines(4));
  const double middling = lossOf(uprightLines(8));
  const double coarse = lossOf(uprightLines(24));
  EXPECT_GT(fine, 0.1);
  EXPECT_GT(middling, 1.1 * fine);
  EXPECT_GT(coarse, 1.5 * middling);
}

TEST(DetailLoss, IsCountedFromTheScreensOwnTones) {
  // All tones but white come out solid, and that is no loss of detail.
  const Screen posterised = barScreen({1, 1}, [](std::size_t level) { return level > 0 ? 1 : 0; });
  EXPECT_LT(lossOf(posterised), lossOf(uprightLines(8)));
}

}  // namespace
}  // namespace gdi::screenquality
