// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "halftone/screens/Halftoner.h"
#include "tests/screens/screen_bundle.h"

namespace gdi {
namespace {

class ScreenSet : public ScreenBundleTest {
 protected:
  static void expectRefused(std::string_view message) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Halftoner::initWithScreenSetKey("TestSet"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), message);
  }
};

constexpr std::string_view kNoArray = "ERROR: Couldn't get screensArray\n";

TEST_F(ScreenSet, LoadsItsDepthAndItsFourScreens) {
  setTestSet(depth(2) + screens({"ident", "invert", "zeros", "ones"}));
  testing::internal::CaptureStderr();
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  ASSERT_NE(halftoner, nullptr);
  EXPECT_EQ(halftoner->outputDepth(), 2);
  EXPECT_EQ(halftoner->screensLoaded(), 4U);
}

TEST_F(ScreenSet, NamingTheSameFileFourTimesLoadsItOnceForAllFourPlanes) {
  setTestSet(depth(1) + screens({"ident", "ident", "ident", "ident"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  EXPECT_EQ(halftoner->screensLoaded(), 1U);
  const Bytes input{0xFF, 0xFF, 0xFF, 0xFF};
  Bytes output(4);
  const std::array rows{output.data(), &output[1], &output[2], &output[3]};
  EXPECT_TRUE(halftoner->halftoneChunkyScanlineToPlanar(input.data(), 1, 0, rows, 4));
  EXPECT_EQ(output, Bytes(4, 0x80));
}

TEST_F(ScreenSet, AMissingListIsNamed) {
  expectRefused("ERROR: Couldn't find ScreenSets.plist\n");
}

TEST_F(ScreenSet, AListThatCannotBeReadIsNamed) {
  // A file that opens and whose first byte cannot be read.
  std::filesystem::create_symlink("/proc/self/mem", folder_ / "ScreenSets.plist");
  expectRefused("ERROR: Couldn't load ScreenSets.plist contents\n");
}

TEST_F(ScreenSet, AListThatIsNoPropertyListIsNamed) {
  std::ofstream(folder_ / "ScreenSets.plist") << "<plist><dict>";
  expectRefused("ERROR: Couldn't deserialize ScreenSets.plist\n");
}

TEST_F(ScreenSet, AListWithoutADictionaryOfSetsIsRefused) {
  for (const std::string_view list :
       {"<dict/>", "<array/>", "<string>ScreenSets</string>",
        "<dict><key>ScreenSets</key><array/></dict>",
        "<dict><key>ScreenSets</key><string>TestSet</string></dict>"}) {
    setScreenSets(list);
    expectRefused("ERROR: Couldn't get screenSetsDict\n");
  }
}

TEST_F(ScreenSet, AKeyWithoutASetIsRefused) {
  for (const std::string_view sets : {"<dict/>", "<dict><key>testset</key><dict/></dict>",
                                      "<dict><key>TestSet</key><integer>1</integer></dict>"}) {
    setScreenSets("<dict><key>ScreenSets</key>" + std::string(sets) + "</dict>");
    expectRefused("ERROR: Couldn't get screenSet\n");
  }
}

TEST_F(ScreenSet, ADepthOf3IsRefusedAndAMissingOneShows0) {
  const std::string names = screens({"ident", "ident", "ident", "ident"});
  setTestSet(depth(3) + names);
  expectRefused("ERROR: Screen's output depth is out of range (3)\n");
  setTestSet(names);
  expectRefused("ERROR: Screen's output depth is out of range (0)\n");
  setTestSet("<key>Depth</key><array><integer>1</integer></array>" + names);
  expectRefused("ERROR: Screen's output depth is out of range (0)\n");
}

TEST_F(ScreenSet, ADepthOutsideTheRangeOfIntIsNotCutToOneWithin) {
  setTestSet("<key>Depth</key><integer>4294967297</integer>" +
             screens({"ident", "ident", "ident", "ident"}));
  expectRefused("ERROR: Screen's output depth is out of range (2147483647)\n");
}

TEST_F(ScreenSet, ADepthInATextCounts) {
  setTestSet("<key>Depth</key><string>4</string>" + screens({"ident", "ident", "ident", "ident"}));
  const auto halftoner = Halftoner::initWithScreenSetKey("TestSet");
  ASSERT_NE(halftoner, nullptr);
  EXPECT_EQ(halftoner->outputDepth(), 4);
}

TEST_F(ScreenSet, ASetWithoutAnArrayOfScreensIsRefused) {
  setTestSet(depth(1));
  expectRefused(kNoArray);
  setTestSet(depth(1) + "<key>Screens</key><string>ident</string>");
  expectRefused(kNoArray);
}

TEST_F(ScreenSet, ThreeOrFiveScreensAreRefusedSilently) {
  setTestSet(depth(1) + screens({"ident", "ident", "ident"}));
  expectRefused("");
  setTestSet(depth(1) + screens({"ident", "ident", "ident", "ident", "ident"}));
  expectRefused("");
  setTestSet(depth(1) + screens({}));
  expectRefused("");
}

TEST_F(ScreenSet, AMissingScreenIsNamed) {
  setTestSet(depth(1) + screens({"ident", "ident", "100% grey", "ident"}));
  expectRefused("ERROR: Couldn't instantiate screen from name 100% grey\n");
}

TEST_F(ScreenSet, AScreenThatIsRefusedIsNamedAfterItsOwnMessage) {
  addScreen("newer", screenFile("2 1 1 1 1", {0}));
  setTestSet(depth(1) + screens({"newer", "ident", "ident", "ident"}));
  expectRefused(
      "ERROR: screen version mismatch\n"
      "ERROR: Couldn't instantiate screen from name newer\n");
}

TEST_F(ScreenSet, AScreenIsLookedForUnderExactlyItsNameInScreensOnly) {
  std::filesystem::copy(folder_ / "Screens" / "ident", folder_ / "outside");
  addScreen("ident.screen", screenFile("1 1 1 1 1", {0x40}));
  setTestSet(depth(1) + screens({"outside", "ident", "ident", "ident"}));
  expectRefused("ERROR: Couldn't instantiate screen from name outside\n");
  setTestSet(depth(1) + screens({"../outside", "ident", "ident", "ident"}));
  expectRefused("ERROR: Couldn't instantiate screen from name ../outside\n");
  setTestSet(depth(1) + screens({"ident.screen", "ident", "ident", "ident"}));
  EXPECT_NE(Halftoner::initWithScreenSetKey("TestSet"), nullptr);
  std::filesystem::remove(folder_ / "Screens" / "ident");
  setTestSet(depth(1) + screens({"ident", "ident", "ident", "ident"}));
  expectRefused("ERROR: Couldn't instantiate screen from name ident\n");
}

TEST_F(ScreenSet, ANameThatIsNoTextIsRefused) {
  addScreen("7", screenFile("1 1 1 1 1", {0x40}));
  const std::string three = "<string>ident</string><string>ident</string><string>ident</string>";
  setTestSet(depth(1) + "<key>Screens</key><array><integer>7</integer>" + three + "</array>");
  expectRefused("ERROR: Couldn't instantiate screen from name 7\n");
  setTestSet(depth(1) + "<key>Screens</key><array>" + three + "<dict/></array>");
  expectRefused("ERROR: Couldn't instantiate screen from name \n");
}

TEST_F(ScreenSet, EveryHalftonerReadsTheListAndTheScreensAfresh) {
  setTestSet(depth(1) + screens({"ident", "ident", "ident", "ident"}));
  ASSERT_NE(Halftoner::initWithScreenSetKey("TestSet"), nullptr);
  std::filesystem::remove(folder_ / "Screens" / "ident");
  expectRefused("ERROR: Couldn't instantiate screen from name ident\n");
}

class CurrentScreenSet : public ScreenSet {
 protected:
  void SetUp() override {
    ScreenSet::SetUp();
    setTestSet(depth(1) + screens({"ident", "ident", "zeros", "ident"}));
    makeOld("ScreenSets.plist");
    makeOld("Screens/ident");
    makeOld("Screens/zeros");
    halftoner_ = Halftoner::initWithScreenSetKey("TestSet");
    ASSERT_NE(halftoner_, nullptr);
  }
  // As if written an hour ago.
  void makeOld(const char* name) const {
    std::filesystem::last_write_time(
        folder_ / name, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  }

  std::unique_ptr<Halftoner> halftoner_;
};

TEST_F(CurrentScreenSet, IsOneOfThatKeyWhoseFilesNobodyTouched) {
  EXPECT_TRUE(halftoner_->isCurrent("TestSet"));
  EXPECT_FALSE(halftoner_->isCurrent("OtherSet"));
}

TEST_F(CurrentScreenSet, IsNoneWhoseListWasWrittenAnew) {
  setTestSet(depth(1) + screens({"zeros", "ident", "ident", "ident"}));
  EXPECT_FALSE(halftoner_->isCurrent("TestSet"));
}

TEST_F(CurrentScreenSet, IsNoneOfWhichAScreenWasWrittenAnewOrIsGone) {
  addScreen("zeros", screenFile("1 1 1 1 1", {0x40}));
  EXPECT_FALSE(halftoner_->isCurrent("TestSet"));
  std::filesystem::remove(folder_ / "Screens" / "zeros");
  EXPECT_FALSE(halftoner_->isCurrent("TestSet"));
}

TEST_F(CurrentScreenSet, IsNoneOfAnotherBundle) {
  NSBundle::setMainBundle(folder_ / "Screens");
  EXPECT_FALSE(halftoner_->isCurrent("TestSet"));
}

}  // namespace
}  // namespace gdi
