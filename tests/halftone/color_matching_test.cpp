// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a page does about colour matching, and what it says about it.

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/halftone/FakeRasterStream.h"
#include "tests/halftone/Planar.h"
#include "tests/halftone/ScreenBundle.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/transicc.h"

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Lines = std::vector<std::string>;
using test::Planar;

const std::string kFormulaCMYK = "/usr/share/color/icc/ghostscript/ps_cmyk.icc";
const std::string kMeasuredCMYK = "/usr/share/color/icc/ghostscript/default_cmyk.icc";
constexpr char kDevice[] = "com.apple.print.PrinterInfo.PMColorDeviceID..n.";
constexpr char kProfile[] = "com.apple.print.PrintSettings.PMColorSyncProfileID..n.";

class ColorMatching : public testing::Test {
 protected:
  using Texts = test::TestBundle::Texts;

  ColorMatching() { testing::internal::CaptureStderr(); }
  ~ColorMatching() override {
    if (!errors_) {
      (void)testing::internal::GetCapturedStderr();
    }
  }

  // Starts a page of two lines of eight pixels with that bundle; the lines logged by the set-up.
  Lines startPage(const Texts& information, const std::string& tables = "",
                  const OptionsDict& options = {}, std::uint32_t channels = 4) {
    bundle_.emplace(information, tables);
    filter_.emplace();
    EXPECT_TRUE(filter_->init());
    filter_->cupsICCProfile = printerProfile_;
    EXPECT_TRUE(filter_->begin(test::pageHeader(8, 2, channels), options));
    return linesOfSetUp();
  }
  // Those behind the loading of the screens, up to the page's start being over.
  [[nodiscard]] Lines linesOfSetUp() const {
    Lines lines = log_.lines();
    EXPECT_EQ(lines.back(), "PlanarFilter startPage: exiting - result: 1");
    lines.pop_back();
    const auto before = std::ranges::find_if(lines, [](const std::string& line) {
      return line.starts_with("PlanarFilter loading screen set: ");
    });
    lines.erase(lines.begin(), before == lines.end() ? before : before + 1);
    return lines;
  }
  // Sends the line; the line buffer afterwards.
  Bytes matchedLine(const Bytes& pixels) {
    EXPECT_TRUE(filter_->sendLine(0, pixels));
    const std::uint8_t* buffer = filter_->rasterBuffer.data();
    return {buffer, buffer + pixels.size()};
  }
  // What standard error was told, without the lines that tell of progress.
  std::string warnings() {
    if (!errors_) {
      errors_ = testing::internal::GetCapturedStderr();
    }
    std::istringstream lines(*errors_);
    std::string told;
    for (std::string line; std::getline(lines, line);) {
      told += line.starts_with("INFO: ") ? "" : line + "\n";
    }
    return told;
  }

  // Cyan, half black, white and so on.
  const Bytes line_{255, 0, 0, 0, 0,   0,   0, 128, 0,   0,   0,   0,   255, 255, 255, 255,
                    0,   0, 0, 0, 255, 255, 0, 0,   255, 255, 255, 255, 0,   0,   0,   255};
  const test::TransiccJob formulaToMeasured_{.source = kFormulaCMYK, .destination = kMeasuredCMYK};
  const Texts formulaOn102_{{"SystemVersion", "10.2.8"}, {"MacOS102SourceProfile", kFormulaCMYK}};

  test::DebugLogCapture log_;
  std::optional<std::string> printerProfile_ = kMeasuredCMYK;
  std::optional<test::ScreenBundle> bundle_;
  std::optional<Planar> filter_;
  std::optional<std::string> errors_;  // once they were looked at
};

TEST_F(ColorMatching, IsSkippedFromTenThreeOn) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.3"}, {"MacOS102SourceProfile", kFormulaCMYK}}),
            (Lines{"startColorSync skipping OS version 0x1030"}));
  EXPECT_EQ(filter_->colorWorld, nullptr);
  EXPECT_EQ(matchedLine(line_), line_);
  EXPECT_EQ(warnings(), "");
}

TEST_F(ColorMatching, OfTheLastVersionBeforeTenThreeIsDone) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2.15"}, {"MacOS102SourceProfile", kFormulaCMYK}}),
            (Lines{"startColorSync succeeded"}));
}

