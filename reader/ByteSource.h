// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// An input read strictly forwards, of which bytes that were read may be given back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <vector>

namespace gdi::reader {

class ByteSource {
 public:
  // `input` stays the caller's and must outlive the source.
  explicit ByteSource(std::istream& input) : input_(input) {}

  // Reads up to bytes.size() bytes; answers how many there were. Fewer only at the input's end.
  std::size_t read(std::span<std::uint8_t> bytes);
  // The next byte; nothing at the input's end.
  std::optional<std::uint8_t> next() {
    if (position_ == buffer_.size() && !refill()) {
      return std::nullopt;
    }
    return buffer_[position_++];
  }
  // The next bytes, which stay to be read: `count` of them, or as many as the input has. Valid
  // until the next call of any other function.
  std::span<const std::uint8_t> peek(std::size_t count);
  // The bytes that were read last come again, ahead of what follows them.
  void giveBack(std::span<const std::uint8_t> bytes);

  // Of the next byte, bytes from the start of the input.
  [[nodiscard]] std::uint64_t offset() const { return inputOffset_ - (buffer_.size() - position_); }
  // The input ended because it could not be read.
  [[nodiscard]] bool failed() const { return input_.bad(); }

 private:
  bool refill();

  std::istream& input_;
  std::vector<std::uint8_t> buffer_;
  std::size_t position_ = 0;       // of the next byte in buffer_
  std::uint64_t inputOffset_ = 0;  // of what follows buffer_
};

}  // namespace gdi::reader
