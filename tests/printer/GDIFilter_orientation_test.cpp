// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which pages are turned by 180 degrees: flipped and mirrored.

#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

using Turns = std::vector<JobFilter::Turn>;
constexpr JobFilter::Turn kAsIs{.flip = false, .mirror = false};
constexpr JobFilter::Turn kTurned{.flip = true, .mirror = true};

class Orientation : public FilterJob {
 protected:
  // How each of that many pages was turned. An even number of sides, so that no page is added,
  // unless the options say otherwise.
  Turns turnsOf(const std::string& options, std::size_t pages) {
    JobFilter filter(sidesOption(2) + options,
                     std::vector<FakePage>(pages, {pageHeader(8, 1, 1), {}}));
    EXPECT_TRUE(run(filter));
    Turns turns = filter.turns;
    sides_ = filter.sides;
    turns.resize(pages);  // without the filler page
    return turns;
  }

  std::vector<std::uint32_t> sides_;
};

TEST_F(Orientation, SimplexPagesStayAsTheyAre) {
  EXPECT_EQ(turnsOf("", 3), (Turns{kAsIs, kAsIs, kAsIs}));
  EXPECT_EQ(log_.count("GDIFilter startPage: page will be flipped"), 0U);
  EXPECT_EQ(log_.count("GDIFilter startPage: page will be mirrored"), 0U);
}

TEST_F(Orientation, SimplexRotatedTogglesOnceAndEveryLaterPageKeepsIt) {
  EXPECT_EQ(turnsOf("Rotated=true", 3), (Turns{kTurned, kTurned, kTurned}));
  EXPECT_EQ(log_.count("GDIFilter startPage: rotate 180 enabled"), 1U);
  EXPECT_EQ(log_.count("GDIFilter startPage: page will be flipped"), 3U);
  EXPECT_EQ(log_.count("GDIFilter startPage: page will be mirrored"), 3U);
}

TEST_F(Orientation, RotatedCountsOnlyWhenItIsTrueOrYes) {
  EXPECT_EQ(turnsOf("Rotated=1", 1), Turns{kAsIs});
  EXPECT_EQ(turnsOf("Rotated=no", 1), Turns{kAsIs});
  EXPECT_EQ(turnsOf("Rotated=YES", 1), Turns{kTurned});
}

TEST_F(Orientation, SimplexNeverAsksForTheDuplexSetting) {
  setInformation({{"SystemVersion", "10.4.0"}, {"SolvaneFlipDuplex", "true"}});
  EXPECT_EQ(turnsOf("", 2), (Turns{kAsIs, kAsIs}));
  EXPECT_TRUE(logLines({"GDIFilter startPage: SolvaneFlipDuplex"}).empty());
}

TEST_F(Orientation, LongEdgeWithoutFlipDuplexStaysAsItIs) {
  EXPECT_EQ(turnsOf(kLongEdge, 3), (Turns{kAsIs, kAsIs, kAsIs}));
  EXPECT_EQ(log_.count("GDIFilter startPage: SolvaneFlipDuplex: NO"), 3U);
}

TEST_F(Orientation, LongEdgeRotatedWithoutFlipDuplexTogglesOnEveryPage) {
  EXPECT_EQ(turnsOf(kLongEdge + "Rotated=true", 5),
            (Turns{kTurned, kAsIs, kTurned, kAsIs, kTurned}));
  EXPECT_EQ(log_.count("GDIFilter startPage: rotate 180 enabled"), 5U);
}

TEST_F(Orientation, ShortEdgeStaysAsItIs) {
  setInformation({{"SystemVersion", "10.4.0"}, {"SolvaneFlipDuplex", "true"}});
  EXPECT_EQ(turnsOf(kShortEdge, 3), (Turns{kAsIs, kAsIs, kAsIs}));
  EXPECT_EQ(log_.count("GDIFilter startPage: SolvaneFlipDuplex: YES"), 3U);
}

TEST_F(Orientation, ShortEdgeRotatedTurnsEveryPageWithoutALine) {
  EXPECT_EQ(turnsOf(kShortEdge + "Rotated=true", 3), (Turns{kTurned, kTurned, kTurned}));
  EXPECT_EQ(log_.count("GDIFilter startPage: rotate 180 enabled"), 0U);
}

class FlipDuplex : public Orientation {
 protected:
  void SetUp() override { onSystem("10.4.0"); }
  void onSystem(const std::string& version) {
    setInformation({{"SystemVersion", version}, {"SolvaneFlipDuplex", "true"}});
  }
};

