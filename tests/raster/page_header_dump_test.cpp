// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/page_header_dump.h"

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/DebugLogCapture.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;

// The value that the dump of `header` gives behind "Page header: FIELD = ".
std::string dumped(const cups_page_header_t& header, const std::string& field) {
  const test::DebugLogCapture log;
  dumpPageHeaders(header);
  const std::string start = "Page header: " + field + " = ";
  for (const std::string& line : log.lines()) {
    if (line.starts_with(start)) {
      return line.substr(start.size());
    }
  }
  return "no such line";
}

// Puts a number into a field, also one that no enumerator stands for.
template <typename Field>
void put(cups_page_header_t& header, Field cups_page_header_t::*field, unsigned value) {
  std::memcpy(&(header.*field), &value, sizeof value);
}

// The words that the dump gives for the values 0, 1, 2, ..., one more than there are, and -1.
template <typename Field>
Lines words(Field cups_page_header_t::*field, const std::string& name, unsigned count) {
  Lines found;
  for (unsigned value = 0; value <= count; ++value) {
    cups_page_header_t header{};
    put(header, field, value);
    found.push_back(dumped(header, name));
  }
  cups_page_header_t header{};
  put(header, field, 0xFFFFFFFF);
  found.push_back(dumped(header, name));
  return found;
}

TEST(PageHeaderDump, WritesEveryFieldInOrder) {
  cups_page_header_t header{};
  header.AdvanceDistance = 1;
  header.AdvanceMedia = CUPS_ADVANCE_PAGE;
  header.Collate = CUPS_TRUE;
  header.CutMedia = CUPS_CUT_SET;
  header.Duplex = CUPS_FALSE;
  header.HWResolution[0] = 600;
  header.HWResolution[1] = 1200;
  for (unsigned i = 0; i < 4; ++i) {
    header.ImagingBoundingBox[i] = 10 + i;
  }
  header.InsertSheet = CUPS_TRUE;
  header.Jog = CUPS_JOG_FILE;
  header.LeadingEdge = CUPS_EDGE_RIGHT;
  header.Margins[0] = 21;
  header.Margins[1] = 22;
  header.ManualFeed = CUPS_FALSE;
  header.MediaPosition = 23;
  header.MediaWeight = 24;
  header.MirrorPrint = CUPS_TRUE;
  header.NegativePrint = CUPS_FALSE;
  header.NumCopies = 4000000000U;
  header.Orientation = CUPS_ORIENT_90;
  header.OutputFaceUp = CUPS_TRUE;
  header.PageSize[0] = 595;
  header.PageSize[1] = 842;
  header.Separations = CUPS_FALSE;
  header.TraySwitch = CUPS_TRUE;
  header.Tumble = CUPS_FALSE;
  header.cupsWidth = 31;
  header.cupsHeight = 32;
  header.cupsMediaType = 33;
  header.cupsBitsPerColor = 34;
  header.cupsBitsPerPixel = 35;
  header.cupsBytesPerLine = 36;
  header.cupsColorOrder = CUPS_ORDER_BANDED;
  header.cupsColorSpace = CUPS_CSPACE_CMYK;
  header.cupsCompression = 38;
  header.cupsRowCount = 39;
  header.cupsRowFeed = 40;
  header.cupsRowStep = 41;
  const test::DebugLogCapture log;
  dumpPageHeaders(header);
  EXPECT_EQ(log.lines(), (Lines{"Page header: AdvanceDistance = file",
                                "Page header: Collate = yes",
                                "Page header: CutMedia = set",
                                "Page header: Duplex = no",
                                "Page header: HWResolution = 600 x 1200",
                                "Page header: ImagingBoundingBox(l,b,w,h) = 10, 11, 12, 13",
                                "Page header: InsertSheet = yes",
                                "Page header: Jog = file",
                                "Page header: LeadingEdge = right",
                                "Page header: Margins = 21 x 22",
                                "Page header: ManualFeed = no",
                                "Page header: MediaPosition = 23",
                                "Page header: MediaWeight = 24",
                                "Page header: MirrorPrint = yes",
                                "Page header: NegativePrint = no",
                                "Page header: NumCopies = 4000000000",
                                "Page header: Orientation = 90",
                                "Page header: OutputFaceUp = yes",
                                "Page header: PageSize = 595 x 842",
                                "Page header: Separations = no",
                                "Page header: TraySwitch = yes",
                                "Page header: Tumble = no",
                                "Page header: cupsWidth = 31",
                                "Page header: cupsHeight = 32",
                                "Page header: cupsMediaType = 33",
                                "Page header: cupsBitsPerColor = 34",
                                "Page header: cupsBitsPerPixel = 35",
                                "Page header: cupsBytesPerLine = 36",
                                "Page header: cupsColorOrder = banded",
                                "Page header: cupsColorSpace = 6",
                                "Page header: cupsCompression = 38",
                                "Page header: cupsRowCount = 39",
                                "Page header: cupsRowFeed = 40",
                                "Page header: cupsRowStep = 41"}));
}

