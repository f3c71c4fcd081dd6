// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which pixel words of a row differ from its reference, as a set of bits. Compiled once for each
// kind of processor.

#if defined(GDI_CODEC_CHANGED_WORDS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef GDI_CODEC_CHANGED_WORDS_INL_H
#undef GDI_CODEC_CHANGED_WORDS_INL_H
#else
#define GDI_CODEC_CHANGED_WORDS_INL_H
#endif

#include <array>
#include <bit>
#include <cstdint>

#include "codec/pc4sc4.h"
#include "codec/stream_word.h"
#include "codec/word_masks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::pc4sc4::HWY_NAMESPACE {

class ChangedWords {
 public:
  // Compares `words` pixel words. False when all are the same, and nothing else may be asked then.
  bool compare(const std::uint8_t* row, const std::uint8_t* reference, Position words) {
    sets_ = (words + kSetBits - 1) / kSetBits;
    std::uint64_t any = 0;
    for (Position set = 0; set < sets_; ++set) {
      const Position first = set * kSetBits;
      const std::uint8_t* const a = row + 2 * first;
      const std::uint8_t* const b = reference + 2 * first;
      const std::uint64_t bits =
          first + kSetBits <= words ? unequalWords64(a, b) : unequalWords(a, b, words - first);
      changed_[static_cast<std::size_t>(set)] = bits;
      any |= bits;
    }
    return any != 0;
  }

  // The last changed word.
  [[nodiscard]] Position last() const {
    Position set = sets_ - 1;
    while (bitsOf(set) == 0) {
      --set;
    }
    return set * kSetBits + kSetBits - 1 - std::countl_zero(bitsOf(set));
  }
  // The first changed word at `p` or behind it; past the row's end when there is none.
  [[nodiscard]] Position nextChanged(Position p) const { return next(p, 0); }
  // The first word at `p` or behind it that is as in the reference.
  [[nodiscard]] Position nextEqual(Position p) const { return next(p, ~std::uint64_t{0}); }

 private:
  static constexpr Position kSetBits = 64;

  [[nodiscard]] std::uint64_t bitsOf(Position set) const {
    return changed_[static_cast<std::size_t>(set)];
  }
  // The first word from `p` on whose bit, turned over as in `turned`, is set.
  [[nodiscard]] Position next(Position p, std::uint64_t turned) const {
    Position set = p / kSetBits;
    if (set >= sets_) {
      return p;
    }
    std::uint64_t bits = (bitsOf(set) ^ turned) >> (p % kSetBits) << (p % kSetBits);
    while (bits == 0) {
      if (++set >= sets_) {
        return set * kSetBits;
      }
      bits = bitsOf(set) ^ turned;
    }
    return set * kSetBits + std::countr_zero(bits);
  }

  std::array<std::uint64_t, kMaxEncodableRowBytes / 2 / kSetBits> changed_;
  Position sets_ = 0;
};

}  // namespace gdi::pc4sc4::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
