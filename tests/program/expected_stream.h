// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job stream as its format describes it, built without the filter's code: records from literal
// offsets, planes from the test screens' formula, bands by a second, plain encoder.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tests/program/cups_raster.h"
#include "tests/program/test_bundle.h"

namespace gdi::programtest {

using Bytes = std::vector<std::uint8_t>;

struct ExpectedPage {
  RasterPage page;
  std::uint32_t number = 0;
  bool upsideDown = false;  // flipped and mirrored
  std::uint8_t media = 1;
  std::uint8_t tray = 0;
  std::uint8_t paper = 1;
};

struct ExpectedJob {
  std::string prologue = kPrologue;
  std::string name = "Title";
  std::string user = "user";
  std::uint32_t copies = 1;
  std::uint32_t depth = 1;  // bits a plane pixel
  std::vector<ExpectedPage> pages;
  bool ends = true;  // with the end-of-job mark
};

// The page's micrometres, known for A4 (595 x 842 points) and Letter (612 x 792) only.
Bytes expectedJobStream(const ExpectedJob& job);

// One plane's rows as they stand in the stream, packed and padded.
std::vector<Bytes> expectedPlane(const ExpectedPage& expected, std::uint32_t plane,
                                 std::uint32_t depth);

// The output with the job record's four date bytes set to zero, as expectedJobStream has them.
Bytes withoutDate(Bytes output, std::size_t prologueBytes = sizeof kPrologue - 1);

}  // namespace gdi::programtest
