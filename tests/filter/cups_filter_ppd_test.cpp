// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the filter takes from the PPD of its queue.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/filter/CleanSignals.h"
#include "tests/filter/OpenFilter.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/PrintQueue.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;

class PPD : public testing::Test {
 protected:
  void SetUp() override { DefaultPaperType[0] = '\0'; }
  void TearDown() override { DefaultPaperType[0] = '\0'; }

  // Constructs the filter for a queue of that name.
  bool construct(const std::string& queue) {
    test::Arguments arguments(test::Arguments::job(queue, ""));
    return filter_.initWithArgc(arguments.count(), arguments.vector());
  }
  // The log's lines about the PPD.
  [[nodiscard]] Lines ppdLines() const {
    Lines lines = log_.lines();
    std::erase_if(lines, [](const std::string& line) {
      return !line.starts_with("ppd attr ") && !line.starts_with("DefaultPaperType");
    });
    return lines;
  }

  const test::DebugLogCapture log_;
  const test::CleanSignals signals_;
  const test::TestBundle bundle_{{"cupsICCProfile", "of the bundle"}};
  test::OpenFilter filter_;
};

TEST_F(PPD, EveryAttributeIsLoggedInTheOrderOfTheFile) {
  const test::PrintQueue queue("office", test::smallPPD("*NickName: \"Laser\"\n"
                                                        "*Zebra: \"1\"\n"
                                                        "*DefaultPaperType: Thick\n"
                                                        "*Apple Two/Three: \"a b\"\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(ppdLines(), (Lines{"ppd attr FormatVersion = 4.3", "ppd attr NickName = Laser",
                               "ppd attr Zebra = 1", "ppd attr DefaultPaperType = Thick",
                               "DefaultPaperType: Thick", "ppd attr Apple = a b"}));
}

