// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMWorld.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "tests/colorsync/real_profiles.h"
#include "tests/support/ProgramInFolder.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using test::ColorWorld;

class ColorWorlds : public testing::Test {
 protected:
  static CMError errorOf(const std::string& source, const std::string& destination) {
    const ColorWorld made(source, destination);
    EXPECT_EQ(made.world != nullptr, made.error == noErr);
    return made.error;
  }

  test::TestBundle bundle_;
};

TEST_F(ColorWorlds, LeadFromCMYKToCMYKAndFromGreyToGrey) {
  EXPECT_EQ(errorOf(test::kFormulaCMYK, test::kMeasuredCMYK), noErr);
  EXPECT_EQ(errorOf(test::kGrey, test::kEvenGrey), noErr);
}

TEST_F(ColorWorlds, OfAProfileWithItselfAreMade) {
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, test::kMeasuredCMYK), noErr);
}

TEST_F(ColorWorlds, OfOtherColourSpacesAreRefused) {
  EXPECT_EQ(errorOf(test::kRGB, test::kMeasuredCMYK), cmInvalidColorSpace);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, test::kRGB), cmInvalidColorSpace);
  EXPECT_EQ(errorOf(test::kRGB, test::kRGB), cmInvalidColorSpace);
  EXPECT_EQ(errorOf(test::kGrey, test::kMeasuredCMYK), cmInvalidColorSpace);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, test::kGrey), cmInvalidColorSpace);
}

TEST_F(ColorWorlds, OfAnAbstractProfileAreRefused) {
  EXPECT_EQ(errorOf(test::kAbstract, test::kMeasuredCMYK), cmErrIncompatibleProfile);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, test::kAbstract), cmErrIncompatibleProfile);
}

TEST_F(ColorWorlds, OfADeviceLinkAreRefusedThoughItIsCMYKAtBothEnds) {
  test::ProgramInFolder linkicc("linkicc");
  ASSERT_EQ(linkicc.run("-olink.icc " + test::kFormulaCMYK + " " + test::kMeasuredCMYK), 0);
  const std::string link = (linkicc.folder().path() / "link.icc").string();
  EXPECT_EQ(errorOf(link, test::kMeasuredCMYK), cmErrIncompatibleProfile);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, link), cmErrIncompatibleProfile);
}

TEST_F(ColorWorlds, OfAScannersProfileLeadFromItButNotToIt) {
  std::string scanner = test::contentsOf(test::kMeasuredCMYK);
  scanner.replace(12, 4, "scnr");  // the header's class
  bundle_.folder().write("scanner.icc", scanner);
  EXPECT_EQ(errorOf("scanner.icc", test::kMeasuredCMYK), noErr);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, "scanner.icc"), cmErrIncompatibleProfile);
}

TEST_F(ColorWorlds, OfAProfileWithoutItsTablesAreRefused) {
  std::string profile = test::contentsOf(test::kMeasuredCMYK);
  profile.replace(128, 4, std::string("\0\0\0\1", 4));  // of the tags only the first is left
  bundle_.folder().write("tables_lost.icc", profile);
  EXPECT_EQ(errorOf(test::kMeasuredCMYK, "tables_lost.icc"), cmInvalidProfile);
  EXPECT_EQ(errorOf("tables_lost.icc", test::kMeasuredCMYK), cmInvalidProfile);
}

TEST_F(ColorWorlds, OfNoProfileAreRefused) {
  const test::OpenProfile profile(test::kMeasuredCMYK);
  CMWorldRef world = nullptr;
  EXPECT_EQ(NCWNewColorWorld(world, nullptr, profile.profile), paramErr);
  EXPECT_EQ(NCWNewColorWorld(world, profile.profile, nullptr), paramErr);
  EXPECT_EQ(world, nullptr);
}

