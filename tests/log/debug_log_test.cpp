// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/log/debug_log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/DebugLogCapture.h"
#include "tests/support/TemporaryFolder.h"

namespace gdi {
namespace {

using test::contentsOf;

// Before any test points them elsewhere.
const char* const kMarkerAtStart = gDebugMarkerPath;
const char* const kLogAtStart = gDebugLogPath;

// Every test has a marker path and a log path of its own in a fresh folder; the log starts off.
class DebugLog : public testing::Test {
 protected:
  void makeMarker() { capture_.makeMarker(); }

  test::DebugLogCapture capture_{test::DebugLogCapture::Marker::kAbsent};
  const std::filesystem::path folder_ = capture_.folder();
  const std::filesystem::path log_ = capture_.logPath();
};

TEST_F(DebugLog, WithoutAMarkerNothingIsWrittenAndNoFileIsMade) {
  testing::internal::CaptureStderr();
  DebugStart();
  CPSDebugLog("copies: %d", 1);
  CPSDebugAssert_("Bad self");
  const std::array<std::uint8_t, 1> bytes{0x42};
  CPSDebugLogHexDump(bytes.data(), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_FALSE(std::filesystem::exists(log_));
}

TEST_F(DebugLog, AMarkerMadeInTheMiddleOfAJobStartsTheLogFromTheNextLineOn) {
  CPSDebugLog("before");
  makeMarker();
  CPSDebugLog("after");
  EXPECT_NE(contentsOf(log_).find(") after\n"), std::string::npos);
  EXPECT_EQ(contentsOf(log_).find("before"), std::string::npos);
}

TEST_F(DebugLog, ALineHasDateTimeMicrosecondsAndProcessIdAheadOfItsMessage) {
  makeMarker();
  CPSDebugLog("copies: %d", 1);
  std::string text = contentsOf(log_);
  EXPECT_TRUE(text.ends_with(" (" + std::to_string(getpid()) + ") copies: 1\n")) << text;
  std::ranges::replace_if(
      text, [](char c) { return c >= '0' && c <= '9'; }, '9');
  EXPECT_TRUE(text.starts_with("99/99/9999 99:99:99.9999")) << text;
}

TEST_F(DebugLog, TheMonthIsLoggedFromZero) {
  makeMarker();
  CPSDebugLog("now");
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  EXPECT_EQ(std::stoi(contentsOf(log_).substr(0, 2)), local.tm_mon);
}

TEST_F(DebugLog, AnAssertionIsMarkedAndReturns) {
  makeMarker();
  CPSDebugAssert_("CWMatchBitmap failed: %d", -43);
  EXPECT_NE(contentsOf(log_).find(") ASSERT: CWMatchBitmap failed: -43\n"), std::string::npos);
}

TEST_F(DebugLog, TheLogIsAppendedToAndWritableByEverybody) {
  makeMarker();
  CPSDebugLog("first");
  DebugEnd();
  EXPECT_EQ(gDebugFile, nullptr);
  CPSDebugLog("second");
  const std::string text = contentsOf(log_);
  EXPECT_LT(text.find("first"), text.find("second"));
  EXPECT_NE(text.find("second"), std::string::npos);
  struct stat status {};
  ASSERT_EQ(stat(log_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0666U);
}

TEST_F(DebugLog, ALogThatCannotBeOpenedGoesToStandardErrorAnnouncedOnce) {
  makeMarker();
  std::filesystem::create_directory(log_);
  testing::internal::CaptureStderr();
  CPSDebugLog("one");
  CPSDebugLog("two");
  const std::string text = testing::internal::GetCapturedStderr();
  const std::string announcement =
      "DEBUG: Unable to open debug log for writing, switching to stderr: ";
  EXPECT_EQ(text.find(announcement), 0U);
  EXPECT_EQ(text.find(announcement, 1), std::string::npos);
  EXPECT_NE(text.find(") one\n"), std::string::npos);
  EXPECT_NE(text.find(") two\n"), std::string::npos);
}

TEST_F(DebugLog, ALinkInThePlaceOfTheLogIsNotFollowed) {
  makeMarker();
  const std::filesystem::path victim = folder_ / "victim";
  std::ofstream(victim).put('\n');
  std::filesystem::create_symlink(victim, log_);
  testing::internal::CaptureStderr();
  CPSDebugLog("one");
  EXPECT_NE(testing::internal::GetCapturedStderr().find(") one\n"), std::string::npos);
  EXPECT_EQ(contentsOf(victim), "\n");
}

TEST_F(DebugLog, AHardLinkInThePlaceOfTheLogIsNotFollowed) {
  makeMarker();
  const std::filesystem::path victim = folder_ / "victim";
  std::ofstream(victim).put('\n');
  std::filesystem::create_hard_link(victim, log_);
  testing::internal::CaptureStderr();
  CPSDebugLog("one");
  EXPECT_NE(testing::internal::GetCapturedStderr().find(") one\n"), std::string::npos);
  EXPECT_EQ(contentsOf(victim), "\n");
}

TEST_F(DebugLog, KeepsTheErrorThatItsCallerIsAboutToTell) {
  makeMarker();
  errno = ENOSPC;
  CPSDebugLog("one");
  CPSDebugAssert_("two");
  CPSDebugLogHexDump(nullptr, 0);
  EXPECT_EQ(errno, ENOSPC);
}

TEST(DebugLogPlaces, AreInTheFolderForEverybody) {
  EXPECT_STREQ(kMarkerAtStart, "/tmp/gdidebug");
  EXPECT_STREQ(kLogAtStart, "/tmp/CUPSDebug.log");
}

TEST_F(DebugLog, StandardErrorIsLeftOpenAtTheEnd) {
  makeMarker();
  std::filesystem::create_directory(log_);
  testing::internal::CaptureStderr();
  CPSDebugLog("one");
  DebugEnd();
  EXPECT_EQ(gDebugFile, stderr);
  testing::internal::GetCapturedStderr();
}

TEST_F(DebugLog, AHexDumpOfNoBytesIsAnIndentedEmptyLine) {
  makeMarker();
  CPSDebugLogHexDump(nullptr, 0);
  EXPECT_EQ(contentsOf(log_), "    \n");
}

TEST_F(DebugLog, AHexDumpOfEightBytesIsOneLine) {
  makeMarker();
  const std::array<std::uint8_t, 8> bytes{0, 1, 2, 3, 0xAB, 5, 6, 0xFF};
  CPSDebugLogHexDump(bytes.data(), 8);
  EXPECT_EQ(contentsOf(log_), "    0x00 0x01 0x02 0x03 0xab 0x05 0x06 0xff \n");
}

TEST_F(DebugLog, AHexDumpOfNineBytesIsTwoLines) {
  makeMarker();
  const std::array<std::uint8_t, 9> bytes{};
  CPSDebugLogHexDump(bytes.data(), 9);
  EXPECT_EQ(contentsOf(log_), "    0x00 0x00 0x00 0x00 0x00 0x00 0x00 0x00 \n    0x00 \n");
}

}  // namespace
}  // namespace gdi