// The alternating answers above cannot tell every two booleans apart; here each is alone.
TEST(PageHeaderDump, EachBooleanIsItsOwnField) {
  const std::vector<std::pair<cups_bool_t cups_page_header_t::*, std::string>> fields{
      {&cups_page_header_t::Collate, "Collate"},
      {&cups_page_header_t::Duplex, "Duplex"},
      {&cups_page_header_t::InsertSheet, "InsertSheet"},
      {&cups_page_header_t::ManualFeed, "ManualFeed"},
      {&cups_page_header_t::MirrorPrint, "MirrorPrint"},
      {&cups_page_header_t::NegativePrint, "NegativePrint"},
      {&cups_page_header_t::OutputFaceUp, "OutputFaceUp"},
      {&cups_page_header_t::Separations, "Separations"},
      {&cups_page_header_t::TraySwitch, "TraySwitch"},
      {&cups_page_header_t::Tumble, "Tumble"}};
  for (const auto& [field, name] : fields) {
    cups_page_header_t header{};
    header.*field = CUPS_TRUE;
    const test::DebugLogCapture log;
    dumpPageHeaders(header);
    EXPECT_EQ(log.count("Page header: " + name + " = yes"), 1U);
    Lines lines = log.lines();
    EXPECT_EQ(std::erase_if(lines, [](const std::string& line) { return line.ends_with(" yes"); }),
              1U)
        << name;
  }
}

TEST(PageHeaderDump, ABooleanIsYesForAnythingButZero) {
  cups_page_header_t header{};
  EXPECT_EQ(dumped(header, "Tumble"), "no");
  put(header, &cups_page_header_t::Tumble, 2);
  EXPECT_EQ(dumped(header, "Tumble"), "yes");
}

TEST(PageHeaderDump, TheAdvanceDistanceIsLookedUpInTheAdvanceWords) {
  EXPECT_EQ(words(&cups_page_header_t::AdvanceDistance, "AdvanceDistance", 5),
            (Lines{"none", "file", "job", "set", "page", "unknown", "unknown"}));
  cups_page_header_t header{};
  header.AdvanceDistance = 72;
  EXPECT_EQ(dumped(header, "AdvanceDistance"), "unknown");
}

TEST(PageHeaderDump, TheAdvanceMediaIsNotWritten) {
  cups_page_header_t header{};
  header.AdvanceMedia = CUPS_ADVANCE_PAGE;
  EXPECT_EQ(dumped(header, "AdvanceDistance"), "none");
  EXPECT_EQ(dumped(header, "AdvanceMedia"), "no such line");
}

TEST(PageHeaderDump, TheCutWordsEndAtPage) {
  EXPECT_EQ(words(&cups_page_header_t::CutMedia, "CutMedia", 5),
            (Lines{"none", "file", "job", "set", "page", "unknown", "unknown"}));
}

TEST(PageHeaderDump, TheJogWordsEndAtSet) {
  EXPECT_EQ(words(&cups_page_header_t::Jog, "Jog", 4),
            (Lines{"none", "file", "job", "set", "unknown", "unknown"}));
}

TEST(PageHeaderDump, TheEdgeWordsEndAtLeft) {
  EXPECT_EQ(words(&cups_page_header_t::LeadingEdge, "LeadingEdge", 4),
            (Lines{"top", "right", "bottom", "left", "unknown", "unknown"}));
}

TEST(PageHeaderDump, OrientationTwoIs280) {
  EXPECT_EQ(words(&cups_page_header_t::Orientation, "Orientation", 4),
            (Lines{"0", "90", "280", "270", "unknown", "unknown"}));
}

TEST(PageHeaderDump, TheColourOrderWordsEndAtPlanar) {
  EXPECT_EQ(words(&cups_page_header_t::cupsColorOrder, "cupsColorOrder", 3),
            (Lines{"chunked", "banded", "planar", "unknown", "unknown"}));
}

TEST(PageHeaderDump, AColourSpaceWithoutANameIsItsNumber) {
  cups_page_header_t header{};
  put(header, &cups_page_header_t::cupsColorSpace, 4000000000U);
  EXPECT_EQ(dumped(header, "cupsColorSpace"), "4000000000");
}

TEST(PageHeaderDump, WritesNothingWhileTheLogIsOff) {
  const test::DebugLogCapture log(test::DebugLogCapture::Marker::kAbsent);
  testing::internal::CaptureStderr();
  dumpPageHeaders(cups_page_header_t{});
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(log.text(), "");
}

}  // namespace
}  // namespace gdi
