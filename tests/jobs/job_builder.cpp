// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/jobs/job_builder.h"

#include <algorithm>

namespace gdi::jobtest {

namespace {

using Words = std::vector<std::uint16_t>;

// One row: clear the reference row first when it is a band's first, then all its pixel words.
Words literalRow(const Bytes& row, bool first) {
  Words codes;
  if (first) {
    codes.insert(codes.end(), {0x3F00, 0xFFFF});
  }
  const std::size_t count = row.size() / 2;
  if (count <= 254) {
    codes.push_back(static_cast<std::uint16_t>(count - 1));
  } else {
    codes.insert(codes.end(), {0x00FF, static_cast<std::uint16_t>(count - 1)});
  }
  for (std::size_t i = 0; i < row.size(); i += 2) {
    codes.push_back(static_cast<std::uint16_t>(row[i] << 8 | row[i + 1]));
  }
  while (codes.size() < 8) {
    codes.push_back(0x00FE);
  }
  codes.insert(codes.begin(), static_cast<std::uint16_t>(codes.size()));
  return codes;
}

}  // namespace

Rows solidRows(std::size_t count, std::size_t rowBytes, std::uint8_t byte) {
  return {count, Bytes(rowBytes, byte)};
}

Bytes literalBand(const Rows& rows, bool last) {
  Words words;
  std::size_t lastRecord = 0;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const Words record = literalRow(rows[row], row == 0);
    lastRecord = words.size();
    words.insert(words.end(), record.begin(), record.end());
  }
  const std::size_t behind = last ? 4 : 0;
  while ((words.size() + behind) % 8 != 0) {
    words.push_back(0x00FE);
    ++words[lastRecord];
  }
  if (last) {
    words.insert(words.end(), {0x0002, 0x3F00, 0xFFFF, 0x0000});
  }
  return bandOfWords(words);
}

Bytes bandOfWords(const Words& words) {
  Bytes bytes;
  for (const std::uint16_t word : words) {
    bytes.push_back(static_cast<std::uint8_t>(word));
    bytes.push_back(static_cast<std::uint8_t>(word >> 8));
  }
  return bytes;
}

JobBuilder& JobBuilder::text(std::string_view bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  return *this;
}

JobBuilder& JobBuilder::raw(const Bytes& bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  return *this;
}

JobBuilder& JobBuilder::jobRecord(unsigned bitsPerPixel, std::string_view jobName) {
  text("GDIJ").put32(120).put16(100).put16(3).zeros(6).put16(152).put32(0x7DAE96D5).zeros(8);
  raw({0x01, static_cast<std::uint8_t>(bitsPerPixel - 1), 0x00, 0x02}).zeros(20);
  return name(jobName);
}

JobBuilder& JobBuilder::hostRecord(std::string_view host, std::string_view user) {
  return text("GJET").put32(152).name(host).name(user).zeros(16);
}

JobBuilder& JobBuilder::pageRecord(const PageFields& fields) {
  text("GDIP").put32(64).raw({9, 2, 13, 0}).put16(fields.rowBits).put16(fields.rows).zeros(16);
  raw({fields.channels, 1}).put16(fields.number).zeros(18);
  put16((fields.rows + 257U) / 256U);
  return put32(fields.widthMicrometres).put32(fields.heightMicrometres);
}

JobBuilder& JobBuilder::bandRecord(const BandFields& fields, std::uint32_t length) {
  text("GDIB").put32(fields.flags);
  for (const reader::Ink slot :
       {reader::Ink::kBlack, reader::Ink::kYellow, reader::Ink::kMagenta, reader::Ink::kCyan}) {
    put32(slot == fields.ink ? length : 0);
  }
  put16(fields.rowBits).put16(fields.rows).zeros(2);
  return raw({static_cast<std::uint8_t>(fields.pageBlank ? 1 : 0), 0});
}

JobBuilder& JobBuilder::band(const BandFields& fields, const Bytes& data) {
  return bandRecord(fields, static_cast<std::uint32_t>(data.size())).raw(data);
}

JobBuilder& JobBuilder::band(reader::Ink ink, std::uint32_t flags, const Rows& rows) {
  BandFields fields;
  fields.ink = ink;
  fields.flags = flags;
  fields.rowBits = static_cast<std::uint16_t>(rows.front().size() * 8);
  fields.rows = static_cast<std::uint16_t>(rows.size());
  return band(fields, literalBand(rows, (flags & kLast) != 0));
}

JobBuilder& JobBuilder::patch(std::size_t record, std::size_t field, const Bytes& bytes) {
  std::ranges::copy(bytes, bytes_.begin() + static_cast<std::ptrdiff_t>(record + field));
  return *this;
}

std::istringstream JobBuilder::stream() const {
  return streamOf(bytes_);
}

JobBuilder& JobBuilder::put16(std::uint32_t value) {
  return raw({static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)});
}

JobBuilder& JobBuilder::put32(std::uint32_t value) {
  return put16(value >> 16).put16(value);
}

JobBuilder& JobBuilder::zeros(std::size_t count) {
  return raw(Bytes(count));
}

JobBuilder& JobBuilder::name(std::string_view value) {
  return text(value.substr(0, 64)).zeros(64 - std::min<std::size_t>(64, value.size()));
}

std::istringstream streamOf(const Bytes& bytes) {
  return std::istringstream(std::string(bytes.begin(), bytes.end()));
}

}  // namespace gdi::jobtest
