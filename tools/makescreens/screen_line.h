// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen as a line of the parameter file, which parameters.h reads.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/makescreens/parameters.h"

namespace gdi::makescreens {

// The `screen` statement of that class, quality and plane, without a line feed, in the columns of
// resources/screens.conf. The numbers are those of `screen`, which need not be the one that
// `parameters` holds there; reading the line gives exactly the same ones,
// but no orders of pixels.
std::string screenLine(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane, const ScreenParameters& screen);

// An `order` statement for each order that the screen has, of dots and of holes.
std::vector<std::string> orderLines(const Parameters& parameters, std::size_t paperClass,
                                    std::size_t quality, std::size_t plane,
                                    const ScreenParameters& screen);

}  // namespace gdi::makescreens
