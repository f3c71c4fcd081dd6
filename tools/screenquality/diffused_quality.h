// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The measure of error diffusion, as far as it can be taken without a tile.
#pragma once

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/quality.h"

namespace gdi::screenquality {

// Of a page in black alone at `steps` steps a pixel. Flat tints of 512 x 512 pixels are diffused
// and a border of 32 dropped: the pattern is taken through a Hann window, mean tones of the middle
// 256 x 256. Slow: some seconds.
Quality diffusedQuality(int steps, const Conditions& conditions);

}  // namespace gdi::screenquality
