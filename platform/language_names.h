// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The resource folder names that a language text stands for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gdi {

// The names to try, most specific first: "de_DE.UTF-8@euro" gives de_DE@euro, de_DE and de. A name
// with anything but letters, digits, "_", "-" and "@" in it is left out; a text
// too long for a folder's name gives none.
[[nodiscard]] std::vector<std::string> languageNames(std::string_view language);

}  // namespace gdi
