// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A band's data read from the stream, by the length that its record tells or, where that one leads
// nowhere, up to the next record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "reader/ByteSource.h"

namespace gdi::reader {

struct BandBytes {
  std::vector<std::uint8_t> data;
  // What is wrong with the length, when the stream shows another one; otherwise empty.
  std::string lengthLie;
  bool brokenOff = false;  // the stream ends inside the data
};

class BandDataReader {
 public:
  // `source` stays the caller's, must outlive the reader, and stands behind a band record whenever
  // a band is read.
  explicit BandDataReader(ByteSource& source) : source_(source) {}

  // length: bytes, as the band record tells. Memory is taken as the data come.
  BandBytes read(std::size_t length);

 private:
  std::vector<std::uint8_t> readUpTo(std::size_t length);
  bool standsAtRecord();
  bool fillToNextRecord(BandBytes& band);
  void cutToNextRecord(BandBytes& band, std::size_t length);
  std::optional<std::size_t> recordInside(std::vector<std::uint8_t>& data);

  ByteSource& source_;
  unsigned shortenedBands_ = 0;
};

}  // namespace gdi::reader
