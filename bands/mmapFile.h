// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A scratch file of a fixed size that is mapped, shared and writable, for the object's whole life.
//
// The caller chooses the file's name and deletes it. Messages go to the debug log only. One thread.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

namespace gdi {

class mmapFile {
 public:
  // A file of `size` bytes (0 to 400,000,000) at `path`, mapped; null when it cannot be made.
  static std::unique_ptr<mmapFile> initWithFile(const char* path, std::uint32_t size);

  mmapFile(const mmapFile&) = delete;
  mmapFile& operator=(const mmapFile&) = delete;
  mmapFile(mmapFile&&) = delete;
  mmapFile& operator=(mmapFile&&) = delete;
  // Unmaps; the file stays on disk.
  ~mmapFile();

  // Closes what is open, then creates or reuses the file (at most 1023 bytes of path), gives it the
  // mode 0666 and the length `size` with all its space reserved, and maps it. On false nothing is
  // mapped; a file already created stays.
  bool openFile(const char* path, std::uint32_t size);

  // The mapping's start; null when not mapped. When the system refuses the mapping itself, as it
  // does for a size of 0, this is MAP_FAILED and must not be touched.
  [[nodiscard]] void* memory() const { return memory_; }
  // Bytes mapped; 0 when not mapped.
  [[nodiscard]] std::uint32_t size() const { return size_; }
  // Whether the file was empty when it was opened, so that what nobody has written reads as zeros.
  [[nodiscard]] bool startedEmpty() const { return startedEmpty_; }
  // The path last opened, kept through close(); empty when it was too long to be kept whole.
  [[nodiscard]] const char* path() const { return path_.data(); }

  // Unmaps; calling it again does nothing.
  void close();

 private:
  mmapFile() = default;
  void storePath(const char* path);
  bool mapPath();
  bool sizeAndMap(int descriptor);

  std::array<char, 1024> path_{};
  std::uint32_t size_ = 0;
  void* memory_ = nullptr;
  bool startedEmpty_ = false;
};

}  // namespace gdi
