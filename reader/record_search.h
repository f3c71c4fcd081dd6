// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Looking for the next record where none begins.
#pragma once

#include <cstdint>
#include <vector>

#include "reader/ByteSource.h"
#include "reader/Checksum.h"
#include "reader/record_start.h"

namespace gdi::reader {

struct SkippedBytes {
  Checksum checksum;                // of all of them, and so how many they are
  std::vector<std::uint8_t> start;  // the first of them, at most kSkippedBytesKept
  bool foundRecord = false;         // false: the input came to its end
};
inline constexpr std::size_t kSkippedBytesKept = 1024;

// Passes over bytes up to where a record begins: one that kindOfStart() knows, a job record of
// another length with its host record behind it, or an end-of-job mark that ends the input.
SkippedBytes skipToRecord(ByteSource& source);

// The same of what comes ahead of a job. A prologue is any bytes, another record's first eight
// among them: so where another record than the job's first one seems to begin, and no record
// follows it, a job record with its host record goes before if it begins within kJobSearchBytes.
SkippedBytes skipPrologue(ByteSource& source);
inline constexpr std::size_t kJobSearchBytes = 65536;

}  // namespace gdi::reader
