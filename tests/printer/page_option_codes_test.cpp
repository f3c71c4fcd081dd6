// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/page_option_codes.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace gdi {
namespace {

struct Row {
  const char* name;
  int code;
};

std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.name << " = " << row.code;
}

std::string rowName(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

class PaperType : public testing::TestWithParam<Row> {};
class InputTray : public testing::TestWithParam<Row> {};
class MediaSize : public testing::TestWithParam<Row> {};

TEST_P(PaperType, HasThePrintersCodeWhateverThePPDSays) {
  EXPECT_EQ(paperTypeCode(GetParam().name, ""), GetParam().code);
  EXPECT_EQ(paperTypeCode(GetParam().name, "Thin"), GetParam().code);
}
INSTANTIATE_TEST_SUITE_P(Named, PaperType,
                         testing::Values(Row{"Thin", 15}, Row{"Plain", 1}, Row{"Plain90", 16},
                                         Row{"Recycled", 2}, Row{"Color", 3}, Row{"Preprinted", 5},
                                         Row{"Prepunched", 6}, Row{"Thick", 12},
                                         Row{"Thick160", 13}, Row{"Letterhead", 4}, Row{"Bond", 8},
                                         Row{"Cardstock", 9}, Row{"Labels", 7},
                                         Row{"Envelope", 14}),
                         rowName);

TEST(PaperTypeCode, OfAnUnknownOrMissingNameIsPlain) {
  EXPECT_EQ(paperTypeCode("Glossy", ""), 1);
  EXPECT_EQ(paperTypeCode("", ""), 1);
  EXPECT_EQ(paperTypeCode("", "Plain90"), 1);
}

TEST(PaperTypeCode, OfAnUnknownOrMissingNameIsThinWhenThePPDsDefaultIsExactlyThin) {
  EXPECT_EQ(paperTypeCode("Glossy", "Thin"), 15);
  EXPECT_EQ(paperTypeCode("", "Thin"), 15);
  EXPECT_EQ(paperTypeCode("", "thin"), 1);
  EXPECT_EQ(paperTypeCode("", "Thin "), 1);
  EXPECT_EQ(paperTypeCode("", "Thinner"), 1);
}

TEST(PaperTypeCode, ComparesNamesWithTheirCase) {
  EXPECT_EQ(paperTypeCode("plain", ""), 1);
  EXPECT_EQ(paperTypeCode("plain", "Thin"), 15);
  EXPECT_EQ(paperTypeCode("recycled", ""), 1);
  EXPECT_EQ(paperTypeCode("Thick1", ""), 1);
}

TEST_P(InputTray, HasThePrintersCode) {
  EXPECT_EQ(inputTrayCode(GetParam().name), GetParam().code);
}
INSTANTIATE_TEST_SUITE_P(Named, InputTray,
                         testing::Values(Row{"Automatic", 0}, Row{"Manual", 1}, Row{"Tray1", 2},
                                         Row{"Tray2", 3}, Row{"Tray3", 4}, Row{"Tray4", 5}),
                         rowName);

TEST(InputTrayCode, OfAnUnknownOrMissingNameIsAutomatic) {
  EXPECT_EQ(inputTrayCode("Tray5"), 0);
  EXPECT_EQ(inputTrayCode("manual"), 0);
  EXPECT_EQ(inputTrayCode(""), 0);
}

TEST_P(MediaSize, HasThePrintersCode) {
  EXPECT_EQ(mediaSizeCode(GetParam().name), GetParam().code);
}
INSTANTIATE_TEST_SUITE_P(
    Named, MediaSize,
    testing::Values(Row{"Ledger", 0x11}, Row{"Legal", 0x05}, Row{"Letter", 0x01},
                    Row{"Executive", 0x07}, Row{"HalfLetter", 0x06}, Row{"A3", 0x08},
                    Row{"A4", 0x09}, Row{"A5", 0x0B}, Row{"A6", 0x46}, Row{"B4", 0x0C},
                    Row{"JISB5", 0x0D}, Row{"B6", 0x58}, Row{"FS", 0x10}, Row{"Folio", 0x0F},
                    Row{"Foolscap", 0x0E}, Row{"Env10", 0x14}, Row{"Monarch", 0x25},
                    Row{"EnvDL", 0x1B}, Row{"EnvC5", 0x1C}, Row{"EnvC6", 0x1F}, Row{"Kai8", 0x5C},
                    Row{"Kai16", 0x5D}, Row{"Postcard", 0x2B}, Row{"ReplyPaid", 0x45}),
    rowName);

TEST(MediaSizeCode, OfAnyOtherNameIsCustom) {
  EXPECT_EQ(mediaSizeCode("Custom.200x300mm"), 255);
  EXPECT_EQ(mediaSizeCode("a4"), 255);
  EXPECT_EQ(mediaSizeCode("A4 "), 255);
  EXPECT_EQ(mediaSizeCode("A"), 255);
}

TEST(MediaSizeCode, OfNoNameIsLetter) {
  EXPECT_EQ(mediaSizeCode(""), 1);
}

}  // namespace
}  // namespace gdi
