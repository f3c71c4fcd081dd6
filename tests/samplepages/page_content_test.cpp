// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What each sample page promises to contain.

#include <algorithm>
#include <array>
#include <numeric>
#include <set>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "tools/samplepages/sample_pages.h"

namespace gdi::samplepages {
namespace {

constexpr int kWidth = 2400;
constexpr int kHeight = 1600;
constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;

// Counts over a page of kWidth x kHeight.
struct Content {
  std::array<std::array<std::size_t, 256>, 4> levels{};  // pixels by channel and level
  std::size_t blank = 0;                                 // pixels without ink
  std::size_t asLeft = 0;                                // pixels like the one on their left
  std::set<std::tuple<int, int, int, int>> inks;

  [[nodiscard]] std::size_t distinctLevels(std::size_t channel) const {
    const auto& counts = levels.at(channel);
    return counts.size() - static_cast<std::size_t>(std::ranges::count(counts, 0U));
  }
};

Content contentOf(Subject subject, int channels) {
  const auto page = samplePage(subject, {kWidth, kHeight, channels});
  std::vector<std::uint8_t> row(page->rowBytes());
  Content content;
  const auto step = static_cast<std::size_t>(channels);
  for (int y = 0; y < kHeight; ++y) {
    (void)page->scanline(y, row);
    std::array<std::uint8_t, 4> last{};
    for (std::size_t i = 0; i < row.size(); i += step) {
      std::array<std::uint8_t, 4> pixel{};
      std::copy_n(&row[i], step, pixel.begin());
      for (std::size_t channel = 0; channel < step; ++channel) {
        ++content.levels.at(channel).at(pixel.at(channel));
      }
      content.blank += pixel == std::array<std::uint8_t, 4>{} ? 1 : 0;
      if (i > 0 && pixel == last) {
        ++content.asLeft;
      } else {
        content.inks.emplace(pixel[0], pixel[1], pixel[2], pixel[3]);
      }
      last = pixel;
    }
  }
  return content;
}

TEST(TextPage, IsMostlyBlankWithSolidBlackLetters) {
  const Content content = contentOf(Subject::kText, 4);
  EXPECT_GT(content.blank, kPixels * 3 / 4);
  EXPECT_LT(content.blank, kPixels * 97 / 100);
  EXPECT_GT(content.levels[3][255], kPixels * 3 / 100);
}

TEST(TextPage, HasEdgesOfEveryGreyButFewOfThem) {
  const Content content = contentOf(Subject::kText, 4);
  // Beyond the 20 that the heading has of black.
  const std::size_t edges =
      std::accumulate(content.levels[3].begin() + 21, content.levels[3].end() - 1, std::size_t{0});
  EXPECT_GT(edges, kPixels / 1000);
  EXPECT_LT(edges, content.levels[3][255] / 2);
  EXPECT_GT(content.distinctLevels(3), 16U);
}

TEST(TextPage, HasAHeadingInATint) {
  const Content colour = contentOf(Subject::kText, 4);
  EXPECT_GT(colour.levels[0][200], kPixels / 500);
  EXPECT_EQ(colour.levels[0][200], colour.levels[1][110]);
  // 20 + 0.30 x 200 + 0.59 x 110 = 144.9
  EXPECT_GE(contentOf(Subject::kText, 1).levels[0][145], colour.levels[0][200]);
}

TEST(GraphicsPage, IsMadeOfLongFlatRuns) {
  EXPECT_GT(contentOf(Subject::kGraphics, 4).asLeft, kPixels * 9 / 10);
}

TEST(GraphicsPage, HasManyTintsAndFullGradients) {
  const Content content = contentOf(Subject::kGraphics, 4);
  EXPECT_GT(content.inks.size(), 500U);
  EXPECT_GT(content.distinctLevels(3), 200U);
  std::array<int, 4> tints{};  // levels that cover more than a tint of the table does
  for (std::size_t channel = 0; channel < 4; ++channel) {
    tints.at(channel) = static_cast<int>(std::ranges::count_if(
        content.levels.at(channel), [](std::size_t count) { return count > kPixels / 1000; }));
    EXPECT_GE(tints.at(channel), 10) << channel;
  }
}

TEST(GraphicsPage, HasPaperAndFullBlack) {
  const Content content = contentOf(Subject::kGraphics, 4);
  EXPECT_GT(content.blank, kPixels / 4);
  EXPECT_GT(content.levels[3][255], kPixels / 200);
}

#ifndef GDI_SLOW_BUILD
TEST(Photograph, HasAtLeast200LevelsInBlackOnly) {
  EXPECT_GE(contentOf(Subject::kPhotograph, 1).distinctLevels(0), 200U);
}

TEST(Photograph, HasThousandsOfInksAndHardlyAnyPaper) {
  const Content content = contentOf(Subject::kPhotograph, 4);
  EXPECT_GT(content.inks.size(), 10000U);
  EXPECT_LT(content.blank, kPixels / 100);
  EXPECT_GT(content.distinctLevels(0), 150U);
  EXPECT_GT(content.distinctLevels(3), 150U);
}
#endif

TEST(Photograph, IsPrintedInSquaresOfTwoByTwoPixels) {
  const auto page = samplePage(Subject::kPhotograph, {61, 31, 4});
  std::vector<std::uint8_t> above(page->rowBytes());
  std::vector<std::uint8_t> below(page->rowBytes());
  for (int y = 0; y + 1 < 31; y += 2) {
    (void)page->scanline(y, above);
    (void)page->scanline(y + 1, below);
    EXPECT_EQ(above, below);
    for (std::size_t x = 0; x + 1 < 61; x += 2) {
      EXPECT_TRUE(std::equal(&above[4 * x], &above[4 * x + 4], &above[4 * x + 4]));
    }
  }
}

}  // namespace
}  // namespace gdi::samplepages
