// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Matched pixels, held against what the engine's own calculator makes of the same pixels.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/colorsync/real_profiles.h"
#include "tests/support/TestBundle.h"
#include "tests/support/transicc.h"

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;
using test::kEvenGrey;
using test::kFormulaCMYK;
using test::kGrey;
using test::kMeasuredCMYK;
using test::transicc;

Bytes matched(const std::string& source, const std::string& destination, Bytes pixels,
              std::uint32_t channels = 4) {
  const test::ColorWorld color(source, destination);
  EXPECT_EQ(CWMatchBitmap(color.world, test::lineOf(pixels, channels)), noErr);
  return pixels;
}

// Every combination of some amounts of the inks, many of each.
Bytes inkCombinations() {
  constexpr std::array<std::uint8_t, 6> kAmounts{0, 13, 64, 128, 200, 255};
  Bytes pixels;
  for (const std::uint8_t c : kAmounts) {
    for (const std::uint8_t m : kAmounts) {
      for (const std::uint8_t y : kAmounts) {
        for (const std::uint8_t k : kAmounts) {
          pixels.insert(pixels.end(), {c, m, y, k});
        }
      }
    }
  }
  return pixels;
}

// The calculator computes every pixel, matching interpolates in a table: the samples differ, but by
// a quarter in the mean and seldom by more than two.
void expectInterpolated(const Bytes& pixels, const Bytes& expected) {
  ASSERT_EQ(pixels.size(), expected.size());
  double sum = 0;
  std::size_t far = 0;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const int difference = std::abs(pixels[i] - expected[i]);
    sum += difference;
    far += difference > 2 ? 1 : 0;
    ASSERT_LE(difference, 10) << "sample " << i;
  }
  EXPECT_LE(sum / static_cast<double>(pixels.size()), 0.25);
  EXPECT_LE(far, pixels.size() / 50);
}

TEST(MatchedPixels, OfCMYKAreThoseOfTheEnginesCalculator) {
  const test::TestBundle bundle;
  const Bytes pixels = inkCombinations();
  expectInterpolated(matched(kFormulaCMYK, kMeasuredCMYK, pixels),
                     transicc({.source = kFormulaCMYK, .destination = kMeasuredCMYK}, pixels));
  expectInterpolated(matched(kMeasuredCMYK, kFormulaCMYK, pixels),
                     transicc({.source = kMeasuredCMYK, .destination = kFormulaCMYK}, pixels));
}

TEST(MatchedPixels, OfSolidInksAreExactlyThoseOfTheEnginesCalculator) {
  const test::TestBundle bundle;
  Bytes pixels;
  for (unsigned inks = 0; inks < 16; ++inks) {
    for (const unsigned ink : {1U, 2U, 4U, 8U}) {
      pixels.push_back((inks & ink) != 0 ? 255 : 0);
    }
  }
  EXPECT_EQ(matched(kFormulaCMYK, kMeasuredCMYK, pixels),
            transicc({.source = kFormulaCMYK, .destination = kMeasuredCMYK}, pixels));
  EXPECT_EQ(matched(kMeasuredCMYK, kFormulaCMYK, pixels),
            transicc({.source = kMeasuredCMYK, .destination = kFormulaCMYK}, pixels));
}

TEST(MatchedPixels, OfGreyAreExactlyThoseOfTheEnginesCalculatorWithInkForLight) {
  const test::TestBundle bundle;
  Bytes pixels(256);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    pixels[i] = static_cast<std::uint8_t>(i);
  }
  EXPECT_EQ(matched(kGrey, kEvenGrey, pixels, 1),
            transicc({.source = kGrey, .destination = kEvenGrey, .channels = 1}, pixels));
}

TEST(MatchedPixels, OfGreyKeepWhiteAndBlack) {
  const test::TestBundle bundle;
  EXPECT_EQ(matched(kGrey, kEvenGrey, {0, 255}, 1), (Bytes{0, 255}));
}

TEST(MatchedPixels, OfCMYKKeepWhiteEvenWhereTheSourceAsksForItsPapersColour) {
  const test::TestBundle bundle;
  EXPECT_EQ(matched(kFormulaCMYK, kMeasuredCMYK, {0, 0, 0, 0}), Bytes(4));
  test::TemporaryFolder folder;
  std::string profile = test::contentsOf(kMeasuredCMYK);
  profile.replace(64, 4, std::string("\0\0\0\3", 4));  // absolute colorimetric
  const std::string absolute = folder.write("absolute.icc", profile).string();
  EXPECT_EQ(matched(absolute, kFormulaCMYK, {0, 0, 0, 0}), Bytes(4));
  // Almost paper stays almost paper, too: no tint of the whole page begins beside it.
  for (const std::uint8_t ink : matched(absolute, kFormulaCMYK, {1, 0, 0, 0})) {
    EXPECT_LE(ink, 4);
  }
}

TEST(MatchedPixels, AreThoseOfTheIntentInTheSourcesHeader) {
  const test::TestBundle bundle;
  test::TemporaryFolder folder;
  std::string profile = test::contentsOf(kMeasuredCMYK);
  profile.replace(64, 4, std::string("\0\0\0\1", 4));  // relative colorimetric
  const std::string relative = folder.write("relative.icc", profile).string();
  const Bytes pixels = inkCombinations();
  const Bytes expected =
      transicc({.source = kMeasuredCMYK, .destination = kFormulaCMYK, .options = "-t1"}, pixels);
  expectInterpolated(matched(relative, kFormulaCMYK, pixels), expected);
  EXPECT_NE(matched(kMeasuredCMYK, kFormulaCMYK, pixels), matched(relative, kFormulaCMYK, pixels));
}

TEST(MatchedPixels, OfBlackInkStayBlackInkWhereTheBundleSaysSo) {
  const test::TestBundle bundle{{"ColorPreserveBlack", "ink"}};
  const Bytes pixels{0, 0, 0, 255, 0, 0, 0, 100, 40, 0, 0, 100};
  const Bytes now = matched(kFormulaCMYK, kMeasuredCMYK, pixels);
  expectInterpolated(
      now,
      transicc({.source = kFormulaCMYK, .destination = kMeasuredCMYK, .options = "-t10"}, pixels));
  EXPECT_EQ(Bytes(now.begin(), now.begin() + 3), Bytes(3));
  EXPECT_EQ(now[3], 255);
  EXPECT_EQ(Bytes(now.begin() + 4, now.begin() + 7), Bytes(3));
}

TEST(MatchedPixels, KeepTheirBlackInkWhereTheBundleSaysSo) {
  const test::TestBundle bundle{{"ColorPreserveBlack", "plane"}};
  const Bytes pixels = inkCombinations();
  expectInterpolated(
      matched(kFormulaCMYK, kMeasuredCMYK, pixels),
      transicc({.source = kFormulaCMYK, .destination = kMeasuredCMYK, .options = "-t13"}, pixels));
}

TEST(MatchedPixels, OfBlackInkBecomeAllInksOtherwise) {
  const test::TestBundle bundle;
  const Bytes black = matched(kFormulaCMYK, kMeasuredCMYK, {0, 0, 0, 255});
  EXPECT_GT(*std::min_element(black.begin(), black.end()), 100);
}

}  // namespace
}  // namespace gdi
