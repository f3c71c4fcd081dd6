// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>

#include <gtest/gtest.h>

#include "tools/gdiview/InkMixer.h"

namespace gdi::gdiview {
namespace {

using reader::Ink;

TEST(InkMixer, BlackAloneIsGreyInEqualSteps) {
  const std::array<Ink, 1> inks{Ink::kBlack};
  const InkMixer two(inks, 1);
  EXPECT_EQ(two.colors()[0], (Color{255, 255, 255}));
  EXPECT_EQ(two.colors()[1], (Color{0, 0, 0}));
  const InkMixer four(inks, 2);
  EXPECT_EQ(four.colors()[1], (Color{170, 170, 170}));
  EXPECT_EQ(four.colors()[2], (Color{85, 85, 85}));
  const InkMixer sixteen(inks, 4);
  for (std::uint16_t value = 0; value < 16; ++value) {
    EXPECT_EQ(sixteen.colors()[value][0], 255 - 17 * value);
  }
}

TEST(InkMixer, AnInkAloneHasItsSolidsColour) {
  const InkMixer mixer(reader::kInks, 1);
  EXPECT_EQ(mixer.colors()[0], (Color{255, 255, 255}));
  for (const Ink ink : reader::kInks) {
    EXPECT_EQ(mixer.colors()[1U << reader::indexOf(ink)], solidOf(ink));
  }
}

TEST(InkMixer, InksOnTopOfEachOtherMultiply) {
  const InkMixer mixer(reader::kInks, 1);
  // Cyan (0, 160, 225) and yellow (255, 230, 0): green is 160 x 230 / 255 = 144.3.
  EXPECT_EQ(mixer.colors()[0b0101], (Color{0, 144, 0}));
  EXPECT_EQ(mixer.colors()[0b1111], (Color{0, 0, 0}));
}

TEST(InkMixer, EachInksValueHasItsOwnBits) {
  const InkMixer mixer(reader::kInks, 4);
  EXPECT_EQ(mixer.colors()[0xF000], (Color{0, 0, 0}));
  EXPECT_EQ(mixer.colors()[0x0F00], solidOf(Ink::kYellow));
  // A third of magenta (225, 0, 125): 255 - 30 / 3, 255 - 255 / 3, 255 - 130 / 3.
  EXPECT_EQ(mixer.colors()[0x0050], (Color{245, 170, 212}));
}

}  // namespace
}  // namespace gdi::gdiview