TEST_F(FlipDuplex, FromTenFourOnTurnsOddPagesWhenNotCollated) {
  EXPECT_EQ(turnsOf(kLongEdge, 6), (Turns{kAsIs, kTurned, kAsIs, kTurned, kAsIs, kTurned}));
  EXPECT_EQ(log_.count("GDIFilter startPage: SolvaneFlipDuplex: YES"), 6U);
}

TEST_F(FlipDuplex, RotatedInvertsTheParity) {
  EXPECT_EQ(turnsOf(kLongEdge + "Rotated=true", 4), (Turns{kTurned, kAsIs, kTurned, kAsIs}));
}

TEST_F(FlipDuplex, FromTenFourOnStartsAnewAtEveryCollatedCopy) {
  EXPECT_EQ(turnsOf(kLongEdge + kCollate + copiesOption(2) + sidesOption(4), 6),
            (Turns{kAsIs, kTurned, kAsIs, kTurned, kAsIs, kTurned}));
  EXPECT_EQ(sides_.back(), 4U);
}

TEST_F(FlipDuplex, PadsAnOddNumberOfSidesByOneCopy) {
  EXPECT_EQ(turnsOf(kLongEdge + kCollate + sidesOption(3), 4),
            (Turns{kAsIs, kTurned, kAsIs, kTurned}));
  EXPECT_EQ(sides_, (std::vector<std::uint32_t>{4, 4, 4, 4}));
}

TEST_F(FlipDuplex, FiveSidesOfTwoCopiesGrowToSevenThenNineOnSuccessivePages) {
  (void)turnsOf(kLongEdge + kCollate + copiesOption(2) + sidesOption(5), 3);
  ASSERT_GE(sides_.size(), 3U);
  EXPECT_EQ(sides_[0], 7U);
  EXPECT_EQ(sides_[1], 9U);
  EXPECT_EQ(sides_[2], 11U);
}

TEST_F(FlipDuplex, BeforeTenFourDividesThePageByTheCopiesWhenNotCollated) {
  onSystem("10.3.9");
  EXPECT_EQ(turnsOf(kLongEdge + copiesOption(2) + sidesOption(8), 6),
            (Turns{kAsIs, kAsIs, kTurned, kTurned, kAsIs, kAsIs}));
}

TEST_F(FlipDuplex, BeforeTenFourStartsAnewAtEveryCollatedCopy) {
  onSystem("10.3.9");
  EXPECT_EQ(turnsOf(kLongEdge + kCollate + copiesOption(2) + sidesOption(6), 6),
            (Turns{kAsIs, kTurned, kAsIs, kAsIs, kTurned, kAsIs}));
}

TEST_F(FlipDuplex, BeforeTenFourTurnsNothingWhenThereAreFewerSidesThanCopies) {
  onSystem("10.3.9");
  EXPECT_EQ(turnsOf(kLongEdge + kCollate + copiesOption(3) + sidesOption(2), 2),
            (Turns{kAsIs, kAsIs}));
}

TEST_F(FlipDuplex, OnAnUnknownSystemLogsItAndGoesOnAsBeforeTenFour) {
  onSystem("unknown");
  EXPECT_EQ(turnsOf(kLongEdge + copiesOption(2) + sidesOption(8), 3),
            (Turns{kAsIs, kAsIs, kTurned}));
  // Once a page here, once a page where colour matching asks.
  EXPECT_EQ(log_.count("ASSERT: Gestalt(gestaltSystemVersion) failed -5550"), 6U);
}

TEST_F(FlipDuplex, CountsNothingForPaperThatCannotBePrintedOnBothSides) {
  EXPECT_EQ(turnsOf(kLongEdge + "media=A5", 2), (Turns{kAsIs, kAsIs}));
}

TEST_F(Orientation, ATurnedPageIsUpsideDownAndReversed) {
  // Ink in the first two pixels of the first line, and in the last pixel of the second.
  const FakePage page{pageHeader(8, 2, 1), [](std::uint32_t line, std::span<std::uint8_t> bytes) {
                        if (line == 0) {
                          bytes[0] = bytes[1] = 255;
                        } else {
                          bytes[7] = 255;
                        }
                      }};
  EXPECT_TRUE(run("Rotated=true", {page}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 1U);
  Bytes expected(32);
  expected[0] = 0b10000000;
  expected[16] = 0b00000011;
  EXPECT_EQ(rowsOf(bands[0]), expected);
}

}  // namespace
}  // namespace gdi::test
