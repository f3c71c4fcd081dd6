// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A second PC4SC4 encoder to hold the first one against: no chains, no state, no speed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tests/codec/band.h"

namespace gdi::codectest {

std::vector<std::uint8_t> plainCompress(const Band& band, bool finalBand);

// Where each row's record begins in the result of plainCompress, in stream words.
std::vector<std::size_t> recordStarts(const Band& band);

}  // namespace gdi::codectest
