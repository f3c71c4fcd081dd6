// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The filter's construction from the spooler's arguments: its steps as the debug log tells them.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/CFPreferences.h"
#include "tests/filter/CleanSignals.h"
#include "tests/filter/OpenFilter.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/PrintQueue.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;
using test::Arguments;

class FilterThatCannotInit : public test::OpenFilter {
 public:
  bool init() override { return false; }
};

class FilterWithoutNeedOfAPPD : public test::OpenFilter {
 public:
  bool init() override {
    const bool made = CUPSFilter::init();
    needsPPD = false;
    return made;
  }
};

class Construction : public testing::Test {
 protected:
  static bool construct(CUPSFilter& filter, Arguments& arguments) {
    return filter.initWithArgc(arguments.count(), arguments.vector());
  }
  void TearDown() override { CFPreferencesSetAppValue("AppleLanguages", {}); }

  const test::DebugLogCapture log_;
  const test::CleanSignals signals_;
  const test::TestBundle bundle_;
  const test::PrintQueue queue_{"office", test::smallPPD()};
  const test::EnvironmentVariable language_{"LANG", "de_DE.UTF-8"};
  const test::EnvironmentVariable device_{"DEVICE_URI", std::nullopt};
  test::OpenFilter filter_;
};

TEST_F(Construction, OfAWholeJobIsLoggedStepByStep) {
  Arguments arguments(Arguments::job("office", "media=A4 Color=1"));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ppd attr FormatVersion = 4.3",
                   "Option Color = 1", "Option media = A4",
                   "CUPSFilter initWithArgc:argv exiting with result: 1"}));
}

TEST_F(Construction, InstallsTheSignalHandlers) {
  Arguments arguments({"office"});
  construct(filter_, arguments);
  ASSERT_EQ(raise(SIGTERM), 0);
  EXPECT_EQ(gSigTerm, 1);
}

TEST_F(Construction, AFilterThatCannotInitGoesNoFurther) {
  FilterThatCannotInit filter;
  Arguments arguments(Arguments::job("office", "media=A4"));
  EXPECT_FALSE(construct(filter, arguments));
  EXPECT_EQ(log_.lines(), (Lines{"CUPSFilter initWithArgc:argv", "ASSERT: Bad self",
                                 "CUPSFilter initWithArgc:argv exiting with result: 0"}));
}

TEST_F(Construction, FiveArgumentsAreNotEnough) {
  Arguments arguments({"office", "17", "user", "title", "1"});
  EXPECT_FALSE(construct(filter_, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ASSERT: Not enough arguments",
                   "CUPSFilter initWithArgc:argv failed",
                   "CUPSFilter initWithArgc:argv exiting with result: 0"}));
  EXPECT_EQ(queue_.leftovers(), Lines());
}

TEST_F(Construction, NoArgumentsAtAllAreNotEnough) {
  Arguments arguments({});
  EXPECT_FALSE(construct(filter_, arguments));
  EXPECT_EQ(log_.count("ASSERT: Not enough arguments"), 1U);
}

TEST_F(Construction, SixArgumentsReadStandardInput) {
  Arguments arguments(Arguments::job("office", ""));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(filter_.sourceFD, 0);
}

TEST_F(Construction, TheSeventhArgumentIsTheInput) {
  test::TemporaryFolder folder;
  std::vector<std::string> texts = Arguments::job("office", "");
  texts.push_back(folder.write("raster", "RaS3").native());
  Arguments arguments(texts);
  EXPECT_TRUE(construct(filter_, arguments));
  std::array<char, 8> bytes{};
  ASSERT_GT(filter_.sourceFD, 0);
  EXPECT_EQ(read(filter_.sourceFD, bytes.data(), bytes.size()), 4);
  EXPECT_EQ(std::string(bytes.data()), "RaS3");
  EXPECT_EQ(write(filter_.sourceFD, "x", 1), -1);
  close(filter_.sourceFD);
}

TEST_F(Construction, AnInputThatCannotBeOpenedFailsAfterTheOptions) {
  std::vector<std::string> texts = Arguments::job("office", "media=A4");
  texts.emplace_back("/no/such/file");
  Arguments arguments(texts);
  EXPECT_FALSE(construct(filter_, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ASSERT: Unable to open argv[6]",
                   "Option media = A4", "CUPSFilter initWithArgc:argv failed",
                   "CUPSFilter initWithArgc:argv exiting with result: 0"}));
  EXPECT_EQ(queue_.leftovers(), Lines());
}

TEST_F(Construction, EightArgumentsReadStandardInputAndLeaveTheFileAlone) {
  std::vector<std::string> texts = Arguments::job("office", "");
  texts.emplace_back("/no/such/file");
  texts.emplace_back("one more");
  Arguments arguments(texts);
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(filter_.sourceFD, 0);
}

