// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/compressed_bytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <vector>

#include "codec/pc4sc4.h"
#include "halftone/plane_geometry.h"
#include "printer/format/job_stream_format.h"

namespace gdi::samplepages {
namespace {

constexpr int kMaxDepth = 4;
static_assert(std::uint32_t{kMaxDepth} * kMaxSide + kRowSlackBits + kRowBitsMultiple <= kMaxRowBits,
              "the printer takes the rows of every page");

// One band of every plane, and what the codec needs to compress it.
class Bands {
 public:
  Bands(const PageShape& shape, std::span<const HalftoneScreen* const> screens, int depth)
      : shape_(shape),
        screens_(screens),
        depth_(depth),
        rowBytes_(ditherBitWidthFor(static_cast<std::uint32_t>(depth),
                                    static_cast<std::uint32_t>(shape.width)) /
                  8),
        planes_(screens.size(), std::vector<std::uint8_t>(std::size_t{kBandHeight} * rowBytes_)),
        compressed_(worstCaseBandBytes(kBandHeight, rowBytes_)),
        seedRow_(rowBytes_) {}

  // Screens scanline `y` of the page into its row of the band.
  void screen(int y, std::span<const std::uint8_t> scanline) {
    const std::size_t row = static_cast<std::size_t>(y) % kBandHeight;
    for (std::size_t plane = 0; plane < planes_.size(); ++plane) {
      (void)screens_[plane]->processScanline(&scanline[plane], shape_.width, shape_.channels, y,
                                             &planes_[plane][row * rowBytes_], depth_);
    }
  }

  // The compressed size of the `rows` rows there are, of all planes. The last plane that the
  // printer gets, yellow or the only one, ends the page.
  std::uint64_t compress(std::uint32_t rows, bool lastBand) {
    constexpr std::size_t kYellow = 2;
    const std::size_t lastPlane = planes_.size() == 1 ? 0 : kYellow;
    std::uint64_t bytes = 0;
    for (std::size_t plane = 0; plane < planes_.size(); ++plane) {
      bytes += qbx_Compress_PC4SC4(planes_[plane].data(), rows * rowBytes_, compressed_.data(),
                                   static_cast<std::uint32_t>(compressed_.size()), rowBytes_,
                                   seedRow_.data(), lastBand && plane == lastPlane);
    }
    return bytes;
  }

 private:
  PageShape shape_;
  std::span<const HalftoneScreen* const> screens_;
  int depth_;
  std::uint32_t rowBytes_;
  std::vector<std::vector<std::uint8_t>> planes_;
  std::vector<std::uint8_t> compressed_;  // room for the worst band: the codec never refuses
  std::vector<std::uint8_t> seedRow_;
};

}  // namespace

std::optional<std::uint64_t> compressedBytes(const PageSource& page,
                                             std::span<const HalftoneScreen* const> screens,
                                             int depth) {
  const PageShape& shape = page.shape();
  if (depth != 1 && depth != 2 && depth != kMaxDepth) {
    (void)std::fprintf(stderr, "ERROR: the printer takes no %d bits a pixel\n", depth);
    return std::nullopt;
  }
  const auto planes = static_cast<std::size_t>(shape.channels);
  if (screens.size() < planes || (planes > 1 && screens.size() != planes) ||
      std::ranges::count(screens, nullptr) > 0) {
    (void)std::fprintf(stderr, "ERROR: a page of %d channels cannot take %zu screens\n",
                       shape.channels, screens.size());
    return std::nullopt;
  }
  Bands bands(shape, screens.last(planes), depth);
  std::vector<std::uint8_t> scanline(page.rowBytes());
  std::uint64_t bytes = 0;
  for (int y = 0; y < shape.height; ++y) {
    (void)page.scanline(y, scanline);
    bands.screen(y, scanline);
    const bool lastRow = y + 1 == shape.height;
    const std::uint32_t rows = static_cast<std::uint32_t>(y) % kBandHeight + 1;
    if (lastRow || rows == kBandHeight) {
      bytes += bands.compress(rows, lastRow);
    }
  }
  return bytes;
}

}  // namespace gdi::samplepages
