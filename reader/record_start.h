// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How a record is told from other bytes: by its tag and, where a stream has to be searched for the
// next record, by the four bytes behind the tag as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "printer/format/job_stream_format.h"

namespace gdi::reader {

enum class RecordKind : std::uint8_t { kJob, kHost, kPage, kBand, kEndOfJob };

// "job record", "end-of-job mark" and so on, without article.
const char* nameOf(RecordKind kind);
// Bytes of the record itself, tag included.
std::size_t lengthOf(RecordKind kind);

// The kind whose tag these four bytes are.
// requires: bytes.size() >= 4
std::optional<RecordKind> kindOfTag(std::span<const std::uint8_t> bytes);

// Whether some tag begins with these bytes, fewer than four, which may be an input's last.
bool beginsTag(std::span<const std::uint8_t> bytes);

// Bytes that are looked at to find a record among other bytes.
inline constexpr std::size_t kRecordStartBytes = 8;

// The kind of record that begins with these eight bytes, the first one in the highest bits: a tag
// with its record's length, or a band record's tag with flags that exist. The end-of-job mark has
// nothing behind its tag and is never found so.
std::optional<RecordKind> kindOfStart(std::uint64_t bytes);

// Whether such a record begins with the first of these bytes; fewer than eight begin none.
bool beginsRecord(std::span<const std::uint8_t> bytes);

// Where the first such record begins in `bytes`.
std::optional<std::size_t> findRecordStart(std::span<const std::uint8_t> bytes);

}  // namespace gdi::reader
