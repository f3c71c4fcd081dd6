// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pixel words compared many at a time, the answers as bits, the first word's the lowest. Compiled
// once for each kind of processor.

#if defined(GDI_CODEC_WORD_MASKS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef GDI_CODEC_WORD_MASKS_INL_H
#undef GDI_CODEC_WORD_MASKS_INL_H
#else
#define GDI_CODEC_WORD_MASKS_INL_H
#endif

#include <bit>
#include <cstdint>

#include <hwy/highway.h>

#include "codec/stream_word.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::pc4sc4::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

HWY_INLINE std::uint64_t unequalWords64(const std::uint8_t* a, const std::uint8_t* b) {
  return unequalWords(a, b, 64);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using WordTag = hn::CappedTag<std::uint16_t, 32>;
inline constexpr WordTag kWords;

HWY_INLINE hn::Vec<WordTag> wordsAt(const std::uint8_t* at) {
  return hn::LoadU(kWords, reinterpret_cast<const std::uint16_t*>(at));
}

template <class Mask>
HWY_INLINE std::uint64_t bitsOf(Mask mask) {
  std::uint64_t bits = 0;
  (void)hn::StoreMaskBits(kWords, mask, reinterpret_cast<std::uint8_t*>(&bits));
  return std::endian::native == std::endian::little ? bits : __builtin_bswap64(bits);
}

// Which of the 64 words at `a` differ from those at `b`.
HWY_INLINE std::uint64_t unequalWords64(const std::uint8_t* a, const std::uint8_t* b) {
  const std::size_t lanes = hn::Lanes(kWords);
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < 64; i += lanes) {
    bits |= bitsOf(hn::Ne(wordsAt(a + 2 * i), wordsAt(b + 2 * i))) << i;
  }
  return bits;
}

// Which of the 64 words at `a` are as `word`, which fills a vector.
HWY_INLINE std::uint64_t equalWords64(const std::uint8_t* a, hn::Vec<WordTag> word) {
  const std::size_t lanes = hn::Lanes(kWords);
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < 64; i += lanes) {
    bits |= bitsOf(hn::Eq(wordsAt(a + 2 * i), word)) << i;
  }
  return bits;
}

#endif

}  // namespace gdi::pc4sc4::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
