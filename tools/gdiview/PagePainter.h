// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page as a picture: all its inks in colour or one of them in grey, as stored or turned round.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "reader/Page.h"
#include "tools/gdiview/CellMeans.h"
#include "tools/gdiview/InkMixer.h"
#include "tools/gdiview/Picture.h"
#include "tools/gdiview/PixelRows.h"

namespace gdi::gdiview {

struct PaintOptions {
  // One sample stands for `reduction` x `reduction` pixels and is their mean; the last ones of a
  // row and the last row stand for what is left. > 0.
  std::uint32_t reduction = 1;
  // Turned by 180 degrees: takes back what the back of a sheet is stored like. Cells of the
  // reduction begin at the top left of the turned page.
  bool upright = false;
  // This plane alone, as black ink on white paper; white when the page has no such plane.
  std::optional<reader::Ink> separation = std::nullopt;
};

class PagePainter : public Picture {
 public:
  // `page` must outlive the painter.
  PagePainter(const reader::Page& page, const PaintOptions& options);

  std::span<const std::uint8_t> nextRow() override;

 private:
  // The next row of pixels, a sample each.
  std::span<const std::uint8_t> paintPixels();

  PaintOptions options_;
  std::uint32_t pixelRows_;
  std::uint32_t painted_ = 0;  // rows of pixels
  InkMixer mixer_;
  PixelRows pixels_;
  std::vector<std::uint8_t> samples_;  // of one row of pixels
  CellMeans means_;
};

}  // namespace gdi::gdiview
