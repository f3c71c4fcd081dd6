// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The floor, the least that any filter does: reads the CUPS raster on standard input line by line
// and ORs the bytes. Prints the pages and the OR, so that no compiler leaves it out.

#include <cstdint>
#include <cstdio>
#include <vector>

#include <cups/raster.h>
#include <unistd.h>

namespace {

// ORs the page's bytes to `ink`; false when the raster breaks off, which standard error is told.
bool readPage(cups_raster_t* raster, const cups_page_header2_t& header, unsigned& ink) {
  std::vector<std::uint8_t> line(header.cupsBytesPerLine);
  for (unsigned y = 0; y < header.cupsHeight; ++y) {
    if (cupsRasterReadPixels(raster, line.data(), header.cupsBytesPerLine) == 0) {
      (void)std::fprintf(stderr, "read_floor: the raster breaks off at line %u of %u\n", y,
                         header.cupsHeight);
      return false;
    }
    for (const std::uint8_t byte : line) {
      ink |= byte;
    }
  }
  return true;
}

}  // namespace

int main() {
  cups_raster_t* const raster = cupsRasterOpen(STDIN_FILENO, CUPS_RASTER_READ);
  if (raster == nullptr) {
    (void)std::fprintf(stderr, "read_floor: standard input is no raster\n");
    return 1;
  }
  cups_page_header2_t header;
  int pages = 0;
  unsigned ink = 0;
  bool whole = true;
  for (; whole && cupsRasterReadHeader2(raster, &header) != 0; ++pages) {
    whole = readPage(raster, header, ink);
  }
  cupsRasterClose(raster);
  return whole && std::printf("%d %u\n", pages, ink) > 0 ? 0 : 1;
}
