// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/reader/band_twin.h"

#include <algorithm>
#include <vector>

#include "reader/StoredPlane.h"
#include "reader/band_data.h"
#include "tests/codec/plain_decoder.h"

namespace gdi::reader {
namespace {

using codectest::PlainRecords;

// Fewer words than rows are told at once, ahead of the first row.
std::vector<std::size_t> faultsOf(const PlainRecords& plain, std::size_t dataBytes,
                                  std::uint32_t rows) {
  return rows > dataBytes / 2 ? std::vector<std::size_t>{0} : plain.faults;
}

std::string troubleWithFlaws(const BandDataReport& report, std::size_t dataBytes) {
  if (!std::ranges::is_sorted(report.flaws, {}, &Flaw::offset)) {
    return "the offsets do not rise";
  }
  for (const Flaw& flaw : report.flaws) {
    if (flaw.offset > dataBytes) {
      return "an offset lies behind the data";
    }
    if (flaw.text.empty() || flaw.text.find('\n') != std::string::npos) {
      return "a text is not one line";
    }
    if (flaw.text.find("do not decode") != std::string::npos) {
      return "no reason is known why a row does not decode";
    }
  }
  return {};
}

}  // namespace

std::string disagreementOn(std::span<const std::uint8_t> data, std::uint32_t rows,
                           std::size_t rowBytes, bool last) {
  const BandDataReport report = examineBandData(data, rows, rowBytes, last);
  const DecodedBand decoded = decodeBand(data, rows, rowBytes);
  const PlainRecords plain = codectest::plainDecompress(data, rows, rowBytes / 2);
  if (report.complete != plain.sound() || decoded.complete != plain.sound()) {
    return "whether the band decodes";
  }
  if (report.consumed != (plain.framed ? plain.bytes : 0) ||
      decoded.consumed != (plain.sound() ? plain.bytes : 0)) {
    return "how many bytes the records take";
  }
  std::vector<std::size_t> faults;
  for (const Flaw& flaw : report.flaws) {
    if (flaw.rule == Rule::kBandData) {
      faults.push_back(flaw.offset);
    }
  }
  if (faults != faultsOf(plain, data.size(), rows)) {
    return "which rows do not decode";
  }
  const bool inked = std::ranges::any_of(plain.rows, [](std::uint8_t byte) { return byte != 0; });
  if (plain.sound() && (decoded.rows != plain.rows || report.inked != inked)) {
    return "the rows";
  }
  return troubleWithFlaws(report, data.size());
}

}  // namespace gdi::reader
