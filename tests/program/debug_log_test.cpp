// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The debug log of a whole job, line by line.

#include <array>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/program/cups_raster.h"
#include "tests/program/filter_process.h"
#include "tests/program/test_bundle.h"

namespace gdi::programtest {
namespace {

// The log's messages; what differs from run to run (paths, addresses) as "...".
std::vector<std::string> messagesOf(const std::string& log) {
  const std::regex prefix(R"(^\d\d/\d\d/\d{4} \d\d:\d\d:\d\d\.\d+ \(\d+\) )");
  const std::regex path(R"((path: |file )/\S+)");
  const std::regex address(R"(0x[0-9a-f]{8,} to 0x[0-9a-f]{8,})");
  std::vector<std::string> messages;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_TRUE(std::regex_search(line, prefix)) << line;
    line = std::regex_replace(line, prefix, "");
    line = std::regex_replace(line, path, "$1...");
    messages.push_back(std::regex_replace(line, address, "..."));
  }
  return messages;
}

std::string hostName() {
  std::array<char, 256> name{};
  EXPECT_EQ(gethostname(name.data(), name.size() - 1), 0);
  return name.data();
}

const std::vector<std::string> kBeforePages{
    "rasterToGDI starting",
    "CUPSFilter initWithArgc:argv",
    "LANG environment variable missing.",
    "CUPSFilter init exiting with result: 1",
    "PlanarFilter init exiting with result: 1",
    "GDIFilter init exiting with result: 1",
};

std::vector<std::string> headerLines() {
  std::vector<std::string> lines;
  for (const char* field : {"AdvanceDistance = none",   "Collate = no",
                            "CutMedia = none",          "Duplex = no",
                            "HWResolution = 600 x 600", "ImagingBoundingBox(l,b,w,h) = 0, 0, 0, 0",
                            "InsertSheet = no",         "Jog = none",
                            "LeadingEdge = top",        "Margins = 0 x 0",
                            "ManualFeed = no",          "MediaPosition = 0",
                            "MediaWeight = 0",          "MirrorPrint = no",
                            "NegativePrint = no",       "NumCopies = 1",
                            "Orientation = 0",          "OutputFaceUp = no",
                            "PageSize = 595 x 842",     "Separations = no",
                            "TraySwitch = no",          "Tumble = no",
                            "cupsWidth = 16",           "cupsHeight = 2",
                            "cupsMediaType = 0",        "cupsBitsPerColor = 8",
                            "cupsBitsPerPixel = 8",     "cupsBytesPerLine = 16",
                            "cupsColorOrder = chunked", "cupsColorSpace = 3",
                            "cupsCompression = 0",      "cupsRowCount = 0",
                            "cupsRowFeed = 0",          "cupsRowStep = 0"}) {
    lines.push_back(std::string("Page header: ") + field);
  }
  return lines;
}

void append(std::vector<std::string>& lines, const std::vector<std::string>& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

TEST(DebugLogOfAJob, AMonoPageLeavesTheseLines) {
  FilterProcess filter;
  const std::filesystem::path bundle = filter.folder() / "bundle";
  writeTestBundle(bundle);
  filter.bundle = bundle;
  filter.debugLog = true;
  filter.options = "media=A4";
  filter.raster = rasterOf(std::vector{RasterPage{.width = 16, .height = 2}});
  const FilterResult result = filter.run();
  ASSERT_EQ(result.exitStatus, 0) << result.errors;
  std::vector<std::string> messages = messagesOf(result.debugLog);
  std::erase_if(messages, [](const std::string& line) { return line.starts_with("ppd attr "); });

  std::vector<std::string> expected = kBeforePages;
  append(expected, {"Option media = A4", "CUPSFilter initWithArgc:argv exiting with result: 1",
                    "CUPSFIlter run: ", "copies: 0", "sidesImaged: 0",
                    "CUPSFIlter run: exiting with result 1",
                    "GDIFilter startJob:", "GDIFilter startJob: exiting - result: 1"});
  append(expected, headerLines());
  append(expected, {"RasterFilter run: rasterByteCount: 16, rasterPixelCount: 16",
                    "GDIFilter startPage: page 0",
                    "hostname = " + hostName(),
                    "PlanarFilter startPage: page 0",
                    "Planar channel size: 32, channelCount: 1",
                    "RasterBandBuffer initWithPixelHeight: height: 2, rowBytes: 16, "
                    "bandHeight: 256, path: ...",
                    "RasterBandBuffer initWithPixelHeight: totalBands: 1, fileSize: 32",
                    "mmapFile openFile: Opening file ... wtih 32 bytes",
                    "mmapFile openFile: Created buffer from ...",
                    "RasterBandBuffer setFlipped: NO, rasterCount: 0, pixelHeight: 2",
                    "PlanarFilter loading screen set: FastPlainMono",
                    "startColorSync skipping OS version 0x1040",
                    "PlanarFilter startPage: exiting - result: 1",
                    "GDIFilter startPage: exiting - result: 1",
                    "GDIFilter sendRaster: wrote K band 0",
                    "RasterFilter run: Processed 2 lines",
                    "RasterFilter endPage: blankAccumulator = 0x00",
                    "GDIFilter endJob:",
                    "GDIFilter endJob: sending JIDG",
                    "RasterFilter run: exiting - result: 1",
                    "rasterToGDI ending with result 0"});
  EXPECT_EQ(messages, expected);
}

TEST(DebugLogOfAJob, TooFewArgumentsLeaveTheseLines) {
  FilterProcess filter;
  filter.debugLog = true;
  filter.arguments = {kQueue, "1", "user", "title", "1"};
  std::vector<std::string> expected = kBeforePages;
  append(expected, {"ASSERT: Not enough arguments", "CUPSFilter initWithArgc:argv failed",
                    "CUPSFilter initWithArgc:argv exiting with result: 0",
                    "rasterToGDI ending with result 1"});
  EXPECT_EQ(messagesOf(filter.run().debugLog), expected);
}

TEST(DebugLogOfAJob, AFillerPageLeavesItsLines) {
  FilterProcess filter;
  const std::filesystem::path bundle = filter.folder() / "bundle";
  writeTestBundle(bundle);
  filter.bundle = bundle;
  filter.debugLog = true;
  filter.options =
      "com.apple.print.PrintSettings.PMDuplexing..n.=2 "
      "com.apple.print.PrintSettings.PMTotalSidesImaged..n.=3";
  filter.raster = rasterOf(std::vector<RasterPage>(3, {.width = 16, .height = 2}));
  std::vector<std::string> lines = messagesOf(filter.run().debugLog);
  std::erase_if(lines, [](const std::string& line) { return !line.starts_with("GDIFilter "); });
  ASSERT_GE(lines.size(), 11U);
  const std::vector<std::string> end(lines.end() - 11, lines.end());
  EXPECT_EQ(
      end,
      (std::vector<std::string>{
          "GDIFilter startPage: exiting - result: 1", "GDIFilter sendRaster: wrote K band 0",
          "GDIFilter blankPage: starting page", "GDIFilter startPage: page 4",
          "GDIFilter startPage: SolvaneFlipDuplex: NO", "GDIFilter startPage: exiting - result: 1",
          "GDIFilter sendRaster: wrote K band 0", "GDIFilter blankPage: ending page",
          "GDIFilter blankPage: complete", "GDIFilter endJob:", "GDIFilter endJob: sending JIDG"}));
}

}  // namespace
}  // namespace gdi::programtest
