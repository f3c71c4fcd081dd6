// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/printer/JobStream.h"

#include <algorithm>
#include <array>
#include <map>

#include "codec/pc4sc4.h"

namespace gdi::test {

namespace {

constexpr std::size_t kTagBytes = 4;

// The big-endian number of `width` bytes at `offset`.
std::size_t number(const Bytes& bytes, std::size_t offset, std::size_t width) {
  std::size_t value = 0;
  for (std::size_t i = 0; i < width; ++i) {
    value = value * 256 + bytes[offset + i];
  }
  return value;
}

std::size_t headBytes(const std::string& tag) {
  const std::map<std::string, std::size_t> lengths{
      {"GDIJ", 120}, {"GJET", 152}, {"GDIP", 64}, {"GDIB", 32}, {"JIDG", 4}};
  const auto length = lengths.find(tag);
  return length == lengths.end() ? 0 : length->second;
}

std::size_t dataBytes(const Bytes& bandRecord) {
  return std::max({number(bandRecord, 8, 4), number(bandRecord, 12, 4), number(bandRecord, 16, 4),
                   number(bandRecord, 20, 4)});
}

// Takes `count` bytes from `offset` on; fewer when the stream ends before.
Bytes take(const Bytes& stream, std::size_t& offset, std::size_t count) {
  const std::size_t end = std::min(stream.size(), offset + count);
  Bytes bytes(stream.begin() + static_cast<std::ptrdiff_t>(offset),
              stream.begin() + static_cast<std::ptrdiff_t>(end));
  offset = end;
  return bytes;
}

Band bandOf(const StreamRecord& record) {
  constexpr std::array kSlots{'K', 'Y', 'M', 'C'};
  Band band;
  for (std::size_t slot = 0; slot < kSlots.size(); ++slot) {
    if (number(record.head, 8 + 4 * slot, 4) != 0) {
      band.plane = kSlots.at(slot);
    }
  }
  band.flags = static_cast<unsigned>(number(record.head, 4, 4));
  band.rowBits = static_cast<unsigned>(number(record.head, 24, 2));
  band.rows = static_cast<unsigned>(number(record.head, 26, 2));
  band.blank = record.head[30];
  band.data = record.data;
  return band;
}

}  // namespace

std::vector<StreamRecord> recordsOf(const Bytes& stream) {
  std::vector<StreamRecord> records;
  std::size_t offset = 0;
  while (offset < stream.size()) {
    std::size_t ahead = offset;
    const Bytes tag = take(stream, ahead, kTagBytes);
    StreamRecord record{.tag = {tag.begin(), tag.end()}};
    const std::size_t length = headBytes(record.tag);
    if (length == 0 || stream.size() - offset < length) {
      records.push_back({.tag = "????", .head = take(stream, offset, stream.size())});
      break;
    }
    record.head = take(stream, offset, length);
    if (record.tag == "GDIB") {
      record.data = take(stream, offset, dataBytes(record.head));
    }
    records.push_back(record);
  }
  return records;
}

std::vector<StreamRecord> recordsOf(const std::vector<StreamRecord>& records,
                                    const std::string& tag) {
  std::vector<StreamRecord> found;
  std::ranges::copy_if(records, std::back_inserter(found),
                       [&tag](const StreamRecord& record) { return record.tag == tag; });
  return found;
}

std::vector<Band> bandsOf(const std::vector<StreamRecord>& records) {
  std::vector<Band> bands;
  for (const StreamRecord& record : recordsOf(records, "GDIB")) {
    bands.push_back(bandOf(record));
  }
  return bands;
}

std::string orderOf(const std::vector<Band>& bands) {
  std::string order;
  std::map<char, int> next;
  for (const Band& band : bands) {
    order.append(order.empty() ? "" : " ").append(1, band.plane);
    order.append(std::to_string(next[band.plane]++));
  }
  return order;
}

std::string colorOrder(int bands) {
  std::string order;
  for (int step = 0; step < bands + 18; ++step) {
    int lag = 0;
    for (const char plane : {'K', 'C', 'M', 'Y'}) {
      if (const int band = step - lag; band >= 0 && band < bands) {
        order.append(order.empty() ? "" : " ").append(1, plane).append(std::to_string(band));
      }
      lag += 6;
    }
  }
  return order;
}

std::string framingOf(const std::vector<StreamRecord>& records) {
  std::string tags;
  for (const StreamRecord& record : records) {
    if (record.tag != "GDIB") {
      tags += (tags.empty() ? "" : " ") + record.tag;
    }
  }
  return tags;
}

Bytes rowsOf(const Band& band) {
  const std::uint32_t rowBytes = band.rowBits / 8;
  Bytes rows(std::size_t{rowBytes} * band.rows);
  Bytes reference(rowBytes);
  const auto words =
      qbx_DeCompress_PC4SC4(band.data, rows, rowBytes, static_cast<int>(band.rows), reference);
  return words ? rows : Bytes{};
}

}  // namespace gdi::test
