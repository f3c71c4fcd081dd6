// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/binary_property_list_check.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "platform/property_list_forms.h"

namespace gdi {

namespace {

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;
constexpr std::uint64_t kMemoryPerObject = 128;  // about what the library keeps beside the contents
constexpr std::uint64_t kMaxMemory = std::uint64_t{64} << 20U;

// The file: header, objects, table of the objects' offsets, trailer.
class BinaryCheck {
 public:
  explicit BinaryCheck(std::span<const std::uint8_t> data) : data_(data) {}

  bool passes() {
    if (data_.size() < kHeaderSize + kTrailerSize) {
      return false;
    }
    const std::size_t trailer = data_.size() - kTrailerSize;
    offsetSize_ = data_[trailer + 6];
    referenceSize_ = data_[trailer + 7];
    const std::uint64_t count = integerAt(trailer + 8, 8);
    const std::uint64_t root = integerAt(trailer + 16, 8);
    objectsEnd_ = integerAt(trailer + 24, 8);
    if (!isIntegerSize(offsetSize_) || !isIntegerSize(referenceSize_) || objectsEnd_ > trailer ||
        count > (trailer - objectsEnd_) / offsetSize_) {
      return false;
    }
    seen_.resize(static_cast<std::size_t>(count));
    const std::optional<Extent> whole = extentOf(root, 1);
    return whole.has_value();
  }

 private:
  // What an object takes with all that it refers to.
  struct Extent {
    std::uint64_t memory = 0;
    int height = 0;  // levels of objects, itself included
  };

  // Where an object's contents lie.
  struct Contents {
    std::uint64_t begin = 0;
    std::uint64_t memory = 0;
    std::uint64_t references = 0;
  };

  static bool isIntegerSize(std::uint64_t size) {
    return size == 1 || size == 2 || size == 4 || size == 8;
  }

  // The big-endian integer there; the caller has checked that it lies within the file.
  [[nodiscard]] std::uint64_t integerAt(std::uint64_t offset, std::uint64_t size) const {
    std::uint64_t number = 0;
    for (const std::uint8_t byte : data_.subspan(offset, size)) {
      number = number << 8U | byte;
    }
    return number;
  }

  // Whether `count` things of `size` bytes (at least 1) fit between `begin` and the offset table.
  [[nodiscard]] bool fits(std::uint64_t begin, std::uint64_t count, std::uint64_t size) const {
    return begin >= kHeaderSize && begin <= objectsEnd_ && count <= (objectsEnd_ - begin) / size;
  }

  // The extent of object `index` on level `level`; nothing when it must be refused. A cycle ends
  // at the deepest level.
  std::optional<Extent> extentOf(std::uint64_t index, int level) {
    constexpr int kDeepestLevel = kPropertyListMaxDepth + 1;  // a leaf in the innermost array
    if (index >= seen_.size() || level > kDeepestLevel) {
      return std::nullopt;
    }
    if (const auto& known = seen_[index]) {
      return level + known->height - 1 <= kDeepestLevel ? known : std::nullopt;
    }
    const std::optional<Contents> contents = contentsOf(index);
    if (!contents) {
      return std::nullopt;
    }
    Extent extent{kMemoryPerObject + contents->memory, 1};
    for (std::uint64_t i = 0; i < contents->references; ++i) {
      const std::uint64_t reference =
          integerAt(contents->begin + i * referenceSize_, referenceSize_);
      const std::optional<Extent> inner = extentOf(reference, level + 1);
      if (!inner) {
        return std::nullopt;
      }
      extent.memory += inner->memory;
      extent.height = std::max(extent.height, 1 + inner->height);
      if (extent.memory > kMaxMemory) {
        return std::nullopt;
      }
    }
    seen_[index] = extent;
    return extent;
  }

  [[nodiscard]] std::optional<Contents> contentsOf(std::uint64_t index) const {
    const std::uint64_t offset = integerAt(objectsEnd_ + index * offsetSize_, offsetSize_);
    if (!fits(offset, 1, 1)) {
      return std::nullopt;
    }
    const unsigned kind = data_[offset] >> 4U;
    std::uint64_t begin = offset + 1;
    std::uint64_t count = data_[offset] & 0x0FU;
    if (count == 0x0F && kind >= 4 && kind != 8) {  // the count follows as an integer object
      if (!fits(begin, 1, 1) || data_[begin] >> 2U != 0x10U >> 2U) {
        return std::nullopt;
      }
      const std::uint64_t size = std::uint64_t{1} << (data_[begin] & 0x03U);
      if (!fits(begin + 1, 1, size)) {
        return std::nullopt;
      }
      count = integerAt(begin + 1, size);
      begin += 1 + size;
    }
    if (count > data_.size()) {
      return std::nullopt;
    }
    switch (kind) {
      case 0x0:  // the constants
        return Contents{};
      case 0x1:  // integer
      case 0x2:  // real
      case 0x3:  // date
        return leaf(begin, count > 4 ? data_.size() : std::uint64_t{1} << count);
      case 0x4:  // data
        return leaf(begin, count);
      case 0x5:  // ASCII text
        return text(begin, count, 1);
      case 0x6:  // UTF-16 text
        return text(begin, count, 2);
      case 0x8:  // unique identifier
        return leaf(begin, count + 1);
      case 0xA:  // array
      case 0xC:  // set
        return container(begin, count);
      case 0xD:  // dictionary: the keys, then the values
        return container(begin, 2 * count);
      default:
        return std::nullopt;
    }
  }

  [[nodiscard]] std::optional<Contents> leaf(std::uint64_t begin, std::uint64_t size) const {
    return fits(begin, size, 1) ? std::optional(Contents{begin, size, 0}) : std::nullopt;
  }

  // A text of `count` characters. One with a NUL in it is refused: as a key, it would make the
  // library stop the program.
  [[nodiscard]] std::optional<Contents> text(std::uint64_t begin, std::uint64_t count,
                                             std::uint64_t size) const {
    constexpr std::uint64_t kMostUtf8PerUnit = 3;
    if (!fits(begin, count, size)) {
      return std::nullopt;
    }
    for (std::uint64_t i = 0; i < count; ++i) {
      if (integerAt(begin + i * size, size) == 0) {
        return std::nullopt;
      }
    }
    return Contents{begin, count * kMostUtf8PerUnit, 0};
  }

  [[nodiscard]] std::optional<Contents> container(std::uint64_t begin,
                                                  std::uint64_t references) const {
    return fits(begin, references, referenceSize_) ? std::optional(Contents{begin, 0, references})
                                                   : std::nullopt;
  }

  std::span<const std::uint8_t> data_;
  std::uint64_t offsetSize_ = 0;
  std::uint64_t referenceSize_ = 0;
  std::uint64_t objectsEnd_ = 0;
  std::vector<std::optional<Extent>> seen_;
};

}  // namespace

bool isBearableBinaryPropertyList(std::span<const std::uint8_t> data) {
  return BinaryCheck(data).passes();
}

}  // namespace gdi