TEST_F(ColorMatching, MatchesEachLineOfColourInPlace) {
  EXPECT_EQ(startPage(formulaOn102_), (Lines{"startColorSync succeeded"}));
  const CMBitmap& bitmap = filter_->sourceBitmap;
  EXPECT_EQ(bitmap.image, filter_->rasterBuffer.data());
  EXPECT_EQ(bitmap.width, 8U);
  EXPECT_EQ(bitmap.height, 1U);
  EXPECT_EQ(bitmap.rowBytes, 32U);
  EXPECT_EQ(bitmap.pixelSize, 32U);
  EXPECT_EQ(bitmap.space, 0x0802U);

  const Bytes expected = transicc(formulaToMeasured_, line_);
  const Bytes matched = matchedLine(line_);
  ASSERT_EQ(matched.size(), expected.size());
  for (std::size_t i = 0; i < matched.size(); ++i) {
    EXPECT_NEAR(matched[i], expected[i], 1) << "byte " << i;
  }
  EXPECT_NE(matched, line_);
  EXPECT_EQ(warnings(), "");
}

TEST_F(ColorMatching, MatchesEachLineOfGreyInPlace) {
  printerProfile_ = "Gray-CIE_L.icc";
  EXPECT_EQ(
      startPage({{"SystemVersion", "10.2"}, {"MacOS102SourceProfile", "Gray.icc"}}, "", {}, 1),
      (Lines{"startColorSync succeeded"}));
  EXPECT_EQ(filter_->sourceBitmap.rowBytes, 8U);
  EXPECT_EQ(filter_->sourceBitmap.pixelSize, 8U);
  EXPECT_EQ(filter_->sourceBitmap.space, 0x280AU);
  const Bytes greys{0, 1, 40, 80, 128, 200, 254, 255};
  const Bytes expected = test::transicc({.source = "/usr/share/color/icc/Gray.icc",
                                         .destination = "/usr/share/color/icc/Gray-CIE_L.icc",
                                         .channels = 1},
                                        greys);
  EXPECT_EQ(matchedLine(greys), expected);
  EXPECT_NE(expected, greys);
}

TEST_F(ColorMatching, IsDoneAgainOnPixelsThatTheNextLineLeaves) {
  (void)startPage(formulaOn102_);
  const Bytes black{0, 0, 0, 255};
  Bytes line(32);
  std::ranges::copy(black, line.end() - 4);
  const Bytes once = matchedLine(line);
  EXPECT_EQ(Bytes(once.end() - 4, once.end()), transicc(formulaToMeasured_, black));
  // A line of seven pixels: the eighth keeps what it held, as padding does.
  (void)matchedLine(Bytes(28));
  const std::uint8_t* padding = filter_->rasterBuffer.data() + 28;
  Bytes again(once.end() - 4, once.end());
  const Bytes expected = transicc(formulaToMeasured_, again);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(padding[i], expected[i], 2) << "ink " << i;
  }
  // Paper stays paper, however often.
  EXPECT_EQ(matchedLine(Bytes(28)), Bytes(28));
}

TEST_F(ColorMatching, IsOverWithThePage) {
  (void)startPage(formulaOn102_);
  EXPECT_NE(filter_->colorWorld, nullptr);
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_EQ(filter_->colorWorld, nullptr);
}

TEST_F(ColorMatching, IsSetUpAnewForEveryPage) {
  (void)startPage(formulaOn102_);
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_TRUE(filter_->begin(test::pageHeader(20, 1, 4)));
  EXPECT_EQ(log_.count("startColorSync succeeded"), 2U);
  EXPECT_EQ(filter_->sourceBitmap.image, filter_->rasterBuffer.data());
  EXPECT_EQ(filter_->sourceBitmap.width, 20U);
}

TEST_F(ColorMatching, OnAnUnknownSystemIsTriedAsOnVersionZero) {
  EXPECT_EQ(
      startPage({{"MacOS102SourceProfile", kFormulaCMYK}}),
      (Lines{"ASSERT: Gestalt(gestaltSystemVersion) failed -5550", "startColorSync succeeded"}));
}

TEST_F(ColorMatching, ThatFailsOnAnUnknownSystemIsNotToldTheUserWhoMayNotExpectIt) {
  EXPECT_EQ(startPage({}).back(), "startColorSync failed: -4229");
  EXPECT_EQ(warnings(), "");
}

