// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/pages/PageRaster.h"

#include <cstdio>
#include <string>

#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include "halftone/plane_geometry.h"

namespace gdi::bench {

namespace {

bool readHeader(const std::filesystem::path& path, cups_page_header2_t& header) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) {
    return false;
  }
  cups_raster_t* const raster = cupsRasterOpen(descriptor, CUPS_RASTER_READ);
  const bool read = raster != nullptr && cupsRasterReadHeader2(raster, &header) != 0;
  if (raster != nullptr) {
    cupsRasterClose(raster);
  }
  (void)close(descriptor);
  return read;
}

}  // namespace

std::optional<PageRaster> findRaster(const std::filesystem::path& folder, std::string_view page,
                                     std::string_view mode, std::uint32_t width,
                                     std::uint32_t height) {
  const std::string name = std::string(page) + "-" + std::string(mode) + ".ras";
  const std::uint32_t channels = mode == "mono" ? 1 : 4;
  PageRaster found{folder / name, width, height, channels};
  cups_page_header2_t header;
  if (!readHeader(found.path, header)) {
    (void)std::fprintf(stderr, "page_costs: %s is no raster that can be read\n",
                       found.path.c_str());
    return std::nullopt;
  }
  if (header.cupsWidth != width || header.cupsHeight != height ||
      header.cupsBytesPerLine != width * channels) {
    (void)std::fprintf(stderr,
                       "page_costs: %s has %u x %u pixels in lines of %u bytes, not %u x %u"
                       " in lines of %u\n",
                       found.path.c_str(), header.cupsWidth, header.cupsHeight,
                       header.cupsBytesPerLine, width, height, width * channels);
    return std::nullopt;
  }
  return found;
}

double planeMebibytes(const PageRaster& raster, std::string_view quality) {
  const std::uint32_t rowBytes = ditherBitWidthFor(ditherBPPForQuality(quality), raster.width) / 8;
  return static_cast<double>(raster.channels) * rowBytes * raster.height / (1 << 20);
}

}  // namespace gdi::bench
