// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One tile-based screening table, which turns a channel of an 8-bit scanline into packed pixels.
//
// Every cell of the tile holds an output value for each input level. The tile repeats across and
// down the page from the first pixel of scanline 0. Immutable once loaded.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "halftone/screens/ThresholdTile.h"
#include "halftone/screens/depth.h"
#include "halftone/screens/screen_header.h"

namespace gdi {

class HalftoneScreen {
 public:
  // The screen in the file; null, silently, when it cannot be read, or as loadFromData refuses it.
  static std::unique_ptr<HalftoneScreen> initWithFile(const std::filesystem::path& path);

  // The screen in a file's bytes: header text, a zero byte, and the table, its entries in the order
  // row, column, level, packed from the most significant bits down. Null, with one line on standard
  // error, for anything else.
  static std::unique_ptr<HalftoneScreen> loadFromData(std::span<const std::uint8_t> data);

  // Screens one channel of one scanline.
  //   input         the channel's first sample, then one every `inputStride` bytes
  //   width         pixels; below 1 nothing is written
  //   row           the page's scanline number, from 0
  //   outputBuffer  receives exactly ceil(width x outputDepth / 8) bytes, the first pixel in the
  //                 most significant bits, zeros after the last
  //   outputDepth   1, 2, 4 or 8 bits a pixel: deeper entries are cut to their top bits, shallower
  //                 ones taken as they are
  // True; false, with one line on standard error and nothing written, for any other depth.
  bool processScanline(const std::uint8_t* input, int width, int inputStride, int row,
                       std::uint8_t* outputBuffer, int outputDepth) const;

  [[nodiscard]] const ScreenHeader& header() const { return header_; }
  // The table, one entry a byte, in the order row, column, level; unpacked at each call.
  [[nodiscard]] std::vector<std::uint8_t> table() const;
  // Whether a sample of 0 prints 0 in every cell, at every depth.
  [[nodiscard]] bool leavesPaperBlank() const { return leavesPaperBlank_; }

 private:
  HalftoneScreen(const ScreenHeader& header, std::span<const std::uint8_t> table);

  ScreenHeader header_;
  std::vector<std::uint8_t> packedTable_;    // as in the file, when every cell rises;
  std::optional<ThresholdTile> thresholds_;  // then, too
  std::vector<std::uint8_t> unpackedData_;   // otherwise: the table, one entry a byte
  bool leavesPaperBlank_ = true;
};

}  // namespace gdi
