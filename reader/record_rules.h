// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is wrong with one record, whatever stands around it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "reader/record_start.h"
#include "reader/rules.h"

namespace gdi::reader {

// The flaws of a record of that kind, in the order of their offsets; none of an end-of-job mark.
// requires: bytes.size() is lengthOf(kind)
std::vector<Flaw> flawsOfRecord(RecordKind kind, std::span<const std::uint8_t> bytes);

// The most bytes that a band of so many rows can have: its row records count their words in 16
// bits.
std::uint64_t longestBandBytes(std::uint32_t rows);

}  // namespace gdi::reader
