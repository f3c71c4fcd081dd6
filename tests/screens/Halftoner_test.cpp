// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/Halftoner.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/screens/screen_bundle.h"

namespace gdi {
namespace {

class HalftonedScanline : public ScreenBundleTest {
 protected:
  void SetUp() override {
    ScreenBundleTest::SetUp();
    setTestSet(depth(1) + screens({"ident", "invert", "zeros", "ones"}));
    halftoner_ = Halftoner::initWithScreenSetKey("TestSet");
    ASSERT_NE(halftoner_, nullptr);
  }
  void expectRefused(const std::uint8_t* input, int width,
                     std::span<std::uint8_t* const> outputBuffer, int outputChannels,
                     std::string_view message) const {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(
        halftoner_->halftoneChunkyScanlineToPlanar(input, width, 0, outputBuffer, outputChannels));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), message);
    EXPECT_EQ(planes_, Bytes(4, 0xA5));
  }

  std::unique_ptr<Halftoner> halftoner_;
  Bytes planes_ = Bytes(4, 0xA5);
  std::array<std::uint8_t*, 4> rows_{planes_.data(), &planes_[1], &planes_[2], &planes_[3]};
  Bytes input_ = Bytes(4, 0xFF);
};

TEST_F(HalftonedScanline, EachPlaneReceivesItsChannelThroughItsOwnScreen) {
  // Three pixels of C, M, Y, K; cyan is set in pixels 0 and 2, magenta in pixel 1.
  const Bytes input{0xFF, 0, 0, 0xFF, 0, 0xFF, 0xFF, 0, 0xFF, 0, 0, 0};
  EXPECT_TRUE(halftoner_->halftoneChunkyScanlineToPlanar(input.data(), 3, 0, rows_, 4));
  EXPECT_EQ(planes_, (Bytes{0xA0, 0xA0, 0x00, 0xE0}));
}

TEST_F(HalftonedScanline, PlaneIReceivesChannelI) {
  setTestSet(depth(1) + screens({"ident", "ident", "ident", "ident"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  const Bytes input{0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF};
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input.data(), 4, 0, rows_, 4));
  EXPECT_EQ(planes_, (Bytes{0x80, 0x40, 0x20, 0x10}));
}

TEST_F(HalftonedScanline, AMonoPageScreensItsOnlyChannelWithTheFourthScreenIntoRow0) {
  setTestSet(depth(1) + screens({"zeros", "ones", "zeros", "invert"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  const Bytes input{0xFF, 0, 0, 0xFF, 0};
  const auto oneRow = std::span<std::uint8_t* const>(rows_).first(1);
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input.data(), 5, 0, oneRow, 1));
  EXPECT_EQ(planes_, (Bytes{0x68, 0xA5, 0xA5, 0xA5}));
}

TEST_F(HalftonedScanline, ThePagesScanlineNumberChoosesTheTileRow) {
  addScreen("rows", screenFile("1 1 2 1 1", {0x30}));  // row 0 gives 0, row 1 gives 1
  setTestSet(depth(1) + screens({"rows", "rows", "rows", "rows"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input_.data(), 1, 6, rows_, 4));
  EXPECT_EQ(planes_, Bytes(4, 0x00));
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input_.data(), 1, 7, rows_, 4));
  EXPECT_EQ(planes_, Bytes(4, 0x80));
}

TEST_F(HalftonedScanline, TheSetsDepthIsTheDepthOfEveryPlane) {
  setTestSet(depth(4) + screens({"ident", "invert", "zeros", "ones"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  const Bytes input(8, 0xFF);
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input.data(), 2, 0, rows_, 4));
  EXPECT_EQ(planes_, (Bytes{0x11, 0x00, 0x00, 0x11}));
}

TEST_F(HalftonedScanline, NoInputIsRefusedFirstOfAll) {
  expectRefused(nullptr, 0, {}, 2, "ERROR: inputBuffer is nil");
}

TEST_F(HalftonedScanline, AWidthBelow1IsRefused) {
  expectRefused(input_.data(), 0, {}, 2, "ERROR: width must be at least 1");
  expectRefused(input_.data(), -1, rows_, 4, "ERROR: width must be at least 1");
}

TEST_F(HalftonedScanline, OutputChannelsOtherThan1And4AreRefused) {
  expectRefused(input_.data(), 1, {}, 2,
                "ERROR: outputChannels is wrong - is 2 should be 1 or 4\n");
  expectRefused(input_.data(), 1, rows_, 0,
                "ERROR: outputChannels is wrong - is 0 should be 1 or 4\n");
  expectRefused(input_.data(), 1, rows_, 5,
                "ERROR: outputChannels is wrong - is 5 should be 1 or 4\n");
}

TEST_F(HalftonedScanline, NoOutputArrayIsRefused) {
  expectRefused(input_.data(), 1, {}, 1, "ERROR: outputPlanes is nil");
  expectRefused(input_.data(), 1, {}, 4, "ERROR: outputPlanes is nil");
}

TEST_F(HalftonedScanline, FewerRowsThanChannelsAreRefused) {
  expectRefused(input_.data(), 1, std::span<std::uint8_t* const>(rows_).first(3), 4,
                "ERROR: outputPlanes has no row for a channel\n");
}

TEST_F(HalftonedScanline, AChannelWithoutARowIsLeftOut) {
  setTestSet(depth(1) + screens({"ones", "ones", "ones", "ones"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  rows_[2] = nullptr;
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input_.data(), 1, 0, rows_, 4));
  EXPECT_EQ(planes_, (Bytes{0x80, 0x80, 0xA5, 0x80}));
}

TEST_F(HalftonedScanline, PaperStaysBlankUnlessAScreenPrintsOnIt) {
  setTestSet(depth(1) + screens({"zeros", "ident", "zeros", "ident"}));
  EXPECT_TRUE(Halftoner::initWithScreenSetKey("TestSet")->leavesPaperBlank());
  setTestSet(depth(1) + screens({"zeros", "ident", "invert", "ident"}));
  EXPECT_FALSE(Halftoner::initWithScreenSetKey("TestSet")->leavesPaperBlank());
}

}  // namespace
}  // namespace gdi
