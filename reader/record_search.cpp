// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/record_search.h"

#include <algorithm>
#include <array>

#include "printer/format/big_endian.h"

namespace gdi::reader {

namespace {

std::optional<RecordKind> kindOfTag(std::uint32_t tag) {
  std::array<std::uint8_t, sizeof(Tag)> bytes{};
  putBigEndian32(bytes, kTagOffset, tag);
  return reader::kindOfTag(bytes);
}

// A job record that lies about its length is told by the host record behind it.
bool jobRecordOfAnotherLengthBegins(std::uint64_t window, ByteSource& source) {
  if (kindOfTag(static_cast<std::uint32_t>(window >> 32)) != RecordKind::kJob) {
    return false;
  }
  const std::size_t rest = job_record::kLength - kRecordStartBytes;
  const std::span<const std::uint8_t> ahead = source.peek(rest + sizeof(Tag));
  return ahead.size() == rest + sizeof(Tag) &&
         reader::kindOfTag(ahead.subspan(rest)) == RecordKind::kHost;
}

}  // namespace

SkippedBytes skipToRecord(ByteSource& source) {
  SkippedBytes skipped;
  std::uint64_t window = 0;  // the last eight bytes
  std::size_t ofRecord = 0;
  while (ofRecord == 0) {
    const std::optional<std::uint8_t> byte = source.next();
    if (!byte) {
      const auto tag = static_cast<std::uint32_t>(window);
      ofRecord = kindOfTag(tag) == RecordKind::kEndOfJob ? sizeof(Tag) : 0;
      break;
    }
    window = window << 8 | *byte;
    ++skipped.count;
    if (skipped.start.size() < kSkippedBytesKept + kRecordStartBytes) {
      skipped.start.push_back(*byte);
    }
    if (skipped.count >= kRecordStartBytes &&
        (kindOfStart(window) || jobRecordOfAnotherLengthBegins(window, source))) {
      ofRecord = kRecordStartBytes;
    }
  }
  std::array<std::uint8_t, kRecordStartBytes> record{};
  putBigEndian32(record, 0, static_cast<std::uint32_t>(window >> 32));
  putBigEndian32(record, sizeof(Tag), static_cast<std::uint32_t>(window));
  source.giveBack(std::span(record).last(ofRecord));
  skipped.count -= ofRecord;
  skipped.foundRecord = ofRecord != 0;
  skipped.start.resize(std::min<std::uint64_t>(skipped.count, kSkippedBytesKept));
  return skipped;
}

}  // namespace gdi::reader
