// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where else in a row a run of pixel words stands: the encoder's match search. Compiled once for
// each kind of processor.
//
// For every position there is a set of distances, those of the 128 at which the same word stands
// before it. A run of k words at p is found again at the distances that the sets of p to p + k - 1
// have in common, so the longest match is found for all distances at once.

#if defined(GDI_CODEC_MATCH_SEARCH_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef GDI_CODEC_MATCH_SEARCH_INL_H
#undef GDI_CODEC_MATCH_SEARCH_INL_H
#else
#define GDI_CODEC_MATCH_SEARCH_INL_H
#endif

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "codec/code_writer.h"
#include "codec/pc4sc4.h"
#include "codec/word_masks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::pc4sc4::HWY_NAMESPACE {

class MatchSearch {
 public:
  // Takes the words 0 to `last` of `row` as the row to search.
  void begin(const std::uint8_t* row, Position last) {
    std::memcpy(row_.data() + 2 * kWindow, row, 2 * static_cast<std::size_t>(last + 1));
    last_ = last;
    knownAt_ = -1;
  }

  // The run to copy to position `p`: the longest, the farthest of several, and the farthest of
  // those longer than 9 words if there are any. docs/quirks.md, "The farthest good match wins"
  Match find(Position p) {
    Distances common = p == knownAt_ ? known_ : sameWordBefore(p);
    if (common.empty()) {
      return {0, 0};
    }
    const Position limit = std::min(last_ - p + 1, kGoodEnoughLength + 1);
    Position length = 1;
    for (; length < limit; ++length) {
      const Distances next = sameWordBefore(p + length);
      const Distances both = common & next;
      if (both.empty()) {
        known_ = next;
        knownAt_ = p + length;
        break;
      }
      common = both;
    }
    const Position source = p - kWindow + common.farthest();
    if (length > kGoodEnoughLength) {
      length += sameWords(source + length, p + length);
    }
    return {source, length};
  }

 private:
  static constexpr Position kWindow = kMaxDistance;

  // Bit i stands for the word i places behind the one 128 before.
  struct Distances {
    std::uint64_t far;
    std::uint64_t near;
    [[nodiscard]] bool empty() const { return (far | near) == 0; }
    [[nodiscard]] Position farthest() const {
      return far != 0 ? std::countr_zero(far) : 64 + std::countr_zero(near);
    }
    Distances operator&(const Distances& other) const {
      return {far & other.far, near & other.near};
    }
  };

  [[nodiscard]] const std::uint8_t* wordAt(Position p) const {
    return row_.data() + 2 * (p + kWindow);
  }

  [[nodiscard]] Distances sameWordBefore(Position p) const {
    const auto word = hn::Set(kWords, loadPixelWord(wordAt(0), p));
    Distances same{equalWords64(wordAt(p - kWindow), word), equalWords64(wordAt(p - 64), word)};
    if (p < kWindow) {  // the row begins in the window
      if (p < 64) {
        same.far = 0;
        same.near = p == 0 ? 0 : same.near >> (64 - p) << (64 - p);
      } else {
        same.far = p == 64 ? 0 : same.far >> (kWindow - p) << (kWindow - p);
      }
    }
    return same;
  }

  // How many words from `p` on are as those from `q` on, up to the row's last.
  [[nodiscard]] Position sameWords(Position q, Position p) const {
    const Position limit = last_ - p + 1;
    for (Position count = 0; count < limit; count += 64) {
      const std::uint64_t unequal = unequalWords64(wordAt(q + count), wordAt(p + count));
      if (unequal != 0) {
        return std::min<Position>(limit, count + std::countr_zero(unequal));
      }
    }
    return limit;
  }

  Position last_ = 0;
  Position knownAt_ = 0;  // a position whose set of distances is known
  Distances known_{};
  // The row behind a window of words that count for nothing, and before as many again, so that
  // whole vectors can be compared everywhere.
  std::array<std::uint8_t, 2 * kWindow + kMaxEncodableRowBytes + 2 * kWindow> row_{};
};

}  // namespace gdi::pc4sc4::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
