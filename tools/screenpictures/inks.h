// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pulses, toner and inks as colours on a screen.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "tools/screenpictures/Picture.h"
#include "tools/screenpictures/plane.h"

namespace gdi::screenpictures {

// Pictures of one ink have 16 greys; the place of white, of black, and of what parts pictures.
constexpr std::uint8_t kBlackPlace = 0;
constexpr std::uint8_t kWhitePlace = 15;
constexpr std::uint8_t kGapPlace = 13;
// In pictures of four inks the places of bare paper and of what parts pictures, a little black.
constexpr std::uint8_t kPaperPlace = 0;
constexpr std::uint8_t kPaleGreyPlace = 1;

// The laser's pulses, each centred in its pixel and as wide as the pixel's value says, in black on
// white: `samples` samples across and down a pixel, those that a pulse fills in part in grey.
Picture sentPicture(const Plane& plane, int samples);

// The toner that the model of print lays for them, on white that spreads no light. A sample for
// each point of developed().
Picture developedPicture(const Plane& plane, const PaperModel& paper);

// Cyan, magenta, yellow and black so developed and laid on each other, in their inks' colours; four
// shades of each, of toner none, a third, two thirds and whole. Requires: planes of one area.
Picture superposedPicture(std::span<const Plane, 4> planes, const PaperModel& paper);

}  // namespace gdi::screenpictures
