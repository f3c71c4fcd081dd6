// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/BandDataReader.h"

#include <algorithm>

#include "codec/pc4sc4_format.h"
#include "printer/format/big_endian.h"
#include "reader/counted.h"
#include "reader/record_rules.h"
#include "reader/record_start.h"

namespace gdi::reader {

namespace {

// Band data is read in pieces of this size, so that a lying length costs no memory.
constexpr std::size_t kPieceBytes = 65536;

// How often the end of a band whose length lies is searched for: a search may cost the longest
// band.
constexpr unsigned kMostSearches = 64;

bool isFinalEndMark(std::span<const std::uint8_t> rest) {
  return rest.size() == sizeof(Tag) && kindOfTag(rest) == RecordKind::kEndOfJob;
}

}  // namespace

std::string lengthLie(std::size_t told, const char* record, std::size_t bytes) {
  return "the band has " + std::to_string(told) + " bytes, and yet " + record + " begins after " +
         counted(bytes, "byte");
}

BandBytes BandDataReader::read(const BandRecord& record, std::optional<Ink> ink) {
  const std::size_t length = ink ? record.lengths[indexOf(*ink)] : 0;
  BandBytes band;
  band.data = readUpTo(length);
  const bool whole = band.data.size() == length;
  if (whole && (standsAtRecord() || length == 0)) {
    return band;
  }
  const bool found =
      takeSearch() && (cutToNextRecord(band, length) || (whole && growToNextRecord(band, record)));
  band.brokenOff = !found && !whole;
  return band;
}

bool BandDataReader::takeSearch() {
  if (searches_ == kMostSearches) {
    return false;
  }
  ++searches_;
  return true;
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

// A length may be too small: the data then go on to the next record, which begins where a band can
// end. False when there is none, or when the next record rather has a damaged tag.
bool BandDataReader::growToNextRecord(BandBytes& band, const BandRecord& record) {
  const std::size_t have = band.data.size();
  const std::size_t most = longestBandBytes(std::min<std::uint32_t>(record.rows, kBandHeight));
  if (have % pc4sc4::kBandAlignment == 0 && mayStandAtDamagedRecord(record)) {
    return false;
  }
  std::size_t missing =
      (pc4sc4::kBandAlignment - have % pc4sc4::kBandAlignment) % pc4sc4::kBandAlignment;
  for (std::size_t window = kPieceBytes; have + missing <= most; window *= 2) {
    const std::span<const std::uint8_t> ahead = source_.peek(window);
    for (; have + missing <= most && missing + kRecordStartBytes <= ahead.size();
         missing += pc4sc4::kBandAlignment) {
      if (beginsRecord(ahead.subspan(missing))) {
        return grow(band, missing);
      }
    }
    if (ahead.size() < window) {
      return missing < ahead.size() && isFinalEndMark(ahead.subspan(missing)) &&
             grow(band, missing);
    }
  }
  return false;
}

bool BandDataReader::grow(BandBytes& band, std::size_t missing) {
  const std::size_t have = band.data.size();
  band.data.resize(have + missing);
  (void)source_.read(std::span(band.data).last(missing));
  band.lengthLie = lengthLie(have, "the next record", have + missing);
  return true;
}

// Whether the next bytes are a record but for its tag.
bool BandDataReader::mayStandAtDamagedRecord(const BandRecord& record) {
  const std::span<const std::uint8_t> ahead = source_.peek(band_record::kLength);
  if (ahead.size() < band_record::kLength) {
    return false;
  }
  const BandRecord next = parseBandRecord(ahead);
  const bool isBand = next.flags <= (band_record::kFirstBandFlag | band_record::kLastBandFlag) &&
                      next.rowBits == record.rowBits && next.rows <= kBandHeight && next.ink();
  return isBand || bigEndian32(ahead, kRecordLengthOffset) == page_record::kLength;
}

// If a record begins inside the data, they end there.
bool BandDataReader::cutToNextRecord(BandBytes& band, std::size_t length) {
  const std::optional<std::size_t> start = recordInside(band.data);
  if (start) {
    source_.giveBack(std::span(band.data).subspan(*start));
    band.data.resize(*start);
    band.lengthLie = lengthLie(length, "a record", *start);
  }
  return start.has_value();
}

// Where in a band's data a record begins, an end-of-job mark that ends the input included.
std::optional<std::size_t> BandDataReader::recordInside(std::vector<std::uint8_t>& data) {
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
