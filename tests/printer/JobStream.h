// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream taken apart into its records, by the lengths that they state.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gdi::test {

using Bytes = std::vector<std::uint8_t>;

struct StreamRecord {
  std::string tag;
  Bytes head{};  // the record itself
  Bytes data{};  // the compressed band behind a band record
};

// All records of a stream without its prologue. What is no whole record is given as one last record
// with the tag "????".
std::vector<StreamRecord> recordsOf(const Bytes& stream);

// Those of that tag.
std::vector<StreamRecord> recordsOf(const std::vector<StreamRecord>& records,
                                    const std::string& tag);

// A band record's fields; the plane is that of its length slot: K, Y, M or C.
struct Band {
  char plane = '?';
  unsigned flags = 0;
  unsigned rowBits = 0;
  unsigned rows = 0;
  unsigned blank = 0;
  Bytes data;
};
std::vector<Band> bandsOf(const std::vector<StreamRecord>& records);

// Each band as its plane and its number among that plane's bands, as "K0 K1 C0".
std::string orderOf(const std::vector<Band>& bands);

// The order in which a colour page of that many bands sends them, told as orderOf does: step s
// sends black s, cyan s-6, magenta s-12, yellow s-18.
std::string colorOrder(int bands);

// The tags in the order of the stream, bands left out.
std::string framingOf(const std::vector<StreamRecord>& records);

// The band's rows, decompressed.
Bytes rowsOf(const Band& band);

}  // namespace gdi::test
