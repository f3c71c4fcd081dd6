// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Jobs with and without colour matching through the whole program, each byte of the stream
// compared.

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/program/expected_stream.h"
#include "tests/program/filter_process.h"
#include "tests/program/test_bundle.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/transicc.h"

namespace gdi::programtest {
namespace {

constexpr std::uint32_t kColumns = 4;  // pixels of each colour

// The pixels in turn, four columns each, over the whole height.
RasterPage striped(const Bytes& pixels, std::uint32_t channels) {
  const auto colors = static_cast<std::uint32_t>(pixels.size()) / channels;
  return {.width = colors * kColumns,
          .height = 20,
          .channels = channels,
          .sample = [pixels, channels](std::uint32_t x, std::uint32_t, std::uint32_t channel) {
            return pixels[x / kColumns * channels + channel];
          }};
}

// Every mixture of solid inks; the first is paper.
Bytes solidInks() {
  Bytes pixels;
  for (unsigned inks = 0; inks < 16; ++inks) {
    for (const unsigned ink : {1U, 2U, 4U, 8U}) {
      pixels.push_back((inks & ink) != 0 ? 255 : 0);
    }
  }
  return pixels;
}

class MatchedJob : public testing::Test {
 protected:
  // The stream that comes of the page, as often as it is asked for, on a system of that version,
  // its bundle with these entries.
  Bytes printed(const RasterPage& page, const std::string& version,
                const std::string& information) {
    FilterProcess filter;
    const std::filesystem::path bundle = filter.folder() / "bundle";
    writeTestBundle(bundle, "SystemVersion = \"" + version + "\"; " + information);
    filter.bundle = bundle;
    filter.options = "Gradiation=Fine " + options_;
    filter.ppd = ppdText(ppdLines_);
    filter.debugLog = true;
    filter.raster = rasterOf(std::vector(pages_, page));
    const FilterResult result = filter.run();
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    debugLog_ = result.debugLog;
    return withoutDate(result.output);
  }

  // How many lines of the debug log end with that message.
  [[nodiscard]] std::ptrdiff_t linesOfLog(const std::string& message) const {
    std::istringstream lines(debugLog_);
    std::ptrdiff_t count = 0;
    for (std::string line; std::getline(lines, line);) {
      count += line.ends_with(" " + message) ? 1 : 0;
    }
    return count;
  }

  static Bytes expected(const RasterPage& page) {
    return expectedJobStream({.depth = 4, .pages = {{.page = page}}});
  }

  const test::TransiccJob cmyk_{.source = "/usr/share/color/icc/ghostscript/ps_cmyk.icc",
                                .destination = "/usr/share/color/icc/ghostscript/default_cmyk.icc"};
  const std::string cmykSettings_ =
      "MacOS102SourceProfile = \"ps_cmyk.icc\"; cupsICCProfile = \"default_cmyk.icc\";";
  std::size_t pages_ = 1;
  std::string options_;
  std::string ppdLines_;
  std::string debugLog_;
};

TEST_F(MatchedJob, PrintsThePlanesOfTheMatchedPixels) {
  const Bytes inks = solidInks();
  const Bytes matchedInks = transicc(cmyk_, inks);
  ASSERT_EQ(matchedInks.size(), inks.size());
  const RasterPage page = striped(inks, 4);
  const RasterPage matchedPage = striped(matchedInks, 4);
  EXPECT_TRUE(printed(page, "10.2.8", cmykSettings_) == expected(matchedPage));
  EXPECT_EQ(linesOfLog("startColorSync succeeded"), 1);

  // Paper stays paper; solid black becomes all four inks, and every plane has them.
  for (std::uint32_t plane = 0; plane < 4; ++plane) {
    EXPECT_EQ(matchedPage.sample(0, 0, plane), 0);
    EXPECT_GT(matchedPage.sample(8 * kColumns, 0, plane), 100);
    EXPECT_NE(expectedPlane({.page = page}, plane, 4),
              expectedPlane({.page = matchedPage}, plane, 4));
  }
}

TEST_F(MatchedJob, OfTenThreeAndLaterPrintsThePixelsAsTheyCome) {
  const RasterPage page = striped(solidInks(), 4);
  EXPECT_TRUE(printed(page, "10.3", cmykSettings_) == expected(page));
  EXPECT_EQ(linesOfLog("startColorSync skipping OS version 0x1030"), 1);
}

TEST_F(MatchedJob, TakesThePrintersProfileOfThePPDBeforeThatOfTheBundle) {
  ppdLines_ = "*cupsICCProfile: \"default_cmyk.icc\"\n";
  const Bytes inks = solidInks();
  EXPECT_TRUE(printed(striped(inks, 4), "10.2.8",
                      "MacOS102SourceProfile = \"ps_cmyk.icc\"; cupsICCProfile = missing;") ==
              expected(striped(transicc(cmyk_, inks), 4)));
}

TEST_F(MatchedJob, KeepsBlackInkAloneWhereTheBundleSaysSo) {
  const Bytes inks{0, 0, 0, 255, 0, 0, 0, 0};
  const RasterPage page = striped(inks, 4);
  EXPECT_TRUE(printed(page, "10.2.8", cmykSettings_ + "ColorPreserveBlack = ink;") ==
              expected(page));
  EXPECT_EQ(linesOfLog("startColorSync succeeded"), 1);
}

TEST_F(MatchedJob, OfBlackPrintsTheMatchedGreys) {
  test::TransiccJob grey;
  grey.source = "/usr/share/color/icc/Gray.icc";
  grey.destination = "/usr/share/color/icc/Gray-CIE_L.icc";
  grey.channels = 1;
  Bytes greys;
  for (unsigned i = 0; i < 256; ++i) {
    greys.push_back(static_cast<std::uint8_t>(i));
  }
  const Bytes matched = transicc(grey, greys);
  ASSERT_EQ(matched.size(), greys.size());
  ASSERT_NE(matched, greys);
  EXPECT_TRUE(printed(striped(greys, 1), "10.2",
                      "MacOS102SourceProfile = \"Gray.icc\"; cupsICCProfile = "
                      "\"Gray-CIE_L.icc\";") == expected(striped(matched, 1)));
}

TEST_F(MatchedJob, HasABlankFillerPageThoughTheSourceAsksForItsPapersColour) {
  test::TemporaryFolder folder;
  std::string profile = test::contentsOf(cmyk_.destination);
  profile.replace(64, 4, std::string("\0\0\0\3", 4));  // absolute colorimetric, in the header
  const std::string source = folder.write("absolute.icc", profile).string();
  options_ =
      "com.apple.print.PrintSettings.PMDuplexing..n.=2 "
      "com.apple.print.PrintSettings.PMTotalSidesImaged..n.=3";
  pages_ = 3;
  // That the stream keeps its format, with a filler page that is blank, every run asserts.
  (void)printed(striped(solidInks(), 4), "10.2.8",
                "MacOS102SourceProfile = \"" + source + "\"; cupsICCProfile = \"ps_cmyk.icc\";");
  EXPECT_EQ(linesOfLog("startColorSync succeeded"), 4);
}

TEST_F(MatchedJob, ThatCannotBeMatchedIsPrintedAsItComes) {
  const RasterPage page = striped(solidInks(), 4);
  EXPECT_TRUE(printed(page, "10.2.8", "cupsICCProfile = \"missing.icc\";") == expected(page));
  EXPECT_EQ(linesOfLog("startColorSync failed: -4229"), 1);
}

}  // namespace
}  // namespace gdi::programtest
