// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A picture of 8-bit samples that is made row by row, so that nobody needs to hold it.
#pragma once

#include <cstdint>
#include <span>

namespace gdi::gdiview {

class Picture {
 public:
  virtual ~Picture() = default;
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  Picture(Picture&&) = delete;
  Picture& operator=(Picture&&) = delete;

  [[nodiscard]] std::uint32_t width() const { return width_; }        // samples
  [[nodiscard]] std::uint32_t height() const { return height_; }      // sample rows
  [[nodiscard]] std::uint32_t channels() const { return channels_; }  // 1 = grey, 3 = RGB

  // The next row, width() x channels() bytes, valid until the next call.
  // requires: fewer than height() calls before
  virtual std::span<const std::uint8_t> nextRow() = 0;

 protected:
  Picture(std::uint32_t width, std::uint32_t height, std::uint32_t channels)
      : width_(width), height_(height), channels_(channels) {}

 private:
  std::uint32_t width_;
  std::uint32_t height_;
  std::uint32_t channels_;
};

}  // namespace gdi::gdiview
