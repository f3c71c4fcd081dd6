// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/inks.h"

#include <cstddef>

#include <gtest/gtest.h>

namespace gdi::screenpictures {
namespace {

const PaperModel kPaper{0.58, 0.42, 0.055, 1.1, 0.035};

// One pictured pixel, its margin of the same value.
Plane flat(int steps, int value) {
  Plane plane{withMargin({1, 1}), steps, {}};
  plane.values.assign(plane.area.size(), static_cast<std::uint8_t>(value));
  return plane;
}

// The first row of a pixel drawn with so many samples.
std::vector<std::uint8_t> pulse(int steps, int value, int samples) {
  std::vector<std::uint8_t> places = sentPicture(flat(steps, value), samples).places;
  places.resize(static_cast<std::size_t>(samples));
  return places;
}

PngColour colourOf(const std::array<int, 4>& values) {
  std::array<Plane, 4> planes;
  for (std::size_t i = 0; i < planes.size(); ++i) {
    planes.at(i) = flat(1, values.at(i));
  }
  const Picture picture = superposedPicture(planes, kPaper);
  return picture.palette.at(picture.places.front());
}

TEST(SentPicture, APixelHasAsManySamplesAsAskedFor) {
  const Picture picture = sentPicture(flat(1, 1), 8);
  EXPECT_EQ(picture.size, (Tile{8, 8}));
  EXPECT_EQ(picture.places, std::vector<std::uint8_t>(64, kBlackPlace));
  EXPECT_EQ(sentPicture(flat(1, 0), 8).places, std::vector<std::uint8_t>(64, kWhitePlace));
}

TEST(SentPicture, APulseIsCentredAndAsWideAsItsValue) {
  EXPECT_EQ(pulse(2, 1, 8), (std::vector<std::uint8_t>{15, 15, 0, 0, 0, 0, 15, 15}));
}

// A third of a pixel fills two thirds of the two middle samples of four.
TEST(SentPicture, ASampleFilledInPartIsGrey) {
  EXPECT_EQ(pulse(3, 1, 4), (std::vector<std::uint8_t>{15, 5, 5, 15}));
}

// Light of 0.035 is 0.206 in sRGB: the third grey of fifteen.
TEST(DevelopedPicture, ASolidIsAsDarkAsItsReflectance) {
  const Picture picture = developedPicture(flat(3, 3), kPaper);
  EXPECT_EQ(picture.size, (Tile{4, 4}));
  EXPECT_EQ(picture.palette.at(picture.places.front()), (PngColour{51, 51, 51}));
  const Picture blank = developedPicture(flat(3, 0), kPaper);
  EXPECT_EQ(blank.palette.at(blank.places.front()), (PngColour{255, 255, 255}));
}

TEST(SuperposedPicture, BarePaperIsWhite) {
  EXPECT_EQ(colourOf({0, 0, 0, 0}), (PngColour{255, 255, 255}));
}

// The inks' reflectances encoded as sRGB.
TEST(SuperposedPicture, SolidsHaveTheirInksColours) {
  EXPECT_EQ(colourOf({1, 0, 0, 0}), (PngColour{56, 155, 218}));
  EXPECT_EQ(colourOf({0, 1, 0, 0}), (PngColour{221, 53, 129}));
  EXPECT_EQ(colourOf({0, 0, 1, 0}), (PngColour{249, 231, 56}));
  EXPECT_EQ(colourOf({0, 0, 0, 1}), (PngColour{53, 53, 53}));
}

// 0.04 x 0.72, 0.33 x 0.035, 0.70 x 0.22.
TEST(SuperposedPicture, InksOnEachOtherMultiply) {
  EXPECT_EQ(colourOf({1, 1, 0, 0}), (PngColour{47, 28, 109}));
}

}  // namespace
}  // namespace gdi::screenpictures
