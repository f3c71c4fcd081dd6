// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The printer's own one-byte numbers for media size, input tray and paper type.
//
// Names are compared exactly; the numbers are not contiguous.
#pragma once

#include <cstdint>
#include <string_view>

namespace gdi {

// The option "PaperType". Any other name is 15 (thin) when the PPD's default paper type is exactly
// "Thin", else 1 (plain).
std::uint8_t paperTypeCode(std::string_view paperType, std::string_view defaultPaperType);

// The option "InputTray". Any other name is 0 (automatic).
std::uint8_t inputTrayCode(std::string_view inputTray);

// The option "media". Any other name is 255 (custom); none at all is 1 (Letter).
std::uint8_t mediaSizeCode(std::string_view media);

}  // namespace gdi
