// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/program/cups_raster.h"

namespace gdi::programtest {

namespace {

ssize_t appendTo(void* context, unsigned char* bytes, std::size_t count) {
  auto& stream = *static_cast<std::vector<std::uint8_t>*>(context);
  stream.insert(stream.end(), bytes, bytes + count);
  return static_cast<ssize_t>(count);
}

}  // namespace

cups_page_header2_t headerOf(const RasterPage& page) {
  cups_page_header2_t header{};
  header.HWResolution[0] = header.HWResolution[1] = 600;
  header.NumCopies = page.copies;
  header.PageSize[0] = page.pointsWide;
  header.PageSize[1] = page.pointsHigh;
  header.cupsWidth = page.width;
  header.cupsHeight = page.height;
  header.cupsBitsPerColor = 8;
  header.cupsBitsPerPixel = 8 * page.channels;
  header.cupsBytesPerLine = page.channels * page.width;
  header.cupsColorOrder = CUPS_ORDER_CHUNKED;
  header.cupsColorSpace = page.channels == 4 ? CUPS_CSPACE_CMYK : CUPS_CSPACE_K;
  return header;
}

std::vector<std::uint8_t> rasterOf(std::span<const RasterPage> pages) {
  std::vector<std::uint8_t> stream;
  cups_raster_t* raster = cupsRasterOpenIO(appendTo, &stream, CUPS_RASTER_WRITE);
  for (const RasterPage& page : pages) {
    cups_page_header2_t header = headerOf(page);
    (void)cupsRasterWriteHeader2(raster, &header);
    std::vector<std::uint8_t> line(header.cupsBytesPerLine);
    for (std::uint32_t y = 0; y < page.height; ++y) {
      for (std::uint32_t x = 0; x < page.width; ++x) {
        for (std::uint32_t channel = 0; channel < page.channels; ++channel) {
          line[x * page.channels + channel] = page.sample(x, y, channel);
        }
      }
      (void)cupsRasterWritePixels(raster, line.data(), header.cupsBytesPerLine);
    }
  }
  cupsRasterClose(raster);
  return stream;
}

std::uint8_t noise(std::uint32_t x, std::uint32_t y, std::uint32_t channel) {
  std::uint32_t mixed = x * 0x9E3779B1U ^ y * 0x85EBCA77U ^ channel * 0xC2B2AE3DU;
  mixed = (mixed ^ mixed >> 15) * 0x2C1B3C6DU;
  mixed = (mixed ^ mixed >> 12) * 0x297A2D39U;
  return static_cast<std::uint8_t>(mixed >> 16);
}

}  // namespace gdi::programtest
