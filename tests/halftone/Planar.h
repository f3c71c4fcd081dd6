// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The planar stage as tests drive it, page by page and line by line.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "halftone/PlanarFilter.h"
#include "halftone/plane_geometry.h"

namespace gdi::test {

// The stage on its own, with the part of the printer's stage that it relies on.
class Planar : public PlanarFilter {
 public:
  void setPage(const cups_page_header_t& header, const OptionsDict& options = {}) {
    cupsPageHeader = header;
    optionsDict = options;
    ditherBPP = ditherBPPForQuality(optionValueOr(options, "Gradiation", "Fast"));
    ditherBitWidth = ditherBitWidthFor(ditherBPP, header.cupsWidth);
    ditherRowBytes = ditherBitWidth / 8;
  }
  bool begin(const cups_page_header_t& header, const OptionsDict& options = {}) {
    setPage(header, options);
    return allocRasterBuffer() && startPage(0);
  }
  bool sendLine(std::uint32_t line, const std::vector<std::uint8_t>& bytes) {
    std::memcpy(rasterBuffer.data(), bytes.data(), bytes.size());
    rasterLineNumber = line;
    return sendRaster();
  }
  // Row `row` of the plane in memory.
  [[nodiscard]] std::vector<std::uint8_t> planeRow(std::size_t plane, int row) const {
    const std::uint8_t* bytes = rasterBand.at(plane)->rasterLine(row);
    return {bytes, bytes + ditherRowBytes};
  }

  using PlanarFilter::channelCount;
  using PlanarFilter::colorWorld;
  using PlanarFilter::cupsICCProfile;
  using PlanarFilter::ditherBandHeight;
  using PlanarFilter::ditherRowBytes;
  using PlanarFilter::flip;
  using PlanarFilter::halftoneKey;
  using PlanarFilter::halftoner;
  using PlanarFilter::rasterBand;
  using PlanarFilter::rasterBuffer;
  using PlanarFilter::sourceBitmap;
};

}  // namespace gdi::test
