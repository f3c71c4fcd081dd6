// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/png/PngFile.h"

#include <cerrno>
#include <csetjmp>
#include <utility>

#include <unistd.h>

namespace gdi {

namespace {

// Halftones are full of repetition: more effort than this costs time and saves little.
constexpr int kCompressionLevel = 3;
// Pictures with a palette are few and kept.
constexpr int kPaletteCompressionLevel = 9;
constexpr std::size_t kColoursOfHalfAByte = 16;

int colourTypeOf(const PngLayout& layout) {
  if (!layout.palette.empty()) {
    return PNG_COLOR_TYPE_PALETTE;
  }
  return layout.channels == 1 ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_RGB;
}

std::vector<png_color> paletteOf(const PngLayout& layout) {
  std::vector<png_color> palette;
  for (const PngColour& colour : layout.palette) {
    palette.push_back({colour.red, colour.green, colour.blue});
  }
  return palette;
}

}  // namespace

std::filesystem::path PngFile::partPathOf(const std::filesystem::path& path) {
  std::filesystem::path part = path;
  part += ".part";
  return part;
}

std::unique_ptr<PngFile> PngFile::create(const std::filesystem::path& path,
                                         const PngLayout& layout) {
  std::filesystem::path partPath = partPathOf(path);
  if (::unlink(partPath.c_str()) != 0 && errno != ENOENT) {
    return nullptr;
  }
  // A file of this run's own, never what a link of that name leads to.
  std::FILE* file = std::fopen(partPath.c_str(), "wbex");
  if (file == nullptr) {
    return nullptr;
  }
  std::unique_ptr<PngFile> png(new PngFile(path, std::move(partPath), file));
  if (!png->writeHeader(layout)) {
    return nullptr;
  }
  return png;
}

PngFile::PngFile(std::filesystem::path path, std::filesystem::path partPath, std::FILE* file)
    : path_(std::move(path)), partPath_(std::move(partPath)), file_(file) {
}

PngFile::~PngFile() {
  const int error = errno;
  png_destroy_write_struct(&png_, &info_);
  if (file_ != nullptr) {
    (void)std::fclose(file_);
  }
  if (!finished_) {
    (void)::unlink(partPath_.c_str());
  }
  errno = error;
}

// libpng leaves a failed call with longjmp, to a place behind the objects with destructors in the
// three below.
// NOLINTBEGIN(cert-err52-cpp): libpng knows no other way to report an error.
bool PngFile::writeHeader(const PngLayout& layout) {
  const std::vector<png_color> palette = paletteOf(layout);
  const bool halfBytes = !palette.empty() && palette.size() <= kColoursOfHalfAByte;
  // libpng's messages are dropped: errno tells the person more.
  png_ = png_create_write_struct(
      PNG_LIBPNG_VER_STRING, nullptr, [](png_structp png, png_const_charp) { png_longjmp(png, 1); },
      [](png_structp, png_const_charp) {});
  info_ = png_ == nullptr ? nullptr : png_create_info_struct(png_);
  if (info_ == nullptr) {
    errno = ENOMEM;
    return false;
  }
  if (setjmp(png_jmpbuf(png_)) != 0) {
    return false;
  }
  png_init_io(png_, file_);
  png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_set_IHDR(png_, info_, layout.width, layout.height, halfBytes ? 4 : 8, colourTypeOf(layout),
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_pHYs(png_, info_, layout.samplesPerMetre, layout.samplesPerMetre, PNG_RESOLUTION_METER);
  if (!palette.empty()) {
    png_set_PLTE(png_, info_, palette.data(), static_cast<int>(palette.size()));
  }
  png_set_compression_level(png_, palette.empty() ? kCompressionLevel : kPaletteCompressionLevel);
  png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_write_info(png_, info_);
  png_set_packing(png_);
  return true;
}

bool PngFile::writeRow(std::span<const std::uint8_t> row) {
  if (setjmp(png_jmpbuf(png_)) != 0) {
    return false;
  }
  png_write_row(png_, row.data());
  return true;
}

bool PngFile::finish() {
  if (setjmp(png_jmpbuf(png_)) != 0) {
    return false;
  }
  png_write_end(png_, nullptr);
  std::FILE* file = std::exchange(file_, nullptr);
  finished_ = std::fclose(file) == 0 && std::rename(partPath_.c_str(), path_.c_str()) == 0;
  return finished_;
}
// NOLINTEND(cert-err52-cpp)

}  // namespace gdi
