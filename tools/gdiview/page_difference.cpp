// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/page_difference.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace gdi::gdiview {

namespace {

using Band = reader::StoredPlane::Band;

// The leftmost bit of every pixel that has a bit set in `bits`.
std::uint8_t pixelsWithBits(std::uint8_t bits, unsigned bitsPerPixel) {
  switch (bitsPerPixel) {
    case 1:
      return bits;
    case 2:
      return static_cast<std::uint8_t>((bits | bits << 1) & 0xAA);
    default:
      return static_cast<std::uint8_t>((bits | bits << 1 | bits << 2 | bits << 3) & 0x88);
  }
}

// The bits of byte i of a row that belong to its first `pixelBits` bits.
std::uint8_t pixelMask(std::size_t i, std::size_t pixelBits) {
  const std::size_t inside = pixelBits - std::min(pixelBits, i * 8);
  return static_cast<std::uint8_t>(0xFF00U >> std::min<std::size_t>(inside, 8));
}

class PlaneComparison {
 public:
  // compared: called with the plane's rows that have been compared so far.
  PlaneComparison(const reader::StoredPlane& a, const reader::StoredPlane& b, unsigned bitsPerPixel,
                  std::uint32_t width, std::function<void(std::uint32_t)> compared)
      : a_(a),
        b_(b),
        rowsOfA_(a),
        rowsOfB_(b),
        bitsPerPixel_(bitsPerPixel),
        pixelBits_(std::size_t{width} * bitsPerPixel),
        compared_(std::move(compared)) {}

  PlaneDifference run() {
    const std::size_t bands = std::max(a_.bands().size(), b_.bands().size());
    for (std::size_t band = 0; band < bands; ++band) {
      compareBands(band);
    }
    return difference_;
  }

 private:
  // Rows of one band; none for a band that its plane lacks.
  struct Range {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
  };

  // Afterwards all rows down to the end of both bands have been compared or are known to be equal.
  void compareBands(std::size_t index) {
    static const Band kNone;
    const bool both = index < a_.bands().size() && index < b_.bands().size();
    const Band& a = index < a_.bands().size() ? a_.bands()[index] : kNone;
    const Band& b = index < b_.bands().size() ? b_.bands()[index] : kNone;
    const auto number = static_cast<std::uint32_t>(index);
    if (both && a.isLost() != b.isLost()) {
      (a.isLost() ? difference_.decodedInB : difference_.decodedInA).add(number);
    } else if (both && a.lost != b.lost) {
      difference_.lostOtherwise.add(number);
    }
    const Range rowsOfA{a.firstRow, a.firstRow + a.rows};
    const Range rowsOfB{b.firstRow, b.firstRow + b.rows};
    const std::uint32_t end = std::max(rowsOfA.end, rowsOfB.end);
    const bool sameBytes = a.data == b.data;
    if (sameBytes && a.firstRow == b.firstRow && a.rows == b.rows &&
        a_.rowBytes() == b_.rowBytes()) {
      y_ = std::max(y_, end);
      compared_(y_);
      return;
    }
    while (y_ < end) {
      compareRow();
      compared_(++y_);
    }
    const bool oneLacksThePlane = a_.bands().empty() || b_.bands().empty();
    if (anyDifferent(rowsOfA) || anyDifferent(rowsOfB)) {
      if (!oneLacksThePlane) {
        difference_.different.add(number);
      }
    } else if (both && !sameBytes && !a.isLost() && !b.isLost()) {
      difference_.recoded.add(number);
    }
  }

  void compareRow() {
    const std::span<const std::uint8_t> a = rowsOfA_.row(y_);
    const std::span<const std::uint8_t> b = rowsOfB_.row(y_);
    const auto byteOf = [](std::span<const std::uint8_t> row, std::size_t i) {
      return i < row.size() ? row[i] : std::uint8_t{0};
    };
    const std::size_t bytes = std::max(a.size(), b.size());
    bool different = false;
    for (std::size_t i = 0; i < bytes; ++i) {
      const auto bits = static_cast<std::uint8_t>(byteOf(a, i) ^ byteOf(b, i));
      if (bits != 0) {
        addByte(i, bits);
        different = true;
      }
    }
    if (different) {
      differentRows_.push_back(y_);
    }
  }

  // bits: those that differ in byte i of row y_.
  void addByte(std::size_t i, std::uint8_t bits) {
    const std::uint8_t mask = pixelMask(i, pixelBits_);
    const std::uint8_t pixels =
        pixelsWithBits(static_cast<std::uint8_t>(bits & mask), bitsPerPixel_);
    difference_.pixels += static_cast<std::uint64_t>(std::popcount(pixels));
    difference_.paddingBits +=
        static_cast<std::uint64_t>(std::popcount(static_cast<std::uint8_t>(bits & ~mask)));
    if (pixels != 0 && !difference_.firstPixel) {
      const std::size_t bit = i * 8 + static_cast<std::size_t>(std::countl_zero(pixels));
      difference_.firstPixel = {static_cast<std::uint32_t>(bit / bitsPerPixel_), y_};
    }
  }

  [[nodiscard]] bool anyDifferent(const Range& rows) const {
    const auto row = std::lower_bound(differentRows_.begin(), differentRows_.end(), rows.begin);
    return row != differentRows_.end() && *row < rows.end;
  }

  const reader::StoredPlane& a_;
  const reader::StoredPlane& b_;
  reader::PlaneRows rowsOfA_;
  reader::PlaneRows rowsOfB_;
  unsigned bitsPerPixel_;
  std::size_t pixelBits_;
  std::function<void(std::uint32_t)> compared_;
  std::uint32_t y_ = 0;                       // the next row to compare
  std::vector<std::uint32_t> differentRows_;  // from top to bottom
  PlaneDifference difference_;
};

}  // namespace

bool PageDifference::samePixels() const {
  return comparable && std::all_of(planes.begin(), planes.end(),
                                   [](const PlaneDifference& plane) { return plane.pixels == 0; });
}

PageDifference differenceOf(const reader::Page& a, const reader::Page& b,
                            const RowsCompared& compared) {
  PageDifference difference;
  difference.comparable = a.bitsPerPixel == b.bitsPerPixel;
  if (!difference.comparable) {
    return difference;
  }
  const std::uint32_t width = std::max(a.widthPixels(), b.widthPixels());
  const auto rowsOf = [&](reader::Ink ink) {
    return std::uint64_t{std::max(a.plane(ink).rows(), b.plane(ink).rows())};
  };
  std::uint64_t all = 0;
  for (const reader::Ink ink : reader::kInks) {
    all += rowsOf(ink);
  }
  std::uint64_t done = 0;  // in the planes before
  for (const reader::Ink ink : reader::kInks) {
    const auto tell = [&](std::uint32_t rows) {
      if (all > 0) {
        compared(done + rows, all);
      }
    };
    difference.planes[reader::indexOf(ink)] =
        PlaneComparison(a.plane(ink), b.plane(ink), a.bitsPerPixel, width, tell).run();
    done += rowsOf(ink);
  }
  return difference;
}

}  // namespace gdi::gdiview
