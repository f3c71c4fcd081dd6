// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Any bytes as a job stream: walked, judged and painted. Every byte is part of one step.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "reader/JobReader.h"
#include "tools/gdiview/PagePainter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const auto ignore = [](const gdi::reader::Finding&) {};

  std::istringstream walked(bytes);
  gdi::reader::JobWalk walk(walked, ignore);
  std::uint64_t seen = 0;
  while (const auto job = walk.next()) {
    if (job->step.offset != seen) {
      std::abort();
    }
    seen += job->step.bytes;
  }
  if (seen != size) {
    std::abort();
  }

  std::istringstream input(bytes);
  gdi::reader::JobReader reader(input, ignore);
  while (const auto page = reader.nextPage()) {
    if (page->rows() == 0 || page->widthPixels() == 0) {
      continue;
    }
    gdi::gdiview::PagePainter painter(*page, {.reduction = 64, .upright = size % 2 != 0});
    for (std::uint32_t row = 0; row < painter.height(); ++row) {
      painter.nextRow();
    }
  }
  return 0;
}
