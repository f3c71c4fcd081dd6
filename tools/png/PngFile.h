// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One PNG file, a byte a sample, written row by row. It has its name only once it is finished, and
// an older file of that name stays until then; what is not finished is removed.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include <png.h>

namespace gdi {

struct PngColour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const PngColour&) const = default;
};

struct PngLayout {
  std::uint32_t width = 0;     // samples, > 0
  std::uint32_t height = 0;    // rows, > 0
  std::uint32_t channels = 1;  // 1 = grey, 3 = RGB
  std::uint32_t samplesPerMetre = 0;
  // At most 256 colours. When there are any, samples are places in this list and channels is 1;
  // lists of 16 take half a byte a sample in the file, which is then also packed harder.
  std::vector<PngColour> palette = {};
};

class PngFile {
 public:
  // What the file is called until it is finished: `path` with ".part" behind it.
  static std::filesystem::path partPathOf(const std::filesystem::path& path);
  // Null when partPathOf(path) cannot be made or written; errno says why. A file that is left there
  // of an earlier try goes; a folder stays, and is in the way.
  static std::unique_ptr<PngFile> create(const std::filesystem::path& path,
                                         const PngLayout& layout);
  ~PngFile();
  PngFile(const PngFile&) = delete;
  PngFile& operator=(const PngFile&) = delete;
  PngFile(PngFile&&) = delete;
  PngFile& operator=(PngFile&&) = delete;

  // The next row, width x channels bytes, in a palette places that it has. False when it cannot be
  // written; nothing more may be written then.
  bool writeRow(std::span<const std::uint8_t> row);
  // Ends the file after its last row and gives it its name. False when that cannot be done, or not
  // all of it could be written.
  bool finish();

 private:
  PngFile(std::filesystem::path path, std::filesystem::path partPath, std::FILE* file);
  bool writeHeader(const PngLayout& layout);

  std::filesystem::path path_;
  std::filesystem::path partPath_;
  std::FILE* file_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  bool finished_ = false;
};

}  // namespace gdi
