// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How many bytes of compressed bands a page becomes when it is screened with given screens.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "halftone/screens/HalftoneScreen.h"
#include "tools/samplepages/PageSource.h"

namespace gdi::samplepages {

// The sum over all planes and bands, laid out and coded as the filter does, records not counted.
//   screens  four, for cyan, magenta, yellow and black; a mono page takes the last of however many
//   depth    bits a pixel: 1, 2 or 4
// Nothing, with one line on standard error, for other screens or depths. One call at a time in a
// process, as the codec demands.
std::optional<std::uint64_t> compressedBytes(const PageSource& page,
                                             std::span<const HalftoneScreen* const> screens,
                                             int depth);

}  // namespace gdi::samplepages
