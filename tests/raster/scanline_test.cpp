// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/scanline.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/instruction_sets.h"

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes mirrored8(Bytes line) {
  mirrorRaster8(line);
  return line;
}

Bytes mirrored32(Bytes line) {
  mirrorRaster32(line);
  return line;
}

TEST(Scanline, AGreyLineIsReversedByteByByte) {
  EXPECT_EQ(mirrored8({1, 2, 3, 4, 5, 6}), (Bytes{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(mirrored8({1, 2}), (Bytes{2, 1}));
}

TEST(Scanline, AGreyLineOfLessThanTwoPixelsStays) {
  EXPECT_EQ(mirrored8({7}), (Bytes{7}));
  EXPECT_EQ(mirrored8({}), Bytes());
}

TEST(Scanline, AColourLineIsReversedPixelByPixelAndEachKeepsItsOrder) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 33, 34}),
            (Bytes{31, 32, 33, 34, 21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}));
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14}), (Bytes{11, 12, 13, 14, 1, 2, 3, 4}));
}

TEST(Scanline, TheMiddlePixelOfAnOddColourLineStays) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24}),
            (Bytes{21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}));
}

TEST(Scanline, AColourLineOfLessThanTwoPixelsStays) {
  EXPECT_EQ(mirrored32({1, 2, 3, 4}), (Bytes{1, 2, 3, 4}));
  EXPECT_EQ(mirrored32({}), Bytes());
}

using Ink = std::array<std::uint8_t, 4>;

TEST(Scanline, TheInkOfAChannelIsTheOrOfEveryFourthByte) {
  EXPECT_EQ(inkOf(Bytes{0x80, 0, 0, 0, 0x01, 0, 0, 0}), (Ink{0x81, 0, 0, 0}));
  EXPECT_EQ(inkOf(Bytes{0, 1, 0, 3, 0, 4, 0, 8}), (Ink{0, 5, 0, 11}));
}

TEST(Scanline, ALineOfNoBytesOrOfZerosHasNoInk) {
  EXPECT_EQ(inkOf(Bytes{}), Ink{});
  EXPECT_EQ(inkOf(Bytes(1000)), Ink{});
}

TEST(Scanline, TheInkOfALineThatEndsWithinAPixelCountsItsLastBytes) {
  EXPECT_EQ(inkOf(Bytes{0x10}), (Ink{0x10, 0, 0, 0}));
  EXPECT_EQ(inkOf(Bytes{0, 0, 0, 0, 1, 2, 3}), (Ink{1, 2, 3, 0}));
}

// Bytes of a line, of which no two near each other are alike.
Bytes lineOf(std::size_t size) {
  Bytes line(size);
  for (std::size_t i = 0; i < size; ++i) {
    line[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
  }
  return line;
}

constexpr std::size_t kLongest = 600;

TEST(Scanline, GreyLinesOfAnyLengthAreReversed) {
  for (std::size_t size = 0; size <= kLongest; ++size) {
    const Bytes line = lineOf(size);
    const Bytes expected(line.rbegin(), line.rend());
    test::withEveryInstructionSet([&](const char* target) {
      EXPECT_EQ(mirrored8(line), expected) << size << ", " << target;
    });
  }
}

TEST(Scanline, ColourLinesOfAnyLengthAreReversedPixelByPixel) {
  for (std::size_t size = 0; size <= kLongest; size += 4) {
    const Bytes line = lineOf(size);
    Bytes expected;
    for (std::size_t pixel = size; pixel > 0; pixel -= 4) {
      expected.insert(expected.end(), &line[pixel - 4], &line[pixel - 4] + 4);
    }
    test::withEveryInstructionSet([&](const char* target) {
      EXPECT_EQ(mirrored32(line), expected) << size << ", " << target;
    });
  }
}

TEST(Scanline, AnyByteOfALineOfAnyLengthIsInkOfItsChannel) {
  for (std::size_t size = 1; size <= kLongest; size += size < 300 ? 1 : 37) {
    for (std::size_t place = 0; place < size; place += size < 150 ? 1 : 11) {
      Bytes line(size);
      line[place] = 0x24;
      Ink expected{};
      expected.at(place % 4) = 0x24;
      test::withEveryInstructionSet([&](const char* target) {
        EXPECT_EQ(inkOf(line), expected) << place << " of " << size << ", " << target;
      });
    }
  }
}

}  // namespace
}  // namespace gdi
