// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/screened_band.h"

#include <memory>

#include "halftone/plane_geometry.h"
#include "halftone/screens/Halftoner.h"
#include "platform/NSBundle.h"

namespace gdi::bench {

namespace {

const char* screenSetOf(int depth) {
  switch (depth) {
    case 1:
      return "FastPlainMono";
    case 2:
      return "StandardPlainMono";
    default:
      return "FinePlainMono";
  }
}

}  // namespace

ScreenedBand screenedBand(Content content, int depth) {
  NSBundle::setMainBundle(GDI_BUNDLE);
  const auto halftoner = Halftoner::initWithScreenSetKey(screenSetOf(depth));
  ScreenedBand band{ditherBitWidthFor(static_cast<std::uint32_t>(depth), kPixels) / 8, {}};
  band.bytes.resize(std::size_t{kBandRows} * band.rowBytes);
  for (std::uint32_t row = 0; halftoner != nullptr && row < kBandRows; ++row) {
    const std::vector<std::uint8_t> line = chunkyLine(content, 1, static_cast<int>(row));
    std::uint8_t* const planeRow = band.bytes.data() + std::size_t{row} * band.rowBytes;
    (void)halftoner->halftoneChunkyScanlineToPlanar(line.data(), kPixels, static_cast<int>(row),
                                                    {&planeRow, 1}, 1);
  }
  return band;
}

}  // namespace gdi::bench