TEST_F(PPD, TheNicknameIsThePrintersName) {
  const test::PrintQueue queue("office", test::smallPPD("*NickName: \"Laser 1\"\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.printerName, "Laser 1");
}

TEST_F(PPD, WithoutANicknameThePrintersNameIsEmpty) {
  const test::PrintQueue queue("office", test::smallPPD());
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.printerName, "");
}

TEST_F(PPD, AProfileInItGoesBeforeTheBundles) {
  const test::PrintQueue queue("office", test::smallPPD("*cupsICCProfile: \"of the PPD\"\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.cupsICCProfile, "of the PPD");
}

TEST_F(PPD, AProfileWithASpecCountsToo) {
  const test::PrintQueue queue("office", test::smallPPD("*cupsICCProfile RGB../x: \"rgb.icc\"\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.cupsICCProfile, "rgb.icc");
}

TEST_F(PPD, AnEmptyProfileInItStillGoesBeforeTheBundles) {
  const test::PrintQueue queue("office", test::smallPPD("*cupsICCProfile: \"\"\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.cupsICCProfile, "");
}

TEST_F(PPD, WithoutAProfileTheBundlesIsTaken) {
  const test::PrintQueue queue("office", test::smallPPD());
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.cupsICCProfile, "of the bundle");
}

TEST_F(PPD, WithoutAProfileAnywhereThereIsNone) {
  const test::TestBundle bundle;
  const test::PrintQueue queue("office", test::smallPPD());
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.cupsICCProfile, std::nullopt);
}

TEST_F(PPD, WithoutADefaultPaperTypeTheBufferStaysEmpty) {
  const test::PrintQueue queue("office", test::smallPPD("*defaultPaperType: Thick\n"
                                                        "*DefaultPaperTypes: Thick\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_STREQ(DefaultPaperType, "");
}

TEST_F(PPD, ADefaultPaperTypeOf19CharactersFits) {
  const std::string paper = "ABCDEFGHIJKLMNOPQRS";
  ASSERT_EQ(paper.size(), 19U);
  const test::PrintQueue queue("office", test::smallPPD("*DefaultPaperType: " + paper + "\n"));
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(DefaultPaperType, paper);
  EXPECT_EQ(log_.count("DefaultPaperType: " + paper), 1U);
}

TEST_F(PPD, ADefaultPaperTypeOf20CharactersAbortsTheProcess) {
  const std::string paper = "ABCDEFGHIJKLMNOPQRST";
  ASSERT_EQ(paper.size(), 20U);
  const test::PrintQueue queue("office", test::smallPPD("*DefaultPaperType: " + paper + "\n"));
  EXPECT_EXIT((void)construct("office"), testing::KilledBySignal(SIGABRT),
              "ERROR: DefaultPaperType \"ABCDEFGHIJKLMNOPQRST\" of the PPD is longer than 19 "
              "bytes");
}

TEST_F(PPD, ADefaultPaperTypeOf40CharactersAbortsTheProcess) {
  const test::PrintQueue queue("office",
                               test::smallPPD("*DefaultPaperType: " + std::string(40, 'x') + "\n"));
  EXPECT_EXIT((void)construct("office"), testing::KilledBySignal(SIGABRT), "^ERROR: ");
}

TEST_F(PPD, TheTemporaryLinkToItIsRemovedOnceItIsOpen) {
  const test::PrintQueue queue("office", test::smallPPD());
  EXPECT_TRUE(construct("office"));
  ASSERT_NE(filter_.ppd, nullptr);
  EXPECT_EQ(queue.leftovers(), Lines());
}

TEST_F(PPD, ItselfIsNeverRemoved) {
  const test::PrintQueue queue("office", test::smallPPD());
  EXPECT_TRUE(construct("office"));
  test::OpenFilter again;
  test::Arguments arguments(test::Arguments::job("office", ""));
  EXPECT_TRUE(again.initWithArgc(arguments.count(), arguments.vector()));
}

TEST_F(PPD, EachQueueHasItsOwn) {
  const test::PrintQueue first("first_floor-2.a", test::smallPPD("*NickName: \"One\"\n"));
  const test::PrintQueue second("second", test::smallPPD("*NickName: \"Two\"\n"));
  EXPECT_TRUE(construct("second"));
  EXPECT_EQ(filter_.printerName, "Two");
  test::OpenFilter other;
  test::Arguments arguments(test::Arguments::job("first_floor-2.a", ""));
  EXPECT_TRUE(other.initWithArgc(arguments.count(), arguments.vector()));
  EXPECT_EQ(other.printerName, "One");
}

TEST_F(PPD, AQueueWithoutOneAndAnEmptyQueueNameFail) {
  const test::PrintQueue queue("office", std::nullopt);
  EXPECT_FALSE(construct("office"));
  test::OpenFilter other;
  test::Arguments arguments(test::Arguments::job("", ""));
  EXPECT_FALSE(other.initWithArgc(arguments.count(), arguments.vector()));
  EXPECT_EQ(log_.count("ASSERT: Unable to get ppd file"), 2U);
  EXPECT_EQ(queue.leftovers(), Lines());
}

TEST_F(PPD, TheEnvironmentsPPDIsNoSubstituteForTheQueues) {
  const test::PrintQueue queue("office", std::nullopt);
  test::TemporaryFolder folder;
  const std::filesystem::path file = folder.write("other.ppd", test::smallPPD());
  const test::EnvironmentVariable variable("PPD", file.native());
  EXPECT_FALSE(construct("office"));
  EXPECT_EQ(log_.count("ASSERT: Unable to get ppd file"), 1U);
}

TEST_F(PPD, TheQueuesGoesBeforeTheEnvironments) {
  const test::PrintQueue queue("office", test::smallPPD("*NickName: \"Queue\"\n"));
  test::TemporaryFolder folder;
  const std::filesystem::path file =
      folder.write("other.ppd", test::smallPPD("*NickName: \"Environment\"\n"));
  const test::EnvironmentVariable variable("PPD", file.native());
  EXPECT_TRUE(construct("office"));
  EXPECT_EQ(filter_.printerName, "Queue");
  EXPECT_TRUE(std::filesystem::exists(file));
}

}  // namespace
}  // namespace gdi
