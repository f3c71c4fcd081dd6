// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The reader of PC4SC4: one function for each kind of code, and no step without its bound.

#include <algorithm>

#include "codec/byte_alphabet.h"
#include "codec/pc4sc4.h"
#include "codec/stream_word.h"

namespace gdi {
namespace pc4sc4 {
namespace {

// Stream words, read strictly forwards.
class WordReader {
 public:
  explicit WordReader(std::span<const std::uint8_t> bytes)
      : bytes_(bytes), words_(bytes.size() / sizeof(Word)) {}

  [[nodiscard]] std::size_t position() const { return position_; }
  [[nodiscard]] std::size_t left() const { return words_ - position_; }
  [[nodiscard]] bool read(Word& word) {
    if (left() == 0) {
      return false;
    }
    word = loadStreamWord(bytes_.data() + sizeof(Word) * position_++);
    return true;
  }
  // Reads into `value` only where `field` is the escape; otherwise the field is the value.
  [[nodiscard]] bool readExtended(Word field, Word escape, std::size_t& value) {
    Word word = field;
    if (field == escape && !read(word)) {
      return false;
    }
    value = word;
    return true;
  }
  // The next `words` words as a reader of their own, which this one then stands behind. There must
  // be that many left.
  WordReader take(std::size_t words) {
    const WordReader part(bytes_.subspan(sizeof(Word) * position_, sizeof(Word) * words));
    position_ += words;
    return part;
  }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t words_;
  std::size_t position_ = 0;
};

// The reference row that the codes of one record turn into the next row.
class RowBuilder {
 public:
  // `row` is a whole number of pixel words.
  explicit RowBuilder(std::span<std::uint8_t> row) : row_(row), words_(row.size() / sizeof(Word)) {}

  // Once the row was cleared, only what was stored since needs it again: the cursor never goes
  // back.
  void clear() {
    const auto from = row_.begin() + static_cast<std::ptrdiff_t>(2 * clearFrom_);
    const auto to = cleared_ ? row_.begin() + static_cast<std::ptrdiff_t>(2 * cursor_) : row_.end();
    std::fill(from, to, std::uint8_t{0});
    clearFrom_ = cursor_;
    cleared_ = true;
  }
  // Moves the cursor on by `skip`, if `count` words can be stored behind that.
  [[nodiscard]] bool skipTo(std::size_t skip, std::size_t count) {
    if (skip + count > words_ - cursor_) {
      return false;
    }
    cursor_ += skip;
    return true;
  }
  // To be called only for words that skipTo has granted.
  void store(std::uint8_t first, std::uint8_t second) {
    row_[2 * cursor_] = first;
    row_[2 * cursor_ + 1] = second;
    ++cursor_;
  }
  [[nodiscard]] bool copy(std::size_t distance) {
    if (distance > cursor_) {
      return false;
    }
    const std::size_t from = 2 * (cursor_ - distance);
    store(row_[from], row_[from + 1]);
    return true;
  }

