// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The property list of the screen sets, and the screen of each set's planes.
#pragma once

#include <string>

#include "tools/makescreens/parameters.h"

namespace gdi::makescreens {

// The file that holds the screen of a class, quality and plane, for example "plain-Fast-cyan".
std::string screenName(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane);

// ScreenSets.plist: a set for each quality, paper and mode ("Color", "Mono").
std::string screenSetsList(const Parameters& parameters);

// The bytes of that screen's file.
std::string makeScreen(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane);

}  // namespace gdi::makescreens
