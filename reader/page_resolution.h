// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How many pixels of a page make an inch, which no record tells.
#pragma once

#include <cstdint>

#include "reader/Page.h"

namespace gdi::reader {

// Pixels an inch, 600 unless the page's rows and the room in its rows say clearly, each within a
// hundredth, that its paper was filled at another usual resolution: 150 to 2400. The rows are those
// that the page record tells, and so a page that broke off has its resolution too.
std::uint32_t pixelsPerInchOf(const PageSummary& page);

}  // namespace gdi::reader