 private:
  std::span<std::uint8_t> row_;
  std::size_t words_;
  std::size_t cursor_ = 0;
  bool cleared_ = false;
  std::size_t clearFrom_ = 0;  // the first word that may have been stored since the clearing
};

std::size_t distanceIn(unsigned field) {
  return (field & kDistanceMask) + std::size_t{1};
}

bool decodeDoubleCopy(Word code, RowBuilder& row) {
  return row.skipTo(0, 2) && row.copy(distanceIn(code >> kDoubleCopyFirstShift)) &&
         row.copy(distanceIn(code));
}

bool decodePairLiteral(Word code, RowBuilder& row) {
  if (!row.skipTo((code >> kPairSkipShift) & kPairMaxSkip, 1)) {
    return false;
  }
  row.store(MapIdToLiteral[(code >> kPairFirstShift) & kPairIndexMask],
            MapIdToLiteral[code & kPairIndexMask]);
  return true;
}

bool decodeCopy(Word code, WordReader& record, RowBuilder& row) {
  const auto countField = static_cast<Word>((code >> kCopyCountShift) & kCopyCountEscape);
  const auto skipField = static_cast<Word>((code >> kCopySkipShift) & kCopySkipEscape);
  std::size_t countLessOne = 0;
  std::size_t skip = 0;
  if (!record.readExtended(countField, kCopyCountEscape, countLessOne) ||
      !record.readExtended(skipField, kCopySkipEscape, skip) ||
      !row.skipTo(skip, countLessOne + 1)) {
    return false;
  }
  for (std::size_t i = 0; i <= countLessOne; ++i) {
    if (!row.copy(distanceIn(code))) {
      return false;
    }
  }
  return true;
}

bool decodeLiteral(Word code, WordReader& record, RowBuilder& row) {
  const auto countField = static_cast<Word>(code & kLiteralCountEscape);
  if (countField == kNopLowByte) {
    return true;
  }
  const auto skipField = static_cast<Word>((code >> kLiteralSkipShift) & kLiteralSkipEscape);
  std::size_t countLessOne = 0;
  std::size_t skip = 0;
  if (!record.readExtended(countField, kLiteralCountEscape, countLessOne) ||
      !record.readExtended(skipField, kLiteralSkipEscape, skip)) {
    return false;
  }
  if (skip == kClearRowSkip) {
    row.clear();
    return true;
  }
  if (!row.skipTo(skip, countLessOne + 1)) {
    return false;
  }
  for (std::size_t i = 0; i <= countLessOne; ++i) {
    Word data = 0;
    if (!record.read(data)) {
      return false;
    }
    row.store(static_cast<std::uint8_t>(data >> 8), static_cast<std::uint8_t>(data));
  }
  return true;
}

bool decodeRecord(WordReader record, std::span<std::uint8_t> rowBuffer) {
  RowBuilder row(rowBuffer);
  Word code = 0;
  while (record.read(code)) {
    bool sound = false;
    switch (code & kTypeMask) {
      case kTypeDoubleCopy:
        sound = decodeDoubleCopy(code, row);
        break;
      case kTypePairLiteral:
        sound = decodePairLiteral(code, row);
        break;
      case kTypeCopy:
        sound = decodeCopy(code, record, row);
        break;
      default:
        sound = decodeLiteral(code, record, row);
        break;
    }
    if (!sound) {
      return false;
    }
  }
  return true;
}

}  // namespace
}  // namespace pc4sc4

std::optional<std::size_t> qbx_DeCompress_PC4SC4(std::span<const std::uint8_t> source,
                                                 std::span<std::uint8_t> destination,
                                                 std::uint32_t rowBytes, std::int32_t rows,
                                                 std::span<std::uint8_t> rowBuffer) {
  // docs/quirks.md, "The codec counts rows in 16 bits"
  if (static_cast<std::uint16_t>(rows) == 0) {
    return 0;
  }
  rows = std::min<std::int32_t>(rows, kMaxDecodableRows);

  const std::size_t stride = pc4sc4::rowStride(rowBytes);
  if (rowBuffer.size() < stride) {
    return std::nullopt;
  }
  // docs/quirks.md, "Very wide rows are decoded but not put out"
  const auto unitsOut = static_cast<std::int16_t>(stride / 4);
  const std::size_t bytesOut = unitsOut > 0 ? 4 * static_cast<std::size_t>(unitsOut) : 0;

  pc4sc4::WordReader reader(source);
  for (std::int32_t r = 0; r < rows; ++r) {
    pc4sc4::Word words = 0;
    if (!reader.read(words) || words > reader.left()) {
      return std::nullopt;
    }
    if (!pc4sc4::decodeRecord(reader.take(words), rowBuffer.first(stride))) {
      return std::nullopt;
    }
    if (destination.size() < bytesOut) {
      return std::nullopt;
    }
    std::copy_n(rowBuffer.begin(), bytesOut, destination.begin());
    destination = destination.subspan(bytesOut);
  }
  return reader.position();
}

}  // namespace gdi
