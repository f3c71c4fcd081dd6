// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The band driver: row records, their padding, the trailer, and the room for all of it.

#include <algorithm>
#include <array>

#include "codec/band_size.h"
#include "codec/pc4sc4.h"
#include "codec/row_coder.h"
#include "codec/stream_word.h"

namespace gdi {
namespace pc4sc4 {
namespace {

// Where a record is coded when the room left might not hold its worst case.
std::array<std::uint8_t, kMaxRecordBytes> scratchRecord;

class BandOutput {
 public:
  BandOutput(std::uint8_t* start, std::size_t capacity) : start_(start), capacity_(capacity) {}

  [[nodiscard]] std::size_t written() const { return written_; }
  [[nodiscard]] std::size_t room() const { return capacity_ - written_; }
  [[nodiscard]] std::uint8_t* at() const { return start_ + written_; }

  // Makes the `size` bytes already standing at at() the band's last record.
  void takeRecord(std::size_t size) {
    header_ = at();
    written_ += size;
  }
  // The same for a record that stands elsewhere; false when it does not fit.
  [[nodiscard]] bool copyRecord(const std::uint8_t* record, std::size_t size) {
    if (size > room()) {
      return false;
    }
    std::copy_n(record, size, at());
    takeRecord(size);
    return true;
  }
  // Adds a NOP to the last record; false when it does not fit.
  [[nodiscard]] bool addNop() {
    if (room() < sizeof(Word)) {
      return false;
    }
    storeStreamWord(at(), kNop);
    storeStreamWord(header_, static_cast<Word>(loadStreamWord(header_) + 1));
    written_ += sizeof(Word);
    return true;
  }
  // Adds the end-of-page trailer; its last word is the header of the new last record.
  [[nodiscard]] bool addTrailer() {
    if (room() < sizeof kTrailer) {
      return false;
    }
    for (const Word word : kTrailer) {
      storeStreamWord(at(), word);
      header_ = at();
      written_ += sizeof(Word);
    }
    return true;
  }

 private:
  std::uint8_t* start_;
  std::size_t capacity_;
  std::size_t written_ = 0;
  std::uint8_t* header_ = nullptr;  // the count word of the last record
};

// Writes one row record at `record`, which has room for maxRecordBytes(units). Returns its bytes.
std::size_t codeRecord(const std::uint8_t* row, const std::uint8_t* reference, std::size_t units,
                       bool firstOfBand, std::uint8_t* record) {
  std::uint8_t* at = record + sizeof(Word);
  if (firstOfBand) {
    storeStreamWord(at, kClearRow);
    storeStreamWord(at + sizeof(Word), kClearRowSkip);
    at += 2 * sizeof(Word);
  }
  at = cmpCompressRow(reference, row, units, at);
  std::size_t words = static_cast<std::size_t>(at - record) / sizeof(Word) - 1;
  if (words > 0) {
    for (; words < kMinRecordWords; ++words, at += sizeof(Word)) {
      storeStreamWord(at, kNop);
    }
  }
  storeStreamWord(record, static_cast<Word>(words));
  return static_cast<std::size_t>(at - record);
}

bool addRow(BandOutput& output, const std::uint8_t* row, const std::uint8_t* reference,
            std::size_t units, bool firstOfBand) {
  if (output.room() >= maxRecordBytes(units)) {
    output.takeRecord(codeRecord(row, reference, units, firstOfBand, output.at()));
    return true;
  }
  const std::size_t size = codeRecord(row, reference, units, firstOfBand, scratchRecord.data());
  return output.copyRecord(scratchRecord.data(), size);
}

bool finishBand(BandOutput& output, bool finalBand) {
  if (finalBand) {
    while ((output.written() + sizeof kTrailer) % kBandAlignment != 0) {
      if (!output.addNop()) {
        return false;
      }
    }
    if (!output.addTrailer()) {
      return false;
    }
  }
  while (output.written() % kBandAlignment != 0) {
    if (!output.addNop()) {
      return false;
    }
  }
  return true;
}

}  // namespace
}  // namespace pc4sc4

std::uint32_t qbx_Compress_PC4SC4(const std::uint8_t* source, std::uint32_t byteCount,
                                  std::uint8_t* destination, std::uint32_t capacity,
                                  std::uint32_t rowBytes, std::uint8_t* seedBuffer,
                                  bool finalBand) {
  if (source == nullptr || destination == nullptr || seedBuffer == nullptr) {
    return kCompressionOverflow;
  }
  if (rowBytes == 0 || rowBytes > kMaxEncodableRowBytes) {
    return kCompressionOverflow;
  }
  const std::size_t stride = pc4sc4::rowStride(rowBytes);
  std::fill_n(seedBuffer, stride, std::uint8_t{0});

  // docs/quirks.md, "The codec counts rows in 16 bits"
  const auto rows = static_cast<std::int16_t>(byteCount / rowBytes);
  if (rows <= 0) {
    return finalBand ? kCompressionOverflow : 0;
  }

  pc4sc4::BandOutput output(destination, capacity);
  const std::uint8_t* reference = seedBuffer;
  const std::uint8_t* row = source;
  for (int r = 0; r < rows; ++r, reference = row, row += stride) {
    // docs/quirks.md, "The room for a row is checked without regard to its content"
    if (output.written() + stride + 8 >= capacity) {
      return kCompressionOverflow;
    }
    if (!pc4sc4::addRow(output, row, reference, stride / 4, r == 0)) {
      return kCompressionOverflow;
    }
  }
  if (!pc4sc4::finishBand(output, finalBand)) {
    return kCompressionOverflow;
  }
  return static_cast<std::uint32_t>(output.written());
}

}  // namespace gdi
