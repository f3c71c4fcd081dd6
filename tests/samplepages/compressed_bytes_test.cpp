// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The sizes are worked out by hand from the band format: a record is its count word and at least
// eight code words, or the count word alone when nothing changes; the first of a band clears the
// row, a band is filled up to 16 bytes, and the page's last has 8 bytes of trailer in front of
// that.

#include "tools/samplepages/compressed_bytes.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

using Screens = std::vector<const HalftoneScreen*>;

constexpr std::uint64_t kBlankBand = 18 + 255 * 2;  // 256 rows, a multiple of 16
constexpr std::uint64_t kStripedBand = 256 * 18;    // every row changes
constexpr std::uint64_t kFilledTrailer = 16;        // behind a multiple of 16

// Every second row solid in one ink.
class StripedPage : public PageSource {
 public:
  StripedPage(const PageShape& shape, const Ink& ink) : PageSource(shape), ink_(ink) {}

 protected:
  void paint(int y, std::span<Ink> row) const override {
    if (y % 2 == 1) {
      std::ranges::fill(row, ink_);
    }
  }

 private:
  Ink ink_;
};

// One cell of two input levels: light samples are blank, dark ones `dark`.
std::unique_ptr<HalftoneScreen> screenOf(std::uint8_t dark) {
  const std::string_view header("1 1 1 1 8");
  std::vector<std::uint8_t> file(header.begin(), header.end());
  file.insert(file.end(), {0, 0, dark});
  return HalftoneScreen::loadFromData(file);
}

class CompressedBytes : public testing::Test {
 protected:
  const std::unique_ptr<HalftoneScreen> solid_ = screenOf(255);
  const std::unique_ptr<HalftoneScreen> blank_ = screenOf(0);
  const Screens mono_{solid_.get()};
  const Screens colour_{solid_.get(), solid_.get(), solid_.get(), solid_.get()};
};

TEST_F(CompressedBytes, OfABlankPageAreItsRecordsCountWords) {
  // The last band has 16 rows: 18 + 15 x 2 bytes.
  for (const int depth : {1, 2, 4}) {
    EXPECT_EQ(compressedBytes(StripedPage({96, 272, 1}, {}), mono_, depth),
              kBlankBand + 48 + kFilledTrailer);
    EXPECT_EQ(compressedBytes(StripedPage({4800, 272, 4}, {}), colour_, depth),
              4 * (kBlankBand + 48) + kFilledTrailer);
  }
}

TEST_F(CompressedBytes, ABandOfOneRowIsARecordFilledUp) {
  // 18 bytes and the trailer's 8, filled up.
  EXPECT_EQ(compressedBytes(StripedPage({96, 1, 1}, {}), mono_, 1), 32U);
}

TEST_F(CompressedBytes, OfAStripedPageAreARecordARow) {
  EXPECT_EQ(compressedBytes(StripedPage({96, 256, 1}, {0, 0, 0, 255}), mono_, 1),
            kStripedBand + kFilledTrailer);
}

TEST_F(CompressedBytes, EachPlaneIsScreenedWithItsOwnScreen) {
  const PageShape shape{96, 256, 4};
  const std::array<Ink, 4> inks{Ink{255, 0, 0, 0}, Ink{0, 255, 0, 0}, Ink{0, 0, 255, 0},
                                Ink{0, 0, 0, 255}};
  for (std::size_t ink = 0; ink < 4; ++ink) {
    const StripedPage page(shape, inks.at(ink));
    EXPECT_EQ(compressedBytes(page, colour_, 2), 3 * kBlankBand + kStripedBand + kFilledTrailer);
    for (std::size_t plane = 0; plane < 4; ++plane) {
      Screens screens = colour_;
      screens[plane] = blank_.get();
      EXPECT_EQ(compressedBytes(page, screens, 2),
                3 * kBlankBand + (plane == ink ? kBlankBand : kStripedBand) + kFilledTrailer);
    }
  }
}

// 15 rows without a change are
// 18 + 14 x 2 = 46 bytes, filled up to 48, and with the trailer 64; 15 that all change are 270
// bytes, filled up to 272, and with the trailer 288. 12 rows: 40 bytes, with the trailer 48, both
// 48; all changed 216 and 224, both 224.
TEST_F(CompressedBytes, OnlyOneBandOfAPageHasTheTrailer) {
  const Ink all{255, 255, 255, 255};
  EXPECT_EQ(compressedBytes(StripedPage({96, 15, 4}, {}), colour_, 1), 3U * 48 + 64);
  EXPECT_EQ(compressedBytes(StripedPage({96, 15, 4}, all), colour_, 1), 3U * 272 + 288);
  EXPECT_EQ(compressedBytes(StripedPage({96, 12, 4}, all), colour_, 1), 4U * 224);
}

TEST_F(CompressedBytes, AMonoPageTakesTheLastScreen) {
  const StripedPage page({96, 256, 1}, {0, 0, 0, 255});
  EXPECT_EQ(
      compressedBytes(page, Screens{blank_.get(), blank_.get(), blank_.get(), solid_.get()}, 1),
      kStripedBand + kFilledTrailer);
  EXPECT_EQ(
      compressedBytes(page, Screens{solid_.get(), solid_.get(), solid_.get(), blank_.get()}, 1),
      kBlankBand + kFilledTrailer);
}

TEST_F(CompressedBytes, OtherDepthsAndScreensAreRefusedInOneLine) {
  const StripedPage page({96, 8, 4}, {});
  const auto refused = [](const PageSource& source, const Screens& screens, int depth) {
    testing::internal::CaptureStderr();
    const bool nothing = !compressedBytes(source, screens, depth).has_value();
    const std::string message = testing::internal::GetCapturedStderr();
    return nothing && message.starts_with("ERROR: ") && message.find('\n') == message.size() - 1;
  };
  for (const int depth : {-1, 0, 3, 8}) {
    EXPECT_TRUE(refused(page, colour_, depth)) << depth;
  }
  EXPECT_TRUE(refused(page, mono_, 1));
  EXPECT_TRUE(refused(page, {}, 1));
  EXPECT_TRUE(refused(page, Screens(5, solid_.get()), 1));
  EXPECT_TRUE(refused(page, Screens{solid_.get(), nullptr, solid_.get(), solid_.get()}, 1));
  EXPECT_TRUE(refused(StripedPage({96, 8, 1}, {}), {}, 1));
}

}  // namespace
}  // namespace gdi::samplepages
