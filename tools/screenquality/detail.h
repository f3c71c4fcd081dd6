// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How much of a picture's detail a screen loses.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/PrintedScreen.h"

namespace gdi::screenquality {

constexpr int kDetailSide = 384;  // pixels across and down the detail image

// A level for each pixel, row by row: overlapping discs of many sizes and tones, thin strokes of
// three tints on white, a ramp, a zone plate; a quarter each.
std::vector<std::uint8_t> detailImage();

// The L* difference of the detail image, screened and printed, from the image in the screen's own
// tones, both as the eye sees them.
double detailLoss(const PrintedScreen& print, const Conditions& conditions);

// The same of the image as `values` of 0 to `steps`, and as the reflectances that are wanted.
double detailLoss(std::span<const std::uint8_t> values, int steps, std::span<const double> wanted,
                  const Conditions& conditions);

}  // namespace gdi::screenquality
