// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/plain_decoder.h"

#include <algorithm>
#include <string_view>

namespace gdi::codectest {
namespace {

using Words = std::vector<std::uint16_t>;

// The byte of an index: the n-th of these digits is the n-th nibble of the alphabet.
unsigned alphabetByte(unsigned index) {
  constexpr std::string_view kNibbles = "01378CEF";
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  const auto nibble = [&](unsigned position) {
    return static_cast<unsigned>(kHexDigits.find(kNibbles[position]));
  };
  return nibble(index / 8) * 16 + nibble(index % 8);
}

class PlainRecord {
 public:
  PlainRecord(const Words& codes, Words& row) : codes_(codes), row_(row) {}

  bool decode() {
    while (sound_ && next_ < codes_.size()) {
      const unsigned code = take();
      switch (code / 0x4000) {
        case 0:
          literal(code % 256, code / 256);
          break;
        case 1:
          copy(code % 0x4000 / 128 + 1);
          copy(code % 128 + 1);
          break;
        case 2:
          cursor_ += code % 0x4000 / 0x1000;
          store(alphabetByte(code % 0x1000 / 64) * 256 + alphabetByte(code % 64));
          break;
        default:
          copies(code % 0x4000 / 0x400, code % 0x400 / 128, code % 128 + 1);
          break;
      }
    }
    return sound_;
  }

 private:
  void literal(unsigned lessOne, unsigned skip) {
    if (lessOne == 254) {
      return;
    }
    lessOne = lessOne == 255 ? take() : lessOne;
    const bool ownWord = skip == 63;
    skip = ownWord ? take() : skip;
    if (ownWord && skip == 65535) {
      row_.assign(row_.size(), 0);
      return;
    }
    cursor_ += skip;
    for (unsigned i = 0; sound_ && i <= lessOne; ++i) {
      store(take());
    }
  }

  void copies(unsigned lessOne, unsigned skip, unsigned distance) {
    lessOne = lessOne == 15 ? take() : lessOne;
    skip = skip == 7 ? take() : skip;
    cursor_ += skip;
    for (unsigned i = 0; sound_ && i <= lessOne; ++i) {
      copy(distance);
    }
  }

  // Whatever is not there makes the record unsound, and counts as zero.
  unsigned take() {
    sound_ = sound_ && next_ < codes_.size();
    return sound_ ? codes_[next_++] : 0U;
  }
  void store(unsigned word) {
    sound_ = sound_ && cursor_ < row_.size();
    if (sound_) {
      row_[cursor_++] = static_cast<std::uint16_t>(word);
    }
  }
  void copy(unsigned distance) {
    sound_ = sound_ && distance <= cursor_ && cursor_ < row_.size();
    store(sound_ ? row_[cursor_ - distance] : 0U);
  }

  const Words& codes_;
  Words& row_;
  std::size_t next_ = 0;
  std::size_t cursor_ = 0;
  bool sound_ = true;
};

}  // namespace

PlainRecords plainDecompress(std::span<const std::uint8_t> band, std::size_t rows,
                             std::size_t rowWords) {
  PlainRecords records;
  Words row(rowWords, 0);
  Words words;
  for (std::size_t i = 0; i + 1 < band.size(); i += 2) {
    words.push_back(static_cast<std::uint16_t>(band[i] + 256 * band[i + 1]));
  }
  std::size_t at = 0;
  for (std::size_t r = 0; r < rows; ++r) {
    if (at == words.size() || words[at] > words.size() - at - 1) {
      records.faults.push_back(2 * at);
      records.framed = false;
      break;
    }
    const auto first = words.begin() + static_cast<std::ptrdiff_t>(at) + 1;
    const Words codes(first, first + words[at]);
    if (!PlainRecord(codes, row).decode()) {
      records.faults.push_back(2 * at);
    }
    for (std::size_t i = 0; records.sound() && i < row.size(); ++i) {
      records.rows.push_back(static_cast<std::uint8_t>(row[i] >> 8));
      records.rows.push_back(static_cast<std::uint8_t>(row[i]));
    }
    at += 1 + codes.size();
  }
  records.bytes = 2 * at;
  return records;
}

}  // namespace gdi::codectest
