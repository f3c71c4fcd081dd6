// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/scanline.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

// This file is compiled once for each set of instructions.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "raster/scanline.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h.
#include <hwy/highway.h>

#include "platform/processor/dispatch.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr std::size_t kChannels = 4;

// The plainest set of instructions has vectors of one byte: there all is left to what follows the
// vectors.
#if HWY_TARGET != HWY_SCALAR

using Tag = hn::CappedTag<std::uint8_t, 64>;
using Bytes = hn::Vec<Tag>;

HWY_INLINE Bytes reversedPixels(Bytes bytes) {
  const hn::Repartition<std::uint32_t, Tag> d;
  return hn::BitCast(Tag(), hn::Reverse(d, hn::BitCast(d, bytes)));
}

HWY_INLINE Bytes reversedBytes(Bytes bytes) {
  alignas(16) static constexpr std::array<std::uint8_t, 16> kOrder = {3,  2,  1, 0, 7,  6,  5,  4,
                                                                      11, 10, 9, 8, 15, 14, 13, 12};
  return hn::TableLookupBytes(reversedPixels(bytes), hn::LoadDup128(Tag(), kOrder.data()));
}

#endif

// Mirrors whole vectors from both ends; answers the bytes of each end that are done.
template <std::size_t pixelBytes>
std::size_t mirrorEnds([[maybe_unused]] std::uint8_t* line, [[maybe_unused]] std::size_t size) {
  std::size_t done = 0;
#if HWY_TARGET != HWY_SCALAR
  const Tag d;
  const std::size_t lanes = hn::Lanes(d);
  for (; done + lanes <= size / 2; done += lanes) {
    std::uint8_t* const left = line + done;
    std::uint8_t* const right = line + (size - done - lanes);
    const Bytes first = hn::LoadU(d, left);
    const Bytes last = hn::LoadU(d, right);
    if constexpr (pixelBytes == 1) {
      hn::StoreU(reversedBytes(last), d, left);
      hn::StoreU(reversedBytes(first), d, right);
    } else {
      hn::StoreU(reversedPixels(last), d, left);
      hn::StoreU(reversedPixels(first), d, right);
    }
  }
#endif
  return done;
}

void mirror8(std::uint8_t* line, std::size_t size) {
  const std::size_t done = mirrorEnds<1>(line, size);
  std::reverse(line + done, line + (size - done));
}

void mirror32(std::uint8_t* line, std::size_t size) {
  std::size_t left = mirrorEnds<kChannels>(line, size);
  for (std::size_t right = size - left; left + kChannels < right; left += kChannels) {
    right -= kChannels;
    std::swap_ranges(line + left, line + left + kChannels, line + right);
  }
}

void addInk(const std::uint8_t* line, std::size_t size, std::uint8_t* ink) {
  std::size_t done = 0;
#if HWY_TARGET != HWY_SCALAR
  const Tag d;
  const std::size_t lanes = hn::Lanes(d);
  Bytes even = hn::Zero(d);
  Bytes odd = hn::Zero(d);
  for (; done + 2 * lanes <= size; done += 2 * lanes) {
    even = hn::Or(even, hn::LoadU(d, line + done));
    odd = hn::Or(odd, hn::LoadU(d, line + done + lanes));
  }
  HWY_ALIGN std::array<std::uint8_t, 64> both;
  hn::Store(hn::Or(even, odd), d, both.data());
  for (std::size_t i = 0; i < lanes; ++i) {
    ink[i % kChannels] |= both[i];
  }
#endif
  std::array<std::uint8_t, 2 * kChannels> twoPixels{};
  for (; done + twoPixels.size() <= size; done += twoPixels.size()) {
    std::uint64_t noted = 0;
    std::uint64_t next = 0;
    std::memcpy(&noted, twoPixels.data(), sizeof noted);
    std::memcpy(&next, line + done, sizeof next);
    noted |= next;
    std::memcpy(twoPixels.data(), &noted, sizeof noted);
  }
  for (std::size_t i = 0; i < twoPixels.size(); ++i) {
    ink[i % kChannels] |= twoPixels[i];
  }
  for (; done < size; ++done) {
    ink[done % kChannels] |= line[done];
  }
}

}  // namespace
}  // namespace gdi::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace gdi {

constexpr auto kMirror8 = GDI_VERSIONS(mirror8);
constexpr auto kMirror32 = GDI_VERSIONS(mirror32);
constexpr auto kAddInk = GDI_VERSIONS(addInk);

void mirrorRaster8(std::span<std::uint8_t> line) {
  version(kMirror8)(line.data(), line.size());
}

void mirrorRaster32(std::span<std::uint8_t> line) {
  version(kMirror32)(line.data(), line.size());
}

std::array<std::uint8_t, 4> inkOf(std::span<const std::uint8_t> line) {
  std::array<std::uint8_t, 4> ink{};
  version(kAddInk)(line.data(), line.size(), ink.data());
  return ink;
}

}  // namespace gdi
#endif
