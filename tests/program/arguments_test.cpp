// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the spooler hands over, right and wrong: arguments, PPD, environment.

#include <algorithm>
#include <csignal>

#include <gtest/gtest.h>

#include "tests/program/cups_raster.h"
#include "tests/program/filter_process.h"

namespace gdi::programtest {
namespace {

std::vector<std::uint8_t> onePage() {
  const std::vector<RasterPage> pages{{.width = 40, .height = 4, .sample = noise}};
  return rasterOf(pages);
}

TEST(Arguments, FiveAreTooFew) {
  FilterProcess filter;
  filter.arguments = {kQueue, "1", "user", "title", "1"};
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_TRUE(result.output.empty());
  EXPECT_EQ(result.errors, "");
}

TEST(Arguments, NoneAtAllAreTooFew) {
  FilterProcess filter;
  filter.arguments = {kQueue};
  EXPECT_EQ(filter.run().exitStatus, 1);
}

TEST(Arguments, EightReadStandardInput) {
  FilterProcess filter;
  filter.raster = onePage();
  filter.arguments = {kQueue, "1", "user", "title", "1", "", "/nonexistent", "more"};
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_NE(result.errors.find("INFO: Processing page 1\n"), std::string::npos);
}

TEST(Arguments, AnInputFileThatCannotBeOpenedFailsTheJob) {
  FilterProcess filter;
  filter.arguments = {kQueue, "1", "user", "title", "1", "", "/nonexistent"};
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_TRUE(result.output.empty());
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Arguments, AQueueWithoutAPPDFailsTheJob) {
  FilterProcess filter;
  filter.ppd.reset();
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_TRUE(result.output.empty());
  EXPECT_EQ(result.errors, "");
}

TEST(Arguments, ThePPDOfTheEnvironmentIsNoSubstitute) {
  FilterProcess filter;
  filter.ppd.reset();
  FilterProcess other;
  other.start();
  (void)other.wait();
  filter.environment["PPD"] =
      (other.folder() / "etc/ppd" / (std::string(kQueue) + ".ppd")).string();
  EXPECT_EQ(filter.run().exitStatus, 1);
}

TEST(Arguments, ABrokenPPDIsTolerated) {
  FilterProcess filter;
  filter.ppd = "this is no PPD\n";
  filter.raster = onePage();
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Arguments, TheDefaultPaperTypeComesFromThePPD) {
  FilterProcess filter;
  filter.ppd = ppdText("*DefaultPaperType: Thin\n");
  filter.options = "PaperType=Plain media=A4";
  filter.raster = onePage();
  const FilterResult plain = filter.run();
  filter.options = "PaperType= media=A4";
  const FilterResult byDefault = filter.run();
  ASSERT_EQ(plain.exitStatus, 0) << plain.errors;
  ASSERT_EQ(byDefault.exitStatus, 0) << byDefault.errors;
  // The paper type code stands 10 bytes into the page record.
  const auto paperCode = [](const FilterResult& result) {
    const std::string tag = "GDIP";
    const auto at = std::search(result.output.begin(), result.output.end(), tag.begin(), tag.end());
    return int{*(at + 10)};
  };
  EXPECT_EQ(paperCode(plain), 1);
  EXPECT_EQ(paperCode(byDefault), 15);
}

TEST(Arguments, ADefaultPaperTypeOfTwentyCharactersAbortsTheProcess) {
  FilterProcess filter;
  filter.ppd = ppdText("*DefaultPaperType: " + std::string(20, 'P') + "\n");
  const FilterResult result = filter.run();
  EXPECT_EQ(result.signal, SIGABRT);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Arguments, ADefaultPaperTypeOfNineteenCharactersIsFine) {
  FilterProcess filter;
  filter.ppd = ppdText("*DefaultPaperType: " + std::string(19, 'P') + "\n");
  EXPECT_EQ(filter.run().exitStatus, 0);
}

TEST(Arguments, ProgressIsToldInTheLanguageOfTheJob) {
  FilterProcess filter;
  filter.environment["LANG"] = "de_DE.UTF-8";
  filter.raster = onePage();
  const FilterResult result = filter.run();
  EXPECT_EQ(result.errors.find("INFO: \nINFO: "), 0U) << result.errors;
  EXPECT_NE(result.errors.find("Seite 1"), std::string::npos) << result.errors;
}

TEST(Arguments, ProgressIsToldInEnglishWithoutALanguage) {
  FilterProcess filter;
  filter.raster = onePage();
  EXPECT_EQ(filter.run().errors, "INFO: \nINFO: Processing page 1\n");
}

TEST(Arguments, TheProgramThatShipsPrints) {
  FilterProcess filter;
  filter.raster = onePage();
  filter.program = GDI_SHIPPED_PROGRAM;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0) << result.errors;
  EXPECT_FALSE(result.output.empty());
}

}  // namespace
}  // namespace gdi::programtest
