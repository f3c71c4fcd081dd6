// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What pages screened with the sets compress to.
#pragma once

#include <ostream>
#include <span>

#include "tools/screenquality/bundled_sets.h"

namespace gdi::screenquality {

// Writes a line a set: the bytes of compressed bands of the three sample pages on A4. False, with a
// line on standard error, when a page cannot be made or screened.
bool writePageBytes(std::ostream& out, std::span<const ScreenSet> sets);

}  // namespace gdi::screenquality
