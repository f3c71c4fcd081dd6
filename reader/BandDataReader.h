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
#include "reader/records.h"

namespace gdi::reader {

struct BandBytes {
  std::vector<std::uint8_t> data;
  // What is wrong with the length, when the stream shows another one; otherwise empty.
  std::string lengthLie;
  bool brokenOff = false;  // the stream ends inside the data
};

// What is said of a length that is `told` bytes, when `record` ("a record") begins after `bytes`.
std::string lengthLie(std::size_t told, const char* record, std::size_t bytes);

class BandDataReader {
 public:
  // `source` stays the caller's, must outlive the reader, and stands behind a band record whenever
  // a band is read.
  explicit BandDataReader(ByteSource& source) : source_(source) {}

  // record: what `source` stands behind. ink: whose length it tells; nothing for a band without
  // data. Memory is taken as the data come.
  BandBytes read(const BandRecord& record, std::optional<Ink> ink);

  // Whether one more band may be looked at for another end than its length tells: each look may
  // cost the longest band, and so there are not many in a stream.
  bool takeSearch();

 private:
  std::vector<std::uint8_t> readUpTo(std::size_t length);
  bool standsAtRecord();
  bool growToNextRecord(BandBytes& band, const BandRecord& record);
  bool grow(BandBytes& band, std::size_t missing);
  bool mayStandAtDamagedRecord(const BandRecord& record);
  bool cutToNextRecord(BandBytes& band, std::size_t length);
  std::optional<std::size_t> recordInside(std::vector<std::uint8_t>& data);

  ByteSource& source_;
  unsigned searches_ = 0;
};

}  // namespace gdi::reader
