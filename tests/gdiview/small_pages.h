// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pages of a few pixels made by hand, and the rows of their pictures.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "reader/Page.h"
#include "tests/jobs/job_builder.h"
#include "tools/gdiview/Picture.h"

namespace gdi::gdiview {

// A page whose rows are 128 bits and all pixels of it: 96 of 1 bit, 48 of 2 or 24 of 4.
inline reader::Page pageWith(unsigned bitsPerPixel, std::uint8_t channels) {
  reader::Page page;
  page.rowBits = 128;
  page.record.channels = channels;
  page.bitsPerPixel = bitsPerPixel;
  page.planes.fill(reader::StoredPlane(16, 1000));
  return page;
}

// The same, on paper of `width` pixels, 1 to what fits.
inline reader::Page pageWith(unsigned bitsPerPixel, std::uint8_t channels, std::uint32_t width) {
  reader::Page page = pageWith(bitsPerPixel, channels);
  page.record.widthMicrometres = (width * 25400 + 300) / 600;
  return page;
}

inline reader::StoredPlane& planeOf(reader::Page& page, reader::Ink ink) {
  return page.planes[reader::indexOf(ink)];
}

inline void add(reader::Page& page, reader::Ink ink, const jobtest::Rows& rows) {
  planeOf(page, ink).append(static_cast<std::uint32_t>(rows.size()),
                            jobtest::literalBand(rows, false));
}

inline jobtest::Bytes rowStartingWith(std::initializer_list<std::uint8_t> bytes) {
  jobtest::Bytes row(bytes);
  row.resize(16);
  return row;
}

inline jobtest::Bytes next(Picture& picture) {
  const auto row = picture.nextRow();
  return {row.begin(), row.end()};
}

}  // namespace gdi::gdiview
