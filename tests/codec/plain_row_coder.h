// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The row coder without wide instructions: words compared one by one, matches searched in chains.
#pragma once

#include <cstddef>
#include <cstdint>

namespace gdi::codectest {

// As gdi::pc4sc4::cmpCompressRow.
std::uint8_t* plainCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                               std::size_t units, std::uint8_t* output);

}  // namespace gdi::codectest
