// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/BandDataReader.h"

#include <algorithm>

#include "codec/pc4sc4_format.h"
#include "reader/counted.h"
#include "reader/record_start.h"

namespace gdi::reader {

namespace {

// Band data is read in pieces of this size, so that a lying length costs no memory.
constexpr std::size_t kPieceBytes = 65536;

// How often a band whose length lies is searched for the records inside it: each search costs up to
// the longest band.
constexpr unsigned kMostShortenedBands = 64;

bool isFinalEndMark(std::span<const std::uint8_t> rest) {
  return rest.size() == sizeof(Tag) && kindOfTag(rest) == RecordKind::kEndOfJob;
}

std::string lieOf(std::size_t told, const char* record, std::size_t bytes) {
  return "the band has " + std::to_string(told) + " bytes, and yet " + record + " begins after " +
         counted(bytes, "byte");
}

}  // namespace

BandBytes BandDataReader::read(std::size_t length) {
  BandBytes band;
  band.data = readUpTo(length);
  const bool whole = band.data.size() == length;
  if (!whole || (!standsAtRecord() && !fillToNextRecord(band))) {
    cutToNextRecord(band, length);
  }
  return band;
}

std::vector<std::uint8_t> BandDataReader::readUpTo(std::size_t length) {
  std::vector<std::uint8_t> data;
  while (data.size() < length) {
    const std::size_t have = data.size();
    data.resize(std::min(length, have + kPieceBytes));
    const std::size_t got = source_.read(std::span(data).subspan(have));
    if (have + got < data.size()) {
      data.resize(have + got);
      break;
    }
  }
  return data;
}

bool BandDataReader::standsAtRecord() {
  const std::span<const std::uint8_t> ahead = source_.peek(sizeof(Tag));
  return ahead.size() == sizeof(Tag) && kindOfTag(ahead).has_value();
}

// A length that is no multiple of 16 may lack the few bytes up to one. False when no record begins
// there.
bool BandDataReader::fillToNextRecord(BandBytes& band) {
  const std::size_t have = band.data.size();
  const std::size_t missing =
      (pc4sc4::kBandAlignment - have % pc4sc4::kBandAlignment) % pc4sc4::kBandAlignment;
  const std::span<const std::uint8_t> ahead = source_.peek(missing + kRecordStartBytes);
  if (missing == 0 || ahead.size() < missing ||
      !(beginsRecord(ahead.subspan(missing)) || isFinalEndMark(ahead.subspan(missing)))) {
    return false;
  }
  band.data.resize(have + missing);
  (void)source_.read(std::span(band.data).last(missing));
  band.lengthLie = lieOf(have, "the next record", have + missing);
  return true;
}

// The band's length leads nowhere. If a record begins inside its data, they end there.
void BandDataReader::cutToNextRecord(BandBytes& band, std::size_t length) {
  if (const std::optional<std::size_t> start = recordInside(band.data)) {
    ++shortenedBands_;
    source_.giveBack(std::span(band.data).subspan(*start));
    band.data.resize(*start);
    band.lengthLie = lieOf(length, "a record", *start);
  } else {
    band.brokenOff = band.data.size() < length;
  }
}

// Where in a band's data a record begins, an end-of-job mark that ends the input included.
std::optional<std::size_t> BandDataReader::recordInside(std::vector<std::uint8_t>& data) {
  if (shortenedBands_ >= kMostShortenedBands) {
    return std::nullopt;
  }
  const std::size_t have = data.size();
  const std::span<const std::uint8_t> behind = source_.peek(kRecordStartBytes);
  const bool inputEnds = behind.size() < kRecordStartBytes;
  data.insert(data.end(), behind.begin(), behind.end());
  std::optional<std::size_t> start = findRecordStart(data);
  if (!start && inputEnds && data.size() >= sizeof(Tag) &&
      isFinalEndMark(std::span(data).last(sizeof(Tag)))) {
    start = data.size() - sizeof(Tag);
  }
  data.resize(have);
  return start && *start < have ? start : std::nullopt;
}

}  // namespace gdi::reader