TEST(ColorWorldSettings, ThatMakeNoSenseAreAnError) {
  const test::TestBundle bundle{{"ColorPreserveBlack", "Ink"}};
  const ColorWorld made(test::kFormulaCMYK, test::kMeasuredCMYK);
  EXPECT_EQ(made.error, paramErr);
  EXPECT_EQ(made.world, nullptr);
}

TEST(ColorWorldSettings, PreserveBlackOnPrintersAlone) {
  std::string profile = test::contentsOf(test::kMeasuredCMYK);
  profile.replace(12, 4, "spac");  // the header's class
  test::TemporaryFolder folder;
  const std::string space = folder.write("space.icc", profile).string();
  for (const char* word : {"ink", "plane"}) {
    const test::TestBundle bundle{{"ColorPreserveBlack", word}};
    EXPECT_EQ(ColorWorld(test::kFormulaCMYK, space).error, cmErrIncompatibleProfile);
    EXPECT_EQ(ColorWorld(space, test::kFormulaCMYK).error, noErr);
    EXPECT_EQ(ColorWorld(test::kGrey, test::kEvenGrey).error, noErr);
  }
  const test::TestBundle bundle;
  EXPECT_EQ(ColorWorld(test::kFormulaCMYK, space).error, noErr);
}

class Bitmaps : public testing::Test {
 protected:
  Bitmaps() {
    bitmap_.width = 2;
    bitmap_.height = 2;
    bitmap_.rowBytes = 10;
  }

  // Two rows of two pixels, two bytes apart.
  static constexpr std::array<std::uint8_t, 20> kPixels{255, 0,   0, 0, 0, 255, 0, 0, 3, 4,
                                                        0,   255, 0, 0, 0, 0,   0, 0, 5, 6};
  test::TestBundle bundle_;
  ColorWorld color_{test::kFormulaCMYK, test::kMeasuredCMYK};
  ColorWorld grey_{test::kGrey, test::kEvenGrey};
  std::array<std::uint8_t, 20> pixels_ = kPixels;
  CMBitmap bitmap_ = test::lineOf(pixels_);
};

TEST_F(Bitmaps, AreMatchedInPlaceRowByRowAndNothingBetweenTheRows) {
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), noErr);
  EXPECT_NE(pixels_[0], 255);
  EXPECT_NE(pixels_[11], 255);
  for (const std::size_t between : {8U, 9U, 18U, 19U}) {
    EXPECT_EQ(pixels_.at(between), kPixels.at(between));
  }
  for (const std::size_t white : {14U, 15U, 16U, 17U}) {
    EXPECT_EQ(pixels_.at(white), 0);
  }
}

TEST_F(Bitmaps, OfAnotherColourSpaceThanTheWorldsAreRefused) {
  EXPECT_EQ(CWMatchBitmap(grey_.world, bitmap_), cmInvalidColorSpace);
  bitmap_.space = cmGray8Space;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), cmInvalidColorSpace);
  bitmap_.pixelSize = 8;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), cmInvalidColorSpace);
  bitmap_.space = cmCMYK32Space;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), cmInvalidColorSpace);
  EXPECT_EQ(pixels_, kPixels);
}

TEST_F(Bitmaps, WhoseRowsAreShorterThanTheirPixelsAreRefused) {
  bitmap_.rowBytes = 7;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), paramErr);
  EXPECT_EQ(pixels_, kPixels);
}

TEST_F(Bitmaps, WithoutAnImageOrAWorldAreRefused) {
  EXPECT_EQ(CWMatchBitmap(nullptr, bitmap_), paramErr);
  bitmap_.image = nullptr;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), paramErr);
  EXPECT_EQ(pixels_, kPixels);
}

TEST_F(Bitmaps, WithoutRowsOrPixelsAreMatchedWithoutEffect) {
  bitmap_.height = 0;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), noErr);
  bitmap_.height = 2;
  bitmap_.width = 0;
  EXPECT_EQ(CWMatchBitmap(color_.world, bitmap_), noErr);
  EXPECT_EQ(pixels_, kPixels);
}

}  // namespace
}  // namespace gdi
