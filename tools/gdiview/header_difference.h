// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where two records of a kind differ: in fields, which have names, or in other bytes.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "reader/record_start.h"

namespace gdi::gdiview {

struct HeaderDifference {
  std::string name;  // a field's, or "byte 28" of bytes that are no field
  std::string a;     // what is there, with what it means; of equal texts, the byte behind them
  std::string b;
};

// In the order of the fields, then of the other bytes. requires: both are lengthOf(kind) long
std::vector<HeaderDifference> differenceOfHeaders(reader::RecordKind kind,
                                                  std::span<const std::uint8_t> a,
                                                  std::span<const std::uint8_t> b);

// Which bytes of a record belong to these fields, texts with the padding behind them.
std::vector<bool> bytesOfFields(reader::RecordKind kind, std::span<const std::string> names);

}  // namespace gdi::gdiview
