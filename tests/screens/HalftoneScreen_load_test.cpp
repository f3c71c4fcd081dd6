// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "halftone/screens/HalftoneScreen.h"
#include "tests/screens/screen_bytes.h"

namespace gdi {
namespace {

struct Load {
  std::unique_ptr<HalftoneScreen> screen;
  std::string message;
};

Load load(const Bytes& file) {
  testing::internal::CaptureStderr();
  Load result;
  result.screen = HalftoneScreen::loadFromData(file);
  result.message = testing::internal::GetCapturedStderr();
  return result;
}

Load load(std::string_view header, std::size_t tableBytes) {
  return load(screenFile(header, Bytes(tableBytes)));
}

void expectRefused(const Load& result, std::string_view message) {
  EXPECT_EQ(result.screen, nullptr);
  EXPECT_EQ(result.message, message);
}

void expectLoaded(const Load& result) {
  EXPECT_NE(result.screen, nullptr);
  EXPECT_EQ(result.message, "");
}

constexpr std::string_view kNoHeader = "ERROR: could not locate screen file header\n";

TEST(ScreenFile, A16By16TileOfOneBitTakes8192Bytes) {
  expectLoaded(load("1 16 16 8 1", 8192));
  expectRefused(load("1 16 16 8 1", 8193), "ERROR: expected a size of 8192, got 8193\n");
  expectRefused(load("1 16 16 8 1", 8191), "ERROR: expected a size of 8192, got 8191\n");
  expectRefused(load("1 16 16 8 1", 0), "ERROR: expected a size of 8192, got 0\n");
}

TEST(ScreenFile, ATableThatEndsWithinAByteTakesTheWholeByte) {
  expectLoaded(load("1 3 1 1 1", 1));  // 6 bits
  expectLoaded(load("1 3 3 1 1", 3));  // 18 bits
  expectLoaded(load("1 5 1 1 4", 5));  // 40 bits
  expectLoaded(load("1 1 1 8 8", 256));
  expectRefused(load("1 3 3 1 1", 2), "ERROR: expected a size of 3, got 2\n");
}

TEST(ScreenFile, AnotherVersionIsRefused) {
  expectRefused(load("2 16 16 8 1", 8192), "ERROR: screen version mismatch\n");
  expectRefused(load("0 16 16 8 1", 8192), "ERROR: screen version mismatch\n");
  expectRefused(load("-1 16 16 8 1", 8192), "ERROR: screen version mismatch\n");
}

TEST(ScreenFile, AWidthOrHeightBelow1IsRefused) {
  expectRefused(load("1 0 16 8 1", 8192), "ERROR: screen width is too small\n");
  expectRefused(load("1 -16 -16 8 1", 8192), "ERROR: screen width is too small\n");
  expectRefused(load("1 16 0 8 1", 8192), "ERROR: screen height is too small\n");
}

TEST(ScreenFile, DepthsOtherThan1And2And4And8AreRefused) {
  expectRefused(load("1 16 16 3 1", 8192), "ERROR: inputDepth out of range - 3\n");
  expectRefused(load("1 16 16 -8 1", 8192), "ERROR: inputDepth out of range - -8\n");
  expectRefused(load("1 16 16 8 16", 8192), "ERROR: outputDepth out of range - 16\n");
}

TEST(ScreenFile, NumbersThatAreNotThereCountAs0) {
  expectRefused(load("", 8192), "ERROR: screen version mismatch\n");
  expectRefused(load("screen", 8192), "ERROR: screen version mismatch\n");
  expectRefused(load("1", 8192), "ERROR: screen width is too small\n");
  expectRefused(load("1 16x16 8 1", 8192), "ERROR: screen height is too small\n");
  expectRefused(load("1 16 16", 8192), "ERROR: inputDepth out of range - 0\n");
  expectRefused(load("1 16 16 8", 8192), "ERROR: outputDepth out of range - 0\n");
}

TEST(ScreenFile, AnyWhiteSpaceSeparatesAndTextAfterTheFifthNumberIsIgnored) {
  expectLoaded(load("\n 1\t16\r\n16   +8 1 a screen for plain paper 99", 8192));
  expectLoaded(load("1 16 16 8 1,", 8192));
}

TEST(ScreenFile, NumbersOutsideTheRangeOfIntAreTakenAsItsEnds) {
  expectRefused(load("4294967297 16 16 8 1", 8192), "ERROR: screen version mismatch\n");
  expectRefused(load("1 16 16 99999999999999999999 1", 0),
                "ERROR: inputDepth out of range - 2147483647\n");
  expectRefused(load("1 16 16 8 -99999999999999999999", 0),
                "ERROR: outputDepth out of range - -2147483648\n");
}

TEST(ScreenFile, AZeroByteAtOffset1024IsAcceptedAndOneFurtherOnIsNot) {
  std::string header = "1 1 1 1 1";
  header.resize(1023, ' ');
  expectLoaded(load(header, 1));
  header.resize(1024, ' ');
  expectLoaded(load(header, 1));
  header.resize(1025, ' ');
  expectRefused(load(header, 1), kNoHeader);
}

TEST(ScreenFile, DataWithoutAZeroByteHasNoHeader) {
  expectRefused(load(Bytes{}), kNoHeader);
  expectRefused(load(Bytes(1, '1')), kNoHeader);
  expectRefused(load(Bytes(1024, ' ')), kNoHeader);
  expectRefused(load(Bytes(1025, ' ')), kNoHeader);
}

TEST(ScreenFile, AZeroByteThatIsTheLastByteEndsTheHeaderOfAnEmptyTable) {
  expectRefused(load("1 1 1 1 1", 0), "ERROR: expected a size of 1, got 0\n");
  expectRefused(load(Bytes(1, 0)), "ERROR: screen version mismatch\n");
}

TEST(ScreenFile, ATableLargerThanItsFileIsRefusedBeforeAnythingIsAllocated) {
  expectRefused(load("1 65536 65536 8 8", 100),
                "ERROR: expected a size of 1099511627776, got 100\n");
}

TEST(ScreenFile, ASizeThatWouldNotFit64BitsIsRefused) {
  // 2^30 x 2^30 cells of 16 levels are 2^64 bits, which is 0 in 64 bits.
  expectRefused(load("1 1073741824 1073741824 4 1", 0),
                "ERROR: expected a size of 9223372036854775807, got 0\n");
  expectRefused(load("1 2147483647 2147483647 8 8", 1),
                "ERROR: expected a size of 9223372036854775807, got 1\n");
}

TEST(ScreenFile, IsReadFromItsPath) {
  const std::string path = testing::TempDir() + "screen-from-path";
  const Bytes file = screenFile("1 1 1 8 8", Bytes(256, 0x3C));
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  const auto screen = HalftoneScreen::initWithFile(path);
  std::filesystem::remove(path);
  ASSERT_NE(screen, nullptr);
  std::uint8_t output = 0;
  EXPECT_TRUE(screen->processScanline(&output, 1, 1, 0, &output, 8));
  EXPECT_EQ(output, 0x3C);
}

TEST(ScreenFile, AFileThatCannotBeReadIsNoScreenAndNothingIsSaid) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(HalftoneScreen::initWithFile(testing::TempDir() + "no-such-screen"), nullptr);
  EXPECT_EQ(HalftoneScreen::initWithFile(testing::TempDir()), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(ScreenFile, AFileThatIsNoScreenIsRefusedWithItsMessage) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(HalftoneScreen::initWithFile("/dev/null"), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), kNoHeader);
}

}  // namespace
}  // namespace gdi
