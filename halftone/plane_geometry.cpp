// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/plane_geometry.h"

#include "printer/format/job_stream_format.h"

namespace gdi {

std::uint32_t ditherBPPForQuality(std::string_view quality) {
  if (quality == "Standard") {
    return 2;
  }
  return quality == "Fine" ? 4 : 1;
}

std::uint32_t ditherBitWidthFor(std::uint32_t bitsPerPixel, std::uint32_t width) {
  const std::uint32_t wholeBytes = (bitsPerPixel * width + kRowSlackBits + 7) & ~7U;
  return (wholeBytes + kRowBitsMultiple - 1) & ~(kRowBitsMultiple - 1);
}

std::uint32_t ditherBandCountFor(std::uint32_t height, std::uint32_t bandHeight) {
  return (height + bandHeight + 1) / bandHeight;
}

}  // namespace gdi
