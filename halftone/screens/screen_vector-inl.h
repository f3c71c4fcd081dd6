// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One vector of samples screened by thresholds. Compiled once for each set of instructions, of
// which every one but the plainest has these functions.

// No usual guard: foreach_target.h includes this again for each of them.
#if defined(GDI_SCREEN_VECTOR_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef GDI_SCREEN_VECTOR_INL_H
#undef GDI_SCREEN_VECTOR_INL_H
#else
#define GDI_SCREEN_VECTOR_INL_H
#endif

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <hwy/highway.h>

#include "halftone/screens/ThresholdTile.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::HWY_NAMESPACE {
#if HWY_TARGET != HWY_SCALAR

namespace hn = hwy::HWY_NAMESPACE;

using Tag = hn::CappedTag<std::uint8_t, ThresholdTile::kReadable>;
using SignedTag = hn::RebindToSigned<Tag>;
using Samples = hn::Vec<Tag>;
using Counts = hn::Vec<SignedTag>;

// The samples at input[0], input[stride] and so on. Of every fourth, the three bytes behind the
// last are read, too.
template <std::size_t stride>
HWY_INLINE Samples loadSamples(const std::uint8_t* input) {
  static_assert(stride == 1 || stride == 4);
  const Tag d;
  if constexpr (stride == 1) {
    return hn::LoadU(d, input);
  } else {
    const std::size_t n = hn::Lanes(d);
    const Samples low = hn::ConcatEven(d, hn::LoadU(d, input + n), hn::LoadU(d, input));
    const Samples high =
        hn::ConcatEven(d, hn::LoadU(d, input + 3 * n), hn::LoadU(d, input + 2 * n));
    return hn::ConcatEven(d, high, low);
  }
}

// How samples are compared with thresholds: see ThresholdTile.h.
HWY_INLINE Counts flipped(Samples samples) {
  return hn::BitCast(SignedTag(), hn::Xor(samples, hn::Set(Tag(), 0x80)));
}

// One more where the sample reaches the threshold.
HWY_INLINE Counts countReached(Counts samples, const std::uint8_t* thresholds, Counts counts) {
  const SignedTag d;
  const Counts t = hn::BitCast(d, hn::LoadU(Tag(), thresholds));
  return hn::Sub(counts, hn::VecFromMask(d, hn::Gt(samples, t)));
}

// Writes a bit for each sample, the first of eight in the most significant.
HWY_INLINE void screenToBits(Samples samples, const std::uint8_t* thresholds,
                             std::uint8_t* output) {
  const Tag d;
  const SignedTag ds;
  alignas(16) static constexpr std::array<std::uint8_t, 16> kBackwards = {
      7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8};
  const auto backwards = hn::LoadDup128(d, kBackwards.data());
  const auto t = hn::TableLookupBytes(hn::LoadU(d, thresholds), backwards);
  const auto s = hn::TableLookupBytes(hn::BitCast(d, flipped(samples)), backwards);
  std::array<std::uint8_t, 8> bits;
  (void)hn::StoreMaskBits(ds, hn::Gt(hn::BitCast(ds, s), hn::BitCast(ds, t)), bits.data());
  std::memcpy(output, bits.data(), hn::Lanes(d) / 8);
}

// The even bytes, in both halves. TruncateTo would do, but some releases of Highway have it wrong.
HWY_INLINE Samples evenBytes(Samples bytes) {
  return hn::ConcatEven(Tag(), bytes, bytes);
}

// Packs values of `depth` bits, one a byte, the first in the most significant bits.
template <int depth>
HWY_INLINE void storePacked(Counts values, std::uint8_t* output) {
  const Tag d;
  if constexpr (depth == 2) {
    const hn::Repartition<std::uint32_t, Tag> four;
    const hn::Half<hn::Half<Tag>> quarter;
    const auto v = hn::BitCast(four, values);
    const auto upper = hn::Or(hn::ShiftLeft<6>(v), hn::ShiftRight<4>(v));
    const auto lower = hn::Or(hn::ShiftRight<14>(v), hn::ShiftRight<24>(v));
    const auto bytes = evenBytes(evenBytes(hn::BitCast(d, hn::Or(upper, lower))));
    hn::StoreU(hn::LowerHalf(quarter, hn::LowerHalf(bytes)), quarter, output);
  } else if constexpr (depth == 4) {
    const hn::Repartition<std::uint16_t, Tag> two;
    const hn::Half<Tag> half;
    const auto v = hn::BitCast(two, values);
    const auto both = hn::Or(hn::ShiftLeft<4>(v), hn::ShiftRight<8>(v));
    hn::StoreU(hn::LowerHalf(half, evenBytes(hn::BitCast(d, both))), half, output);
  } else {
    hn::StoreU(hn::BitCast(d, values), d, output);
  }
}

// Screens a vector of samples, the first with the thresholds at `thresholds`, to `depth` bits each.
template <int depth>
HWY_INLINE void screenVector(Samples samples, const ThresholdRow& row,
                             const std::uint8_t* thresholds, std::uint8_t* output) {
  if constexpr (depth == 1) {
    screenToBits(samples, thresholds, output);
  } else if (hn::AllTrue(Tag(), hn::Eq(samples, hn::Zero(Tag())))) {
    std::memset(output, 0, hn::Lanes(Tag()) * depth / 8);
  } else {
    const Counts compared = flipped(samples);
    Counts counts = hn::Zero(SignedTag());
    for (std::size_t rank = 0; rank < row.ranks; rank += 3) {
      counts = countReached(compared, thresholds, counts);
      counts = countReached(compared, thresholds + row.rankPitch, counts);
      counts = countReached(compared, thresholds + 2 * row.rankPitch, counts);
      thresholds += 3 * row.rankPitch;
    }
    storePacked<depth>(counts, output);
  }
}

#endif
}  // namespace gdi::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