constexpr char kDevices[] = R"(ColorDevices = {
  "7" = { DefaultProfile = 2; Profiles = { "1" = "ps_cmyk.icc"; "2" = "missing.icc"; }; };
  "8" = { DefaultProfile = 1; Profiles = { "1" = "ps_cmyk.icc"; }; };
  "9" = { DefaultProfile = 5; Profiles = { "1" = "ps_cmyk.icc"; }; };
  "0" = { DefaultProfile = 3; Profiles = { "3" = "ps_cmyk.icc"; }; };
};)";

TEST_F(ColorMatching, TakesTheProfileOfTheJobsDeviceAndProfileIDs) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}, kDevices, {{kDevice, "7"}, {kProfile, "1"}}),
            (Lines{"startColorSync succeeded"}));
}

TEST_F(ColorMatching, TakesTheTableForMissingWhenTheBundlesSourceIsEmpty) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}, {"MacOS102SourceProfile", ""}}, kDevices,
                      {{kDevice, "8"}, {kProfile, "1"}}),
            (Lines{"startColorSync succeeded"}));
}

TEST_F(ColorMatching, TakesTheTableWhenTheBundlesSourceIsNoText) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}},
                      std::string("MacOS102SourceProfile = (\"ps_cmyk.icc\");") + kDevices,
                      {{kDevice, "8"}, {kProfile, "1"}}),
            (Lines{"startColorSync succeeded"}));
}

TEST_F(ColorMatching, PrefersTheBundlesSourceToTheTable) {
  EXPECT_EQ(startPage(formulaOn102_, kDevices, {{kDevice, "7"}, {kProfile, "2"}}),
            (Lines{"startColorSync succeeded"}));
}

TEST_F(ColorMatching, TriesTheDevicesDefaultForAnUnknownProfileID) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}, kDevices, {{kDevice, "8"}, {kProfile, "4"}}),
            (Lines{"ASSERT: CMGetDeviceProfile failed -4230 on source profile: 8, 4",
                   "CMGetDeviceDefaultProfileID 8, 1", "startColorSync succeeded"}));
  EXPECT_EQ(warnings(), "");
}

TEST_F(ColorMatching, TakesMissingIDsForZero) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}, kDevices),
            (Lines{"ASSERT: CMGetDeviceProfile failed -4230 on source profile: 0, 0",
                   "CMGetDeviceDefaultProfileID 0, 3", "startColorSync succeeded"}));
}

TEST_F(ColorMatching, FailsWhenTheDefaultIsUnknownToo) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}, kDevices, {{kDevice, "9"}, {kProfile, "4"}}),
            (Lines{"ASSERT: CMGetDeviceProfile failed -4230 on source profile: 9, 4",
                   "CMGetDeviceDefaultProfileID 9, 5",
                   "ASSERT: CMGetDeviceProfile failed -4230 on source profile: 9, 5",
                   "startColorSync failed: -4230"}));
  EXPECT_EQ(filter_->colorWorld, nullptr);
  EXPECT_EQ(matchedLine(line_), line_);
  EXPECT_EQ(warnings(),
            "WARNING: colours are printed unmatched: source profile 5 of device 9: the device has "
            "no such profile (-4230)\n");
}

TEST_F(ColorMatching, FailsWithoutASource) {
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}),
            (Lines{"ASSERT: CMGetDeviceProfile failed -4229 on source profile: 0, 0",
                   "CMGetDeviceDefaultProfileID 0, 0", "startColorSync failed: -4229"}));
  EXPECT_EQ(matchedLine(line_), line_);
}

class NoPrinterProfile : public ColorMatching,
                         public testing::WithParamInterface<std::optional<std::string>> {};

TEST_P(NoPrinterProfile, FailsWithFileNotFound) {
  printerProfile_ = GetParam();
  EXPECT_EQ(startPage(formulaOn102_),
            (Lines{"ASSERT: No destination profile path", "startColorSync failed: -43"}));
  EXPECT_EQ(matchedLine(line_), line_);
  EXPECT_EQ(warnings(),
            "WARNING: colours are printed unmatched: printer profile: no cupsICCProfile names it "
            "(-43)\n");
}

INSTANTIATE_TEST_SUITE_P(MissingOrEmpty, NoPrinterProfile, testing::Values(std::nullopt, ""));

TEST_F(ColorMatching, LooksForTheSourceBeforeThePrintersProfile) {
  printerProfile_ = "";
  EXPECT_EQ(startPage({{"SystemVersion", "10.2"}}).back(), "startColorSync failed: -4229");
  EXPECT_EQ(log_.count("ASSERT: No destination profile path"), 0U);
}

