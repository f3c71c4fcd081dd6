// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/gdiview/png_reader.h"

#include <cstdio>

#include <png.h>

namespace gdi::gdiview {

PngPicture readPng(const std::filesystem::path& path) {
  PngPicture picture;
  std::FILE* file = std::fopen(path.c_str(), "rbe");
  if (file == nullptr) {
    return picture;
  }
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
  picture.width = png_get_image_width(png, info);
  picture.height = png_get_image_height(png, info);
  picture.channels = png_get_channels(png, info);
  picture.samplesPerMetre = png_get_x_pixels_per_meter(png, info);
  png_bytepp rows = png_get_rows(png, info);
  for (std::uint32_t y = 0; y < picture.height; ++y) {
    picture.samples.insert(picture.samples.end(), rows[y], rows[y] + png_get_rowbytes(png, info));
  }
  png_destroy_read_struct(&png, &info, nullptr);
  (void)std::fclose(file);
  return picture;
}

}  // namespace gdi::gdiview
