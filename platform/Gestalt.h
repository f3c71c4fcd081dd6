// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Questions about the system that the job was prepared on; here its version, which the bundle
// states.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace gdi {

using OSType = std::uint32_t;

inline constexpr OSType gestaltSystemVersion = 0x73797376;  // 'sysv'

inline constexpr std::int32_t gestaltUnknownErr = -5550;        // known selector, no answer
inline constexpr std::int32_t gestaltUndefSelectorErr = -5551;  // unknown selector

// Answers 0 and fills `response` (not null), or answers an error and leaves it as it is. The system
// version is that of the main bundle's information dictionary, key "SystemVersion".
std::int32_t Gestalt(OSType selector, std::int32_t* response);

// A version such as "10.4.0" as one decimal digit per 4 bits: 0x1040. The major number has one or
// two digits; minor and bug fix numbers above 9 count as 9; the bug fix number may be missing.
// Nothing for any other text.
[[nodiscard]] std::optional<std::int32_t> systemVersionFromText(std::string_view text);

}  // namespace gdi
