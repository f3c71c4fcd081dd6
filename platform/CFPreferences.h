// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The preferences of the running program, kept in memory only: what one place of the program wishes
// and another obeys, such as the languages of its messages ("AppleLanguages").
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gdi {

// Sets or replaces a preference. Nothing is ever written to disk.
void CFPreferencesSetAppValue(std::string_view key, std::vector<std::string> value);

// A copy of the preference; empty when it was never set.
[[nodiscard]] std::vector<std::string> CFPreferencesCopyAppValue(std::string_view key);

}  // namespace gdi