TEST_F(ColorMatching, FailsWhenTheSourceCannotBeOpened) {
  EXPECT_EQ(
      startPage({{"SystemVersion", "10.2"}}, kDevices, {{kDevice, "7"}, {kProfile, "2"}}),
      (Lines{"ASSERT: CMOpenProfile failed on source profile: -43", "startColorSync failed: -43"}));
  EXPECT_EQ(matchedLine(line_), line_);
  EXPECT_EQ(warnings(),
            "WARNING: colours are printed unmatched: source profile \"missing.icc\": there is no "
            "such file (-43)\n");
}

TEST_F(ColorMatching, FailsWhenThePrintersProfileCannotBeRead) {
  printerProfile_ = "/usr/share/color";
  EXPECT_EQ(startPage(formulaOn102_), (Lines{"ASSERT: CMOpenProfile failed on dest profile: -36",
                                             "startColorSync failed: -36"}));
  EXPECT_EQ(matchedLine(line_), line_);
}

TEST_F(ColorMatching, TellsAPathInOneLine) {
  printerProfile_ = "two\nlines";
  EXPECT_EQ(startPage(formulaOn102_).back(), "startColorSync failed: -43");
  EXPECT_EQ(
      warnings(),
      "WARNING: colours are printed unmatched: printer profile \"two?lines\": there is no such "
      "file (-43)\n");
}

TEST_F(ColorMatching, FailsWhenThePrintersProfileIsNone) {
  printerProfile_ = "ScreenSets.plist";  // of the bundle
  EXPECT_EQ(startPage(formulaOn102_), (Lines{"ASSERT: CMOpenProfile failed on dest profile: -4204",
                                             "startColorSync failed: -4204"}));
}

TEST_F(ColorMatching, FailsWhenAPathIsTooLong) {
  printerProfile_ = "/" + std::string(1024, 'x');
  EXPECT_EQ(startPage(formulaOn102_), (Lines{"ASSERT: CMOpenProfile failed on dest profile: -4205",
                                             "startColorSync failed: -4205"}));
}

TEST_F(ColorMatching, FailsForAProfileOfAnotherClass) {
  printerProfile_ = "CineLogCurve.icc";
  EXPECT_EQ(startPage(formulaOn102_),
            (Lines{"ASSERT: NCWNewColorWorld failed", "startColorSync failed: -4208"}));
  EXPECT_EQ(filter_->colorWorld, nullptr);
  EXPECT_EQ(matchedLine(line_), line_);
  EXPECT_EQ(warnings(), "WARNING: colours are printed unmatched: from \"" + kFormulaCMYK +
                            "\" to \"CineLogCurve.icc\": a profile of that class cannot stand "
                            "there (-4208)\n");
}

TEST_F(ColorMatching, FailsForAProfileOfOtherChannels) {
  printerProfile_ = "sRGB.icc";
  EXPECT_EQ(startPage(formulaOn102_),
            (Lines{"ASSERT: NCWNewColorWorld failed", "startColorSync failed: -4209"}));
  EXPECT_EQ(matchedLine(line_), line_);
}

TEST_F(ColorMatching, OfAPageOfOtherColoursThanTheProfilesFailsLineByLine) {
  EXPECT_EQ(startPage(formulaOn102_, "", {}, 1), (Lines{"startColorSync succeeded"}));
  const Bytes greys{0, 1, 40, 80, 128, 200, 254, 255};
  EXPECT_EQ(matchedLine(greys), greys);
  EXPECT_EQ(matchedLine(greys), greys);
  EXPECT_EQ(log_.count("ASSERT: CWMatchBitmap failed: -4209"), 2U);
  EXPECT_EQ(warnings(),
            "WARNING: colours are printed unmatched: a page of black: the profiles are for other "
            "colours (-4209)\n");
}

TEST_F(ColorMatching, ThatFailsOnEveryPageIsToldTheUserOnce) {
  printerProfile_ = "";
  (void)startPage(formulaOn102_);
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_TRUE(filter_->begin(test::pageHeader(8, 2, 4)));
  EXPECT_EQ(log_.count("startColorSync failed: -43"), 2U);
  const std::string told = warnings();
  EXPECT_EQ(std::ranges::count(told, '\n'), 1) << told;
}

}  // namespace
}  // namespace gdi
