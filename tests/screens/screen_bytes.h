// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screen files made by hand, and memory that ends where nothing may be touched.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace gdi {

using Bytes = std::vector<std::uint8_t>;

// A screen file: the header text, its zero byte, the table.
inline Bytes screenFile(std::string_view header, const Bytes& table) {
  Bytes file(header.begin(), header.end());
  file.push_back(0);
  file.insert(file.end(), table.begin(), table.end());
  return file;
}

// `size` bytes of 0xA5 directly before a page that cannot be touched.
class GuardedBytes {
 public:
  explicit GuardedBytes(std::size_t size) : page_(static_cast<std::size_t>(getpagesize())) {
    usable_ = (size / page_ + 1) * page_;
    void* memory =
        mmap(nullptr, usable_ + page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
      throw std::runtime_error("no memory");
    }
    start_ = static_cast<std::uint8_t*>(memory);
    std::fill_n(start_, usable_, std::uint8_t{0xA5});
    if (mprotect(start_ + usable_, page_, PROT_NONE) != 0) {
      throw std::runtime_error("no guard page");
    }
    data_ = start_ + (usable_ - size);
  }
  GuardedBytes(const GuardedBytes&) = delete;
  GuardedBytes& operator=(const GuardedBytes&) = delete;
  GuardedBytes(GuardedBytes&&) = delete;
  GuardedBytes& operator=(GuardedBytes&&) = delete;
  ~GuardedBytes() { (void)munmap(start_, usable_ + page_); }

  [[nodiscard]] std::uint8_t* data() const { return data_; }
  [[nodiscard]] Bytes bytes() const { return {data_, start_ + usable_}; }
  // Whether everything before the bytes is as it was.
  [[nodiscard]] bool untouchedBefore() const {
    return std::all_of(start_, data_, [](std::uint8_t byte) { return byte == 0xA5; });
  }

 private:
  std::size_t page_;
  std::size_t usable_ = 0;
  std::uint8_t* start_ = nullptr;
  std::uint8_t* data_ = nullptr;
};

}  // namespace gdi
