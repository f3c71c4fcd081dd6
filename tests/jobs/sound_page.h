// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Whole pages of which nothing can be said: the order of bands, the flags, the paper and all fields
// are as the format wants them.
#pragma once

#include <cstdint>
#include <optional>

#include "tests/jobs/job_builder.h"

namespace gdi::jobtest {

struct SoundPage {
  std::uint32_t rows = 2;
  std::uint32_t widthPixels = 96;
  unsigned bitsPerPixel = 1;
  bool color = false;
  std::uint16_t number = 0;
  bool blank = false;
  std::uint8_t ink = 0xF0;  // of every byte that holds pixels, unless the page is blank
  std::optional<std::uint32_t> steps{};  // band steps that are sent; nothing for all
};

// Bits a row, padding included.
std::uint32_t rowBitsOf(const SoundPage& page);
// A length on paper at 600 dots an inch, in micrometres.
std::uint32_t micrometresOf(std::uint32_t pixels);
// The page record alone.
PageFields fieldsOf(const SoundPage& page);
// `count` rows of the page, whose last 32 bits are zero.
Rows rowsOf(const SoundPage& page, std::size_t count);

// The page record and all bands.
JobBuilder& addPage(JobBuilder& job, const SoundPage& page);

// Job record, host record, the page and the end-of-job mark.
JobBuilder jobOf(const SoundPage& page);

}  // namespace gdi::jobtest
