// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bytes on the heap that start as zeros, for buffers whose size comes from a page header: asking
// for too much is an answer, not an exception, and pages that are never touched cost no memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace gdi {

class ZeroedBuffer {
 public:
  // Allocates `size` bytes, releasing what was held. False when there is no memory for them. No
  // bytes at all always succeed, and must not be touched.
  bool allocate(std::size_t size) {
    release();
    // NOLINTNEXTLINE(*-no-malloc,*-owning-memory): calloc gives untouched zero pages
    bytes_.reset(static_cast<std::uint8_t*>(std::calloc(size, 1)));
    return size == 0 || bytes_ != nullptr;
  }
  void release() { bytes_.reset(); }

  // Null when nothing is held; valid until the next allocate or release.
  [[nodiscard]] std::uint8_t* data() const { return bytes_.get(); }

 private:
  struct Free {
    void operator()(std::uint8_t* bytes) const { std::free(bytes); }  // NOLINT(*-no-malloc)
  };
  std::unique_ptr<std::uint8_t, Free> bytes_;
};

}  // namespace gdi
