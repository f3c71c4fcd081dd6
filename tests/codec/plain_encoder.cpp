// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/plain_encoder.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace gdi::codectest {
namespace {

// What a segment is made of before it becomes code words.
struct Piece {
  std::size_t first;
  std::size_t length;
  std::size_t distance;  // 0: literal
};

int alphabetIndex(unsigned byte) {
  constexpr std::string_view kNibbles = "01378CEF";
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  const std::size_t high = kNibbles.find(kHexDigits[byte >> 4]);
  const std::size_t low = kNibbles.find(kHexDigits[byte & 15]);
  const bool inside = high != std::string_view::npos && low != std::string_view::npos;
  return inside ? static_cast<int>(8 * high + low) : -1;
}

class PlainRow {
 public:
  PlainRow(const Words& row, const Words& reference) : row_(row), reference_(reference) {
    for (std::size_t unit = 0; unit < row.size() / 2; ++unit) {
      if (changed(2 * unit) || changed(2 * unit + 1)) {
        codedWords_ = 2 * unit + 2;
      }
    }
  }

  Words codes() {
    while (true) {
      std::size_t first = done_;
      while (first < codedWords_ && !changed(first)) {
        ++first;
      }
      if (first == codedWords_) {
        return codes_;
      }
      std::size_t end = first;
      while (end < codedWords_ && changed(end)) {
        ++end;
      }
      emitSegment(split(first, end));
    }
  }

 private:
  [[nodiscard]] bool changed(std::size_t p) const { return row_[p] != reference_[p]; }

  // The segment as copies and literals, each as long as it can be.
  [[nodiscard]] std::vector<Piece> split(std::size_t first, std::size_t end) const {
    std::vector<Piece> pieces;
    const std::size_t skip = first - done_;
    std::size_t p = first;
    while (p < end) {
      Piece copy = bestCopy(p);
      if (copy.length == 0) {
        if (pieces.empty() || pieces.back().distance != 0) {
          pieces.push_back({p, 0, 0});
        }
        ++pieces.back().length;
        ++p;
      } else {
        if (skip > 6 && pieces.empty()) {
          copy.length = std::min<std::size_t>(copy.length, 15);
        }
        pieces.push_back(copy);
        p += copy.length;
      }
    }
    return pieces;
  }

  [[nodiscard]] Piece bestCopy(std::size_t p) const {
    Piece best{p, 0, 0};
    for (std::size_t distance = std::min<std::size_t>(p, 128); distance > 0; --distance) {
      std::size_t length = 0;
      while (p + length < codedWords_ && row_[p + length] == row_[p + length - distance]) {
        ++length;
      }
      if (length > best.length) {
        best = {p, length, distance};
      }
      if (best.length > 9) {
        break;
      }
    }
    return best;
  }

  void emitSegment(const std::vector<Piece>& pieces) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      const Piece& piece = pieces[i];
      const bool lone = piece.distance != 0 && piece.length == 1 && piece.first == done_;
      if (piece.distance == 0) {
        emitLiteral(piece.first, piece.first + piece.length);
      } else if (lone && i + 1 < pieces.size() && pieces[i + 1].distance != 0 &&
                 pieces[i + 1].length == 1) {
        emit(0x4000 + (piece.distance - 1) * 128 + (pieces[i + 1].distance - 1));
        done_ += 2;
        ++i;
      } else {
        emitCopy(piece);
      }
    }
  }

  void emitCopy(const Piece& copy) {
    const std::size_t skip = copy.first - done_;
    const std::size_t countField = copy.length < 16 ? copy.length - 1 : 15;
    const std::size_t skipField = skip < 7 ? skip : 7;
    emit(0xC000 + countField * 1024 + skipField * 128 + (copy.distance - 1));
    if (copy.length >= 16) {
      emit(copy.length - 1);
    }
    if (skip >= 7) {
      emit(skip);
    }
    done_ = copy.first + copy.length;
  }

  void emitLiteral(std::size_t first, std::size_t end) {
    if (first - done_ < 4) {
      while (first < end) {
        const int high = alphabetIndex(row_[first] >> 8);
        const int low = alphabetIndex(row_[first] & 255);
        if (high < 0 || low < 0) {
          break;
        }
        emit(0x8000 + (first - done_) * 4096 + static_cast<std::size_t>(high * 64 + low));
        done_ = ++first;
      }
    }
    while (first < end) {
      const std::size_t skip = first - done_;
      const std::size_t whole = end - first;
      const std::size_t count = skip > 62 && whole > 254 ? 254 : whole;
      emit((skip < 63 ? skip : 63) * 256 + (count < 255 ? count - 1 : 255));
      if (count >= 255) {
        emit(count - 1);
      }
      if (skip >= 63) {
        emit(skip);
      }
      for (std::size_t i = 0; i < count; ++i) {
        emit(row_[first + i]);
      }
      done_ = first += count;
    }
  }

  void emit(std::size_t word) { codes_.push_back(static_cast<std::uint16_t>(word)); }

  const Words& row_;
  const Words& reference_;
  std::size_t codedWords_ = 0;
  std::size_t done_ = 0;
  Words codes_;
};

// One record a row, each without its count word.
std::vector<Words> records(const Band& band) {
  std::vector<Words> result;
  Words reference(band.stride() / 2, 0);
  for (std::size_t r = 0; r < band.rows; ++r) {
    Words row;
    for (std::size_t i = 0; i < band.stride(); i += 2) {
      const std::size_t at = r * band.stride() + i;
      row.push_back(static_cast<std::uint16_t>(band.bytes[at] * 256 + band.bytes[at + 1]));
    }
    Words record = r == 0 ? Words{0x3F00, 0xFFFF} : Words{};
    record = record + PlainRow(row, reference).codes();
    if (!record.empty() && record.size() < 8) {
      record.resize(8, 0x00FE);
    }
    result.push_back(record);
    reference = row;
  }
  return result;
}

}  // namespace

std::vector<std::uint8_t> plainCompress(const Band& band, bool finalBand) {
  std::vector<Words> all = records(band);
  std::size_t words = all.size();
  for (const Words& record : all) {
    words += record.size();
  }
  // The trailer's four words keep the same padding right: they end on the boundary.
  for (std::size_t end = words + (finalBand ? 4 : 0); end % 8 != 0; ++end) {
    all.back().push_back(0x00FE);
  }
  if (finalBand) {
    all.push_back({0x3F00, 0xFFFF});
    all.emplace_back();
  }
  Words stream;
  for (const Words& record : all) {
    stream.push_back(static_cast<std::uint16_t>(record.size()));
    stream = stream + record;
  }
  return streamBytes(stream);
}

std::vector<std::size_t> recordStarts(const Band& band) {
  std::vector<std::size_t> starts;
  std::size_t words = 0;
  for (const Words& record : records(band)) {
    starts.push_back(words);
    words += 1 + record.size();
  }
  return starts;
}

}  // namespace gdi::codectest
