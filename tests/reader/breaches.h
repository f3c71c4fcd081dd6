// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Streams that break one rule each, and are sound otherwise, with what has to be said of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reader/rules.h"
#include "tests/jobs/sound_page.h"

namespace gdi::reader {

struct Breach {
  Rule rule;
  std::string kind;  // a sentence in one word: "ATagOfNoRecord"
  jobtest::Bytes stream;
  std::uint64_t offset;
  std::string record;
};
using Breaches = std::vector<Breach>;

Breaches streamBreaches();
Breaches jobRecordBreaches();
Breaches pageRecordBreaches();
Breaches bandRecordBreaches();
Breaches bandDataBreaches();
Breaches pageBreaches();
Breaches remarks();
Breaches allBreaches();

// Where the records of a job without prologue stand. Its first page has two rows of 16 bytes unless
// something else is said; a band of them has 48 bytes, one with the trailer 64.
inline constexpr std::size_t kJobAt = 0;
inline constexpr std::size_t kHostAt = kJobAt + 120;
inline constexpr std::size_t kPageAt = kHostAt + 152;
inline constexpr std::size_t kBandAt = kPageAt + 64;
inline constexpr std::size_t kDataAt = kBandAt + 32;
inline constexpr std::size_t kEndAt = kDataAt + 64;
// The bands of a colour page.
inline constexpr std::size_t kCyanAt = kDataAt + 48;
inline constexpr std::size_t kMagentaAt = kCyanAt + 32 + 48;
inline constexpr std::size_t kYellowAt = kMagentaAt + 32 + 48;
inline constexpr std::size_t kColorEndAt = kYellowAt + 32 + 64;
// A band of 256 such rows: 12 words, 255 times 10 words, and either 6 NOPs or 2 and the trailer.
inline constexpr std::size_t kFullBandBytes = 2 * (12 + 255 * 10 + 6);
inline constexpr std::size_t kSecondBandAt = kDataAt + kFullBandBytes;

inline jobtest::JobBuilder blackJob() {
  return jobtest::jobOf({});
}
inline jobtest::JobBuilder colorJob() {
  return jobtest::jobOf({.color = true});
}
inline jobtest::JobBuilder headers() {
  jobtest::JobBuilder job;
  job.jobRecord(1).hostRecord();
  return job;
}
// `count` rows of 16 bytes with ink.
inline jobtest::Rows inkedRows(std::size_t count) {
  return jobtest::rowsOf({}, count);
}
inline jobtest::PageFields fieldsOf(std::uint32_t rows, std::uint8_t channels = 1) {
  return jobtest::fieldsOf({.rows = rows, .color = channels == 4});
}

}  // namespace gdi::reader
