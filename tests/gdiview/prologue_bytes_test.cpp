// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/prologue_bytes.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace gdi::gdiview {
namespace {

class PrologueBytes : public testing::Test {
 protected:
  // A bundle whose dictionary has this text under this key.
  std::optional<std::uint64_t> of(const std::string& key, const std::string& text) {
    folder_.write("Info.plist",
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>" +
                      key + "</key><string>" + text + "</string></dict></plist>\n");
    return prologueBytesOf(folder_.path());
  }

  test::TemporaryFolder folder_;
};

TEST_F(PrologueBytes, TextInAsciiHasAsManyBytesAsCharacters) {
  EXPECT_EQ(of("CUPSFileHeader", "@PJL\n"), 5U);
}

TEST_F(PrologueBytes, TextBeyondAsciiIsCountedInUtf16Units) {
  EXPECT_EQ(of("CUPSFileHeader", "Grüße €"), 7U);             // 10 bytes
  EXPECT_EQ(of("CUPSFileHeader", "a\xF0\x9F\x96\xA8z"), 4U);  // 6 bytes: a pair counts two
}

TEST_F(PrologueBytes, AMissingFileTellsNothing) {
  EXPECT_EQ(prologueBytesOf(folder_.path()), std::nullopt);
  EXPECT_EQ(prologueBytesOf(folder_.path() / "missing"), std::nullopt);
}

TEST_F(PrologueBytes, AMissingEntryTellsNothing) {
  EXPECT_EQ(of("CUPSFileFooter", "@PJL\n"), std::nullopt);
}

TEST_F(PrologueBytes, AnEmptyTextIsNoPrologue) {
  EXPECT_EQ(of("CUPSFileHeader", ""), 0U);
}

TEST_F(PrologueBytes, ADictionaryIsSoundAsResources) {
  of("CUPSFileFooter", "@PJL\n");
  EXPECT_EQ(faultOfResources(folder_.path()), "");
}

TEST_F(PrologueBytes, WhatIsNoDictionaryIsRefusedAsResources) {
  EXPECT_EQ(faultOfResources(folder_.path()), "it has no Info.plist");
  folder_.write("Info.plist", "<plist><dict><key>");
  EXPECT_EQ(faultOfResources(folder_.path()), "its Info.plist is no dictionary");
  folder_.write("Info.plist", "<plist version=\"1.0\"><array/></plist>");
  EXPECT_EQ(faultOfResources(folder_.path()), "its Info.plist is no dictionary");
}

}  // namespace
}  // namespace gdi::gdiview
