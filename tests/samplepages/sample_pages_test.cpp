// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/sample_pages.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

using Row = std::vector<std::uint8_t>;

Row rowOf(const PageSource& page, int y) {
  Row row(page.rowBytes(), 0xA5);
  EXPECT_TRUE(page.scanline(y, row));
  return row;
}

class SamplePage : public testing::TestWithParam<Subject> {};

TEST_P(SamplePage, IsTheSameEachTimeAndInAnyOrderOfRows) {
  const PageShape shape{700, 400, 4};
  const auto page = samplePage(GetParam(), shape);
  const auto again = samplePage(GetParam(), shape);
  std::vector<Row> rows;
  for (int y = 0; y < shape.height; ++y) {
    rows.push_back(rowOf(*page, y));
  }
  for (int y = shape.height - 1; y >= 0; --y) {
    ASSERT_EQ(rowOf(*again, y), rows[static_cast<std::size_t>(y)]) << y;
  }
}

TEST_P(SamplePage, InBlackOnlyIsAsDarkAsInColour) {
  const auto colour = samplePage(GetParam(), {600, 300, 4});
  const auto mono = samplePage(GetParam(), {600, 300, 1});
  for (int y = 0; y < 300; ++y) {
    const Row chunky = rowOf(*colour, y);
    const Row grey = rowOf(*mono, y);
    for (std::size_t x = 0; x < grey.size(); ++x) {
      const std::uint8_t* pixel = &chunky[4 * x];
      ASSERT_EQ(grey[x], greyOf({pixel[0], pixel[1], pixel[2], pixel[3]}));
    }
  }
}

TEST_P(SamplePage, HasInkInEveryColourChannel) {
  const auto page = samplePage(GetParam(), {1200, 800, 4});
  std::vector<int> inked(4);
  for (int y = 0; y < 800; ++y) {
    const Row row = rowOf(*page, y);
    for (std::size_t i = 0; i < row.size(); ++i) {
      inked[i % 4] += row[i] > 0 ? 1 : 0;
    }
  }
  EXPECT_GT(inked[0], 500);
  EXPECT_GT(inked[1], 500);
  if (GetParam() != Subject::kText) {  // whose heading is blue
    EXPECT_GT(inked[2], 500);
  }
  EXPECT_GT(inked[3], 500);
}

TEST_P(SamplePage, CanBeAsSmallAsAPixelAndOfAnyProportion) {
  for (const PageShape& shape : {PageShape{1, 1, 4}, PageShape{1, 300, 1}, PageShape{3000, 1, 4},
                                 PageShape{kMaxSide, 2, 1}, PageShape{3, kMaxSide, 1}}) {
    const auto page = samplePage(GetParam(), shape);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->rowBytes(), static_cast<std::size_t>(shape.width * shape.channels));
    (void)rowOf(*page, 0);
    (void)rowOf(*page, shape.height - 1);
  }
}

TEST_P(SamplePage, OfAnImpossibleShapeIsRefusedInOneLine) {
  for (const PageShape& shape : {PageShape{0, 10, 4}, PageShape{10, 0, 4}, PageShape{-1, 10, 1},
                                 PageShape{kMaxSide + 1, 1, 1}, PageShape{1, kMaxSide + 1, 1},
                                 PageShape{10, 10, 3}, PageShape{10, 10, 0}}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(samplePage(GetParam(), shape), nullptr);
    const std::string message = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(message.starts_with("ERROR: ")) << message;
    EXPECT_EQ(message.find('\n'), message.size() - 1);
  }
}

TEST_P(SamplePage, RefusesRowsThatItHasNotAndBuffersOfAnotherSize) {
  const auto page = samplePage(GetParam(), {100, 50, 4});
  Row row(400, 0xA5);
  Row shorter(399, 0xA5);
  EXPECT_FALSE(page->scanline(-1, row));
  EXPECT_FALSE(page->scanline(50, row));
  EXPECT_FALSE(page->scanline(0, shorter));
  EXPECT_EQ(row, Row(400, 0xA5));
  EXPECT_EQ(shorter, Row(399, 0xA5));
}

INSTANTIATE_TEST_SUITE_P(Subjects, SamplePage, testing::ValuesIn(kSubjects),
                         [](const auto& subject) { return std::string(nameOf(subject.param)); });

}  // namespace
}  // namespace gdi::samplepages