TEST_F(Construction, WithoutAPPDFailsAfterTheOptions) {
  Arguments arguments(Arguments::job("nowhere", "media=A4"));
  EXPECT_FALSE(construct(filter_, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ASSERT: Unable to get ppd file",
                   "Option media = A4", "CUPSFilter initWithArgc:argv failed",
                   "CUPSFilter initWithArgc:argv exiting with result: 0"}));
}

TEST_F(Construction, WithoutNeedOfAPPDGoesOnWithNone) {
  FilterWithoutNeedOfAPPD filter;
  Arguments arguments(Arguments::job("nowhere", "media=A4"));
  EXPECT_TRUE(construct(filter, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ASSERT: Unable to get ppd file",
                   "ASSERT: Unable to open ppd file", "Option media = A4",
                   "CUPSFilter initWithArgc:argv exiting with result: 1"}));
}

TEST_F(Construction, APPDThatCannotBeReadIsTolerated) {
  const test::PrintQueue broken("broken", "this is no PPD\n");
  const test::TestBundle bundle{{"cupsICCProfile", "of the bundle"}};
  Arguments arguments(Arguments::job("broken", "media=A4"));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(log_.lines(),
            (Lines{"CUPSFilter initWithArgc:argv", "AppleLanguages = \"de_DE.UTF-8\"",
                   "CUPSFilter init exiting with result: 1", "ASSERT: Unable to open ppd file",
                   "Option media = A4", "CUPSFilter initWithArgc:argv exiting with result: 1"}));
  EXPECT_EQ(filter_.ppd, nullptr);
  EXPECT_EQ(filter_.printerName, "");
  EXPECT_EQ(filter_.cupsICCProfile, std::nullopt);
  EXPECT_EQ(broken.leftovers(), Lines());
}

TEST_F(Construction, OptionsAreKeptAsTheyWereParsed) {
  Arguments arguments(Arguments::job("office", "media=A4 Rotated= nocollate media=A5"));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(filter_.optionsDict,
            (OptionsDict{{"media", "A5"}, {"Rotated", ""}, {"collate", "false"}}));
  EXPECT_EQ(log_.count("Option Rotated = "), 1U);
  EXPECT_EQ(log_.count("Option media = A5"), 1U);
  EXPECT_EQ(log_.count("Option media = A4"), 0U);
}

TEST_F(Construction, KeepsTheDeviceURI) {
  const test::EnvironmentVariable device("DEVICE_URI", "usb://Solvane/One");
  Arguments arguments(Arguments::job("office", ""));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(filter_.uri, "usb://Solvane/One");
}

TEST_F(Construction, WithoutADeviceURIHasNone) {
  Arguments arguments(Arguments::job("office", ""));
  EXPECT_TRUE(construct(filter_, arguments));
  EXPECT_EQ(filter_.uri, std::nullopt);
}

TEST_F(Construction, HandsTheSpoolersLanguageToTheLocalisation) {
  EXPECT_TRUE(filter_.init());
  EXPECT_EQ(CFPreferencesCopyAppValue("AppleLanguages"), Lines{"de_DE.UTF-8"});
}

TEST_F(Construction, WithoutALanguageSetsNoPreference) {
  const test::EnvironmentVariable none("LANG", std::nullopt);
  CFPreferencesSetAppValue("AppleLanguages", {"as before"});
  EXPECT_TRUE(filter_.init());
  EXPECT_EQ(log_.lines(), (Lines{"LANG environment variable missing.",
                                 "CUPSFilter init exiting with result: 1"}));
  EXPECT_EQ(CFPreferencesCopyAppValue("AppleLanguages"), Lines{"as before"});
}

TEST_F(Construction, NeedsAPPD) {
  EXPECT_TRUE(filter_.init());
  EXPECT_TRUE(filter_.needsPPD);
}

// Status lines must reach the spooler at once, also from a process that ends without a flush.
TEST_F(Construction, MakesStandardErrorUnbuffered) {
  std::array<char, 512> buffer{};
  EXPECT_EXIT(
      {
        (void)std::setvbuf(stderr, buffer.data(), _IOFBF, buffer.size());
        (void)filter_.init();
        (void)std::fputs("told at once", stderr);
        std::_Exit(0);
      },
      testing::ExitedWithCode(0), "told at once");
}

TEST_F(Construction, TellsNothingOnStandardErrorEvenWhenItFails) {
  testing::internal::CaptureStderr();
  Arguments arguments(Arguments::job("nowhere", ""));
  EXPECT_FALSE(construct(filter_, arguments));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace gdi
