// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A buffer whose end is the end of its page, with no access behind: one byte too far is a crash.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace gdi::codectest {

class GuardedBuffer {
 public:
  explicit GuardedBuffer(std::size_t size) : size_(size) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t usable = (size + page - 1) / page * page;
    mapped_ = usable + page;
    base_ = mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (base_ == MAP_FAILED) {
      std::abort();
    }
    auto* const bytes = static_cast<std::uint8_t*>(base_);
    if (mprotect(bytes + usable, page, PROT_NONE) != 0) {
      std::abort();
    }
    front_ = std::span(bytes, usable - size);
    data_ = bytes + front_.size();
    std::fill(front_.begin(), front_.end(), kFrontFill);
  }
  explicit GuardedBuffer(std::span<const std::uint8_t> content) : GuardedBuffer(content.size()) {
    std::copy(content.begin(), content.end(), data_);
  }
  ~GuardedBuffer() { munmap(base_, mapped_); }
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;

  [[nodiscard]] std::uint8_t* data() const { return data_; }
  [[nodiscard]] std::span<std::uint8_t> bytes() const { return {data_, size_}; }
  // The buffer begins in mid-page: whether what lies before it is as it was.
  [[nodiscard]] bool frontIsIntact() const {
    return std::all_of(front_.begin(), front_.end(),
                       [](std::uint8_t byte) { return byte == kFrontFill; });
  }

 private:
  static constexpr std::uint8_t kFrontFill = 0xA5;
  std::size_t size_;
  std::size_t mapped_ = 0;
  void* base_ = nullptr;
  std::uint8_t* data_ = nullptr;
  std::span<std::uint8_t> front_;
};

}  // namespace gdi::codectest
