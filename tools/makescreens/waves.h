// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The waves that a screen's pattern is made of.
#pragma once

#include "tools/makescreens/lattice.h"

namespace gdi::makescreens {

// Whether the lattices have the same wave, or one that runs against it, among (a, b) / n,
// (c, d) / n, their sum and their difference: planes that do shift the page's colour with every
// small error of registration.
bool shareAWave(const Lattice& first, const Lattice& second);

}  // namespace gdi::makescreens
