// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Job streams made by hand for tests: every byte is put here, none by the writer or the encoder.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "reader/records.h"

namespace gdi::jobtest {

using Bytes = std::vector<std::uint8_t>;

// A band's rows; each row must have the same number of bytes, a multiple of 16.
using Rows = std::vector<Bytes>;

// `count` rows of `rowBytes` bytes that all are `byte`.
Rows solidRows(std::size_t count, std::size_t rowBytes, std::uint8_t byte);

// Stream words as bytes.
Bytes bandOfWords(const std::vector<std::uint16_t>& words);

// The rows as a band in which every row is one literal run; `last` adds the page's trailer.
Bytes literalBand(const Rows& rows, bool last);

struct PageFields {
  std::uint16_t rowBits = 128;
  std::uint32_t rows = 0;  // the record's field has the low 16 bits
  std::uint8_t channels = 1;
  std::uint16_t number = 0;
  std::uint32_t widthMicrometres = 4064;  // 96 pixels
  std::uint32_t heightMicrometres = 0;
};

struct BandFields {
  reader::Ink ink = reader::Ink::kBlack;
  std::uint32_t flags = 0;
  std::uint16_t rowBits = 128;
  std::uint16_t rows = 0;
  bool pageBlank = false;
};

class JobBuilder {
 public:
  JobBuilder& text(std::string_view bytes);
  JobBuilder& raw(const Bytes& bytes);
  JobBuilder& jobRecord(unsigned bitsPerPixel, std::string_view name = "Report");
  JobBuilder& hostRecord(std::string_view host = "desk", std::string_view user = "anna");
  JobBuilder& pageRecord(const PageFields& fields);
  // The record alone, its ink's length slot being `length`.
  JobBuilder& bandRecord(const BandFields& fields, std::uint32_t length);
  // The record and its data.
  JobBuilder& band(const BandFields& fields, const Bytes& data);
  // The record of literalBand(rows) and that band.
  JobBuilder& band(reader::Ink ink, std::uint32_t flags, const Rows& rows);
  JobBuilder& end() { return text("JIDG"); }

  // Other bytes in place of those that stand there. record: its offset; field: offset in it.
  JobBuilder& patch(std::size_t record, std::size_t field, const Bytes& bytes);

  [[nodiscard]] std::size_t size() const { return bytes_.size(); }
  [[nodiscard]] const Bytes& bytes() const { return bytes_; }
  Bytes& bytes() { return bytes_; }
  // What has been built, to read from.
  [[nodiscard]] std::istringstream stream() const;

 private:
  JobBuilder& put16(std::uint32_t value);
  JobBuilder& put32(std::uint32_t value);
  JobBuilder& zeros(std::size_t count);
  JobBuilder& name(std::string_view value);

  Bytes bytes_;
};

std::istringstream streamOf(const Bytes& bytes);

inline constexpr std::uint32_t kFirst = 1;
inline constexpr std::uint32_t kLast = 2;

}  // namespace gdi::jobtest
