// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/Gestalt.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/NSBundle.h"
#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

TEST(SystemVersion, HasOneDecimalDigitToFourBits) {
  EXPECT_EQ(systemVersionFromText("10.4.0"), 0x1040);
  EXPECT_EQ(systemVersionFromText("10.2.9"), 0x1029);
  EXPECT_EQ(systemVersionFromText("11.0.1"), 0x1101);
  EXPECT_EQ(systemVersionFromText("9.2.2"), 0x0922);
}

TEST(SystemVersion, NeedsNoBugFixNumber) {
  EXPECT_EQ(systemVersionFromText("10.4"), 0x1040);
}

TEST(SystemVersion, CapsMinorAndBugFixNumbersAtNine) {
  EXPECT_EQ(systemVersionFromText("10.4.11"), 0x1049);
  EXPECT_EQ(systemVersionFromText("10.15.7"), 0x1097);
  EXPECT_EQ(systemVersionFromText("10.99999999999999999999.0"), 0x1090);
}

TEST(SystemVersion, RefusesEverythingElse) {
  for (const char* text :
       {"", "10", "10.", "10.4.", ".4.0", "10..0", "10.4.0.1", "10.4.0 ", " 10.4.0", "10.-4.0",
        "+10.4.0", "100.4.0", "x.y.z", "10,4,0", "99999999999999999999.1"}) {
    EXPECT_EQ(systemVersionFromText(text), std::nullopt) << text;
  }
}

// What Gestalt answers when Info.plist is `information`: its error in `error`, 77 where it leaves
// the response as it is.
std::int32_t answerWith(const std::string& information, std::int32_t& error) {
  const TemporaryFolder folder;
  folder.write("Info.plist", information);
  NSBundle::setMainBundle(folder.path());
  std::int32_t response = 77;
  error = Gestalt(gestaltSystemVersion, &response);
  return response;
}

TEST(Gestalt, AnswersTheBundlesSystemVersion) {
  std::int32_t error = 77;
  EXPECT_EQ(answerWith("{ SystemVersion = \"10.2.8\"; }", error), 0x1028);
  EXPECT_EQ(error, 0);
}

TEST(Gestalt, FailsWithoutASystemVersionAndLeavesTheResponse) {
  std::int32_t error = 0;
  EXPECT_EQ(answerWith("{ Other = \"10.2.8\"; }", error), 77);
  EXPECT_EQ(error, -5550);
}

TEST(Gestalt, FailsWithAMalformedSystemVersionAndLeavesTheResponse) {
  std::int32_t error = 0;
  EXPECT_EQ(answerWith("{ SystemVersion = \"newest\"; }", error), 77);
  EXPECT_EQ(error, -5550);
}

TEST(Gestalt, FailsWithoutAnInformationDictionary) {
  NSBundle::setMainBundle("/nowhere");
  std::int32_t response = 77;
  EXPECT_EQ(Gestalt(gestaltSystemVersion, &response), -5550);
  EXPECT_EQ(response, 77);
}

TEST(Gestalt, KnowsNoOtherSelector) {
  std::int32_t response = 77;
  EXPECT_EQ(Gestalt(0x73797331, &response), -5551);  // 'sys1'
  EXPECT_EQ(response, 77);
}

}  // namespace
}  // namespace gdi
