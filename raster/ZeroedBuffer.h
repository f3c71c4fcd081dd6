// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bytes that start as zeros, for buffers whose size comes from a page header: asking
// for too much is an answer, not an exception. Large ones come from the system and go back to it:
// what is never touched costs no memory, on later pages neither.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <sys/mman.h>

namespace gdi {

struct FreeZeroed {
  std::size_t mapped = 0;  // bytes; 0 for memory of the heap
  void operator()(std::uint8_t* bytes) const {
    if (mapped > 0) {
      (void)munmap(bytes, mapped);
    } else {
      std::free(bytes);  // NOLINT(*-no-malloc)
    }
  }
};

class ZeroedBuffer {
 public:
  // Allocates `size` bytes, releasing what was held. False when there is no memory for them. No
  // bytes at all always succeed, and must not be touched.
  bool allocate(std::size_t size) {
    release();
    if (size >= kLarge) {
      void* const pages =
          mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
      if (pages == MAP_FAILED) {
        return false;
      }
      bytes_ = {static_cast<std::uint8_t*>(pages), FreeZeroed{size}};
      return true;
    }
    // NOLINTNEXTLINE(*-no-malloc,*-owning-memory): FreeZeroed frees it
    bytes_ = {static_cast<std::uint8_t*>(std::calloc(size, 1)), FreeZeroed{}};
    return size == 0 || bytes_ != nullptr;
  }
  void release() { bytes_.reset(); }

  // Null when nothing is held; valid until the next allocate or release.
  [[nodiscard]] std::uint8_t* data() const { return bytes_.get(); }

 private:
  static constexpr std::size_t kLarge = 1 << 17;  // bytes

  std::unique_ptr<std::uint8_t, FreeZeroed> bytes_;
};

}  // namespace gdi
