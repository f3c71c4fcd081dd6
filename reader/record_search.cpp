// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/record_search.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

#include "printer/format/big_endian.h"
#include "reader/records.h"

namespace gdi::reader {

namespace {

// How many bytes are passed over before they go into the checksum.
constexpr std::size_t kPieceBytes = 65536;

std::optional<RecordKind> kindOfTag(std::uint32_t tag) {
  std::array<std::uint8_t, sizeof(Tag)> bytes{};
  putBigEndian32(bytes, kTagOffset, tag);
  return reader::kindOfTag(bytes);
}

std::optional<RecordKind> kindAt(std::span<const std::uint8_t> bytes, std::size_t at) {
  return bytes.size() < at + sizeof(Tag) ? std::nullopt : reader::kindOfTag(bytes.subspan(at));
}

// A job record that lies about its length is told by the host record behind it.
bool jobRecordOfAnotherLengthBegins(std::uint64_t window, ByteSource& source) {
  if (kindOfTag(static_cast<std::uint32_t>(window >> 32)) != RecordKind::kJob) {
    return false;
  }
  const std::size_t rest = job_record::kLength - kRecordStartBytes;
  return kindAt(source.peek(rest + sizeof(Tag)), rest) == RecordKind::kHost;
}

bool recordBegins(std::uint64_t window, ByteSource& source) {
  return kindOfStart(window) || jobRecordOfAnotherLengthBegins(window, source);
}

void settle(std::span<const std::uint8_t> bytes, SkippedBytes& skipped) {
  skipped.checksum.add(bytes);
  const auto kept = bytes.first(std::min(bytes.size(), kSkippedBytesKept - skipped.start.size()));
  skipped.start.insert(skipped.start.end(), kept.begin(), kept.end());
}

// begins: whether the record is found, of the last eight bytes, behind which the source stands.
template <typename Begins>
SkippedBytes skip(ByteSource& source, Begins begins) {
  SkippedBytes skipped;
  std::vector<std::uint8_t> passed;  // over, and not settled yet
  std::uint64_t window = 0;          // the last eight bytes
  std::size_t ofRecord = 0;
  while (ofRecord == 0) {
    const std::optional<std::uint8_t> byte = source.next();
    if (!byte) {
      const auto tag = static_cast<std::uint32_t>(window);
      ofRecord = kindOfTag(tag) == RecordKind::kEndOfJob ? sizeof(Tag) : 0;
      break;
    }
    window = window << 8 | *byte;
    if (passed.size() == kPieceBytes) {
      settle(std::span(passed).first(kPieceBytes - kRecordStartBytes), skipped);
      passed.erase(passed.begin(), passed.end() - kRecordStartBytes);
    }
    passed.push_back(*byte);
    if (passed.size() >= kRecordStartBytes && begins(window)) {
      ofRecord = kRecordStartBytes;
    }
  }
  skipped.foundRecord = ofRecord != 0;
  source.giveBack(std::span(passed).last(ofRecord));
  settle(std::span(passed).first(passed.size() - ofRecord), skipped);
  return skipped;
}

// How long a record is with its band data. bytes: from behind its first eight.
std::uint64_t bytesWithData(RecordKind kind, std::uint64_t start,
                            std::span<const std::uint8_t> behind) {
  const std::size_t length = lengthOf(kind);
  if (kind != RecordKind::kBand || behind.size() < length - kRecordStartBytes) {
    return length;
  }
  std::array<std::uint8_t, band_record::kLength> record{};
  putBigEndian32(record, 0, static_cast<std::uint32_t>(start >> 32));
  putBigEndian32(record, sizeof(Tag), static_cast<std::uint32_t>(start));
  std::copy_n(behind.begin(), length - kRecordStartBytes, record.begin() + kRecordStartBytes);
  const auto lengths = parseBandRecord(record).lengths;
  return std::accumulate(lengths.begin(), lengths.end(), std::uint64_t{length});
}

// Of a record other than a job's first: a record follows it as one does inside a job. behind: what
// comes behind its first eight bytes, `start`.
bool isInsideAJob(RecordKind kind, std::uint64_t start, std::span<const std::uint8_t> behind) {
  const std::uint64_t at = bytesWithData(kind, start, behind) - kRecordStartBytes;
  const std::optional<RecordKind> next = at < behind.size() ? kindAt(behind, at) : std::nullopt;
  return next && *next != RecordKind::kJob;
}

// Where in these bytes a job record begins that has its host record behind it.
std::optional<std::size_t> findJob(std::span<const std::uint8_t> bytes) {
  for (std::size_t at = 0; at + job_record::kLength + sizeof(Tag) <= bytes.size(); ++at) {
    if (kindAt(bytes, at) == RecordKind::kJob &&
        kindAt(bytes, at + job_record::kLength) == RecordKind::kHost) {
      return at;
    }
  }
  return std::nullopt;
}

}  // namespace

SkippedBytes skipToRecord(ByteSource& source) {
  return skip(source, [&source](std::uint64_t window) { return recordBegins(window, source); });
}

SkippedBytes skipPrologue(ByteSource& source) {
  std::size_t bytesToJob = 0;  // once it is found: to the end of its first eight bytes
  return skip(source, [&source, &bytesToJob](std::uint64_t window) {
    if (bytesToJob > 0) {
      return --bytesToJob == 0;
    }
    const std::optional<RecordKind> kind = kindOfStart(window);
    if (!kind || *kind == RecordKind::kJob) {
      return recordBegins(window, source);
    }
    const auto behind = source.peek(kJobSearchBytes + job_record::kLength + sizeof(Tag));
    const std::optional<std::size_t> job =
        isInsideAJob(*kind, window, behind) ? std::nullopt : findJob(behind);
    bytesToJob = job ? *job + kRecordStartBytes : 0;
    return !job;
  });
}

}  // namespace gdi::reader
