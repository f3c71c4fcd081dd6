// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/record_start.h"

#include <algorithm>
#include <array>

#include "printer/format/big_endian.h"

namespace gdi::reader {

namespace {

struct KindText {
  RecordKind kind;
  Tag tag;
  std::size_t length;
  const char* name;
};

constexpr std::array<KindText, 5> kKinds{{
    {RecordKind::kJob, job_record::kTag, job_record::kLength, "job record"},
    {RecordKind::kHost, host_record::kTag, host_record::kLength, "host record"},
    {RecordKind::kPage, page_record::kTag, page_record::kLength, "page record"},
    {RecordKind::kBand, band_record::kTag, band_record::kLength, "band record"},
    {RecordKind::kEndOfJob, kEndOfJobTag, sizeof(Tag), "end-of-job mark"},
}};

}  // namespace

const char* nameOf(RecordKind kind) {
  return kKinds[static_cast<std::size_t>(kind)].name;
}

std::size_t lengthOf(RecordKind kind) {
  return kKinds[static_cast<std::size_t>(kind)].length;
}

std::optional<RecordKind> kindOfTag(std::span<const std::uint8_t> bytes) {
  for (const KindText& kind : kKinds) {
    if (std::ranges::equal(kind.tag, bytes.first(sizeof(Tag)))) {
      return kind.kind;
    }
  }
  return std::nullopt;
}

bool beginsTag(std::span<const std::uint8_t> bytes) {
  return std::ranges::any_of(kKinds, [bytes](const KindText& kind) {
    return std::equal(bytes.begin(), bytes.end(), kind.tag.begin());
  });
}

std::optional<RecordKind> kindOfStart(std::uint64_t bytes) {
  const auto behindTag = static_cast<std::uint32_t>(bytes);
  std::array<std::uint8_t, sizeof(Tag)> tag{};
  putBigEndian32(tag, kTagOffset, static_cast<std::uint32_t>(bytes >> 32));
  const std::optional<RecordKind> kind = kindOfTag(tag);
  if (kind == RecordKind::kBand) {
    const bool known = behindTag <= (band_record::kFirstBandFlag | band_record::kLastBandFlag);
    return known ? kind : std::nullopt;
  }
  if (!kind || kind == RecordKind::kEndOfJob || behindTag != lengthOf(*kind)) {
    return std::nullopt;
  }
  return kind;
}

bool beginsRecord(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= kRecordStartBytes && bytes.front() == 'G' &&
         kindOfStart(std::uint64_t{bigEndian32(bytes, 0)} << 32 | bigEndian32(bytes, 4));
}

std::optional<std::size_t> findRecordStart(std::span<const std::uint8_t> bytes) {
  for (std::size_t at = 0; at + kRecordStartBytes <= bytes.size(); ++at) {
    if (bytes[at] == 'G' && beginsRecord(bytes.subspan(at))) {
      return at;
    }
  }
  return std::nullopt;
}

}  // namespace gdi::reader
