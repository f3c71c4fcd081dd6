// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The order in which a page's bands are sent: black first, the other planes some bands behind it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "reader/records.h"

namespace gdi::reader {

// Bands of each plane that have arrived, indexed by indexOf(ink).
using BandCounts = std::array<std::uint32_t, kInkCount>;

// The plane whose band is next on a colour page of `bandsPerPlane` bands a plane, when the bands
// that have arrived did so in the writer's order; nothing when they did not or all are there.
std::optional<Ink> nextInWriterOrder(const BandCounts& arrived, std::uint32_t bandsPerPlane);

// The bands of each plane that the first `steps` steps of such a page send.
BandCounts bandsOfSteps(std::uint32_t steps, std::uint32_t bandsPerPlane);

}  // namespace gdi::reader
