// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/ByteSource.h"

#include <algorithm>

namespace gdi::reader {

namespace {

constexpr std::size_t kBufferBytes = 65536;

}  // namespace

std::size_t ByteSource::read(std::span<std::uint8_t> bytes) {
  std::size_t got = 0;
  while (got < bytes.size() && (position_ < buffer_.size() || refill())) {
    const std::size_t piece = std::min(bytes.size() - got, buffer_.size() - position_);
    const auto from = buffer_.begin() + static_cast<std::ptrdiff_t>(position_);
    std::copy_n(from, piece, bytes.begin() + static_cast<std::ptrdiff_t>(got));
    position_ += piece;
    got += piece;
  }
  return got;
}

std::span<const std::uint8_t> ByteSource::peek(std::size_t count) {
  if (buffer_.size() - position_ < count) {
    std::vector<std::uint8_t> bytes(count);
    bytes.resize(read(bytes));
    giveBack(bytes);
  }
  const auto ahead = std::span<const std::uint8_t>(buffer_).subspan(position_);
  return ahead.first(std::min(count, ahead.size()));
}

void ByteSource::giveBack(std::span<const std::uint8_t> bytes) {
  if (bytes.size() <= position_) {
    position_ -= bytes.size();
    return;
  }
  buffer_.erase(buffer_.begin(), buffer_.begin() + static_cast<std::ptrdiff_t>(position_));
  buffer_.insert(buffer_.begin(), bytes.begin(), bytes.end());
  position_ = 0;
}

// Takes what the stream has ready: bytes ahead of a failure must not be lost with it.
bool ByteSource::refill() {
  buffer_.clear();
  position_ = 0;
  if (!input_ ||
      std::istream::traits_type::eq_int_type(input_.peek(), std::istream::traits_type::eof())) {
    return false;
  }
  const std::streamsize ready = std::max<std::streamsize>(1, input_.rdbuf()->in_avail());
  buffer_.resize(std::min(kBufferBytes, static_cast<std::size_t>(ready)));
  // char is the type that std::istream reads; any object may be filled through it.
  input_.read(reinterpret_cast<char*>(buffer_.data()),
              static_cast<std::streamsize>(buffer_.size()));
  buffer_.resize(static_cast<std::size_t>(input_.gcount()));
  inputOffset_ += buffer_.size();
  return !buffer_.empty();
}

}  // namespace gdi::reader
