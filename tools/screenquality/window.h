// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A window through which a field is looked at that does not repeat.
#pragma once

#include <vector>

namespace gdi::screenquality {

// A square window that fades to nothing at its borders (Hann), of mean square 1.
std::vector<double> hannWindow(int side);

}  // namespace gdi::screenquality
