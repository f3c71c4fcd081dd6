// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How the band records of two pages differ, A's and B's.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "reader/Page.h"
#include "tools/gdiview/difference_words.h"

namespace gdi::gdiview {

// A line for each plane in which the pages have not as many bands, then one for each field that
// differs, which tells in how many records. Records are compared with those of the same place, and
// where they stand only when no plane has more of them than the other page's. A length that differs
// with the data is no difference of its own. isIgnored: whether a field may differ, by its name.
std::vector<DifferenceLine> bandRecordDifferences(
    const reader::Page& a, const reader::Page& b,
    const std::function<bool(const std::string&)>& isIgnored);

}  // namespace gdi::gdiview
