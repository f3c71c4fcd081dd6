// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/screen_samples.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

// This file is compiled once for each set of instructions.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "halftone/screens/screen_samples.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h.
#include <hwy/highway.h>

#include "halftone/screens/screen_samples_plain.h"
#include "halftone/screens/screen_vector-inl.h"
#include "platform/processor/dispatch.h"

HWY_BEFORE_NAMESPACE();
namespace gdi::HWY_NAMESPACE {
namespace {

#if HWY_TARGET == HWY_SCALAR

void screenWide(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                const ThresholdRow& row, int depth, std::uint8_t* output) {
  screenSamplesPlain(input, width, stride, row, depth, output);
}

#else

// Where a line is: the next sample, its column of the tile and its place in the output.
struct Position {
  std::size_t x = 0;
  std::size_t column = 0;
  std::uint8_t* output = nullptr;

  HWY_INLINE void advance(std::size_t lanes, std::size_t columns, std::size_t period, int depth) {
    x += lanes;
    column += columns;
    column -= column >= period ? period : 0;
    output += lanes * static_cast<std::size_t>(depth) / 8;
  }
};

// Screens the rest of a line, which may be less than a vector or of any stride, by way of a buffer.
template <int depth>
void screenRest(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                const ThresholdRow& row, Position at) {
  const std::size_t lanes = hn::Lanes(Tag());
  for (; at.x < width; at.advance(lanes, lanes % row.period, row.period, depth)) {
    HWY_ALIGN std::array<std::uint8_t, ThresholdTile::kReadable> samples{};
    HWY_ALIGN std::array<std::uint8_t, ThresholdTile::kReadable> pixels;
    const std::size_t count = std::min(lanes, width - at.x);
    for (std::size_t i = 0; i < count; ++i) {
      samples[i] = input[static_cast<std::ptrdiff_t>(at.x + i) * stride];
    }
    screenVector<depth>(hn::Load(Tag(), samples.data()), row, row.thresholds + at.column,
                        pixels.data());
    std::memcpy(at.output, pixels.data(), (count * depth + 7) / 8);
  }
}

// Screens as much of a line as whole vectors can be loaded of.
template <int depth, std::size_t stride>
Position screenVectors(const std::uint8_t* input, std::size_t width, const ThresholdRow& row,
                       Position at) {
  const std::size_t lanes = hn::Lanes(Tag());
  const std::size_t period = row.period;
  const std::size_t columns = lanes % period;
  const std::size_t loadable = stride == 1 ? width : width - 1;
  for (; at.x + lanes <= loadable; at.advance(lanes, columns, period, depth)) {
    screenVector<depth>(loadSamples<stride>(input + at.x * stride), row, row.thresholds + at.column,
                        at.output);
  }
  return at;
}

template <int depth>
void screenLine(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                const ThresholdRow& row, std::uint8_t* output) {
  Position at;
  at.output = output;
  if (stride == 1) {
    at = screenVectors<depth, 1>(input, width, row, at);
  } else if (stride == 4) {
    at = screenVectors<depth, 4>(input, width, row, at);
  }
  screenRest<depth>(input, width, stride, row, at);
}

void screenWide(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                const ThresholdRow& row, int depth, std::uint8_t* output) {
  switch (depth) {
    case 1:
      return screenLine<1>(input, width, stride, row, output);
    case 2:
      return screenLine<2>(input, width, stride, row, output);
    case 4:
      return screenLine<4>(input, width, stride, row, output);
    default:
      return screenLine<8>(input, width, stride, row, output);
  }
}

#endif

}  // namespace
}  // namespace gdi::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace gdi {

constexpr auto kScreenWide = GDI_VERSIONS(screenWide);

void screenSamples(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                   const ThresholdRow& row, int depth, std::uint8_t* output) {
  // The pixels of a byte are packed within wide words, the first in their lowest byte.
  if constexpr (std::endian::native == std::endian::little) {
    version(kScreenWide)(input, width, stride, row, depth, output);
  } else {
    screenSamplesPlain(input, width, stride, row, depth, output);
  }
}

}  // namespace gdi
#endif
