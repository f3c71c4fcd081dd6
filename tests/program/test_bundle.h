// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A filter bundle with small screens whose every output value a test can work out by itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace gdi::programtest {

inline constexpr char kPrologue[] = "PROLOGUE\r\n";

// Writes Info.plist (with the prologue above, SystemVersion 10.4.0 and `extraInfo` in the older
// text form), ScreenSets.plist for plain paper in every quality and mode, and the screens.
void writeTestBundle(const std::filesystem::path& folder, const std::string& extraInfo = "");

// The output value of test screen `plane` (0 to 3: C, M, Y, K) of that depth at a pixel.
std::uint32_t screenedValue(std::uint32_t plane, std::uint32_t depth, std::uint32_t x,
                            std::uint32_t y, std::uint8_t sample);

}  // namespace gdi::programtest
