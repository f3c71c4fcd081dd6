// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/jobs/sound_page.h"

#include <algorithm>
#include <array>

namespace gdi::jobtest {

namespace {

using reader::Ink;

struct Lag {
  Ink ink;
  std::uint32_t bands;  // behind black
};
constexpr std::array<Lag, 4> kLags{
    {{Ink::kBlack, 0}, {Ink::kCyan, 6}, {Ink::kMagenta, 12}, {Ink::kYellow, 18}}};

constexpr std::uint32_t kRowsABand = 256;

void addBand(JobBuilder& job, const SoundPage& page, Ink ink, std::uint32_t index) {
  const std::uint32_t bands = (page.rows + kRowsABand - 1) / kRowsABand;
  const std::uint32_t rows = std::min(kRowsABand, page.rows - index * kRowsABand);
  const bool last = index == bands - 1 && ink == (page.color ? Ink::kYellow : Ink::kBlack);
  BandFields fields;
  fields.ink = ink;
  fields.flags = (index == 0 ? kFirst : 0) | (last ? kLast : 0);
  fields.rowBits = static_cast<std::uint16_t>(rowBitsOf(page));
  fields.rows = static_cast<std::uint16_t>(rows);
  fields.pageBlank = last && page.blank;
  job.band(fields, literalBand(rowsOf(page, rows), last));
}

}  // namespace

std::uint32_t rowBitsOf(const SoundPage& page) {
  const std::uint32_t wholeBytes = (page.widthPixels * page.bitsPerPixel + 7) / 8 * 8;
  return (wholeBytes + 32 + 127) / 128 * 128;
}

std::uint32_t micrometresOf(std::uint32_t pixels) {
  return static_cast<std::uint32_t>((std::uint64_t{pixels} * 25400 + 300) / 600);
}

PageFields fieldsOf(const SoundPage& page) {
  PageFields fields;
  fields.rowBits = static_cast<std::uint16_t>(rowBitsOf(page));
  fields.rows = page.rows;
  fields.channels = page.color ? 4 : 1;
  fields.number = page.number;
  fields.widthMicrometres = micrometresOf(page.widthPixels);
  fields.heightMicrometres = micrometresOf(page.rows);
  return fields;
}

Rows rowsOf(const SoundPage& page, std::size_t count) {
  Bytes row(rowBitsOf(page) / 8);
  std::fill(row.begin(), row.end() - 4, page.blank ? std::uint8_t{0} : page.ink);
  Rows rows(count, row);
  return rows;
}

JobBuilder& addPage(JobBuilder& job, const SoundPage& page) {
  job.pageRecord(fieldsOf(page));
  const std::uint32_t bands = (page.rows + kRowsABand - 1) / kRowsABand;
  const std::uint32_t steps = page.steps.value_or(bands + kLags.back().bands);
  for (std::uint32_t step = 0; step < steps; ++step) {
    for (const Lag& lag : kLags) {
      const bool hasPlane = page.color || lag.ink == Ink::kBlack;
      if (hasPlane && step >= lag.bands && step - lag.bands < bands) {
        addBand(job, page, lag.ink, step - lag.bands);
      }
    }
  }
  return job;
}

JobBuilder jobOf(const SoundPage& page) {
  JobBuilder job;
  job.jobRecord(page.bitsPerPixel).hostRecord();
  return addPage(job, page).end();
}

}  // namespace gdi::jobtest
