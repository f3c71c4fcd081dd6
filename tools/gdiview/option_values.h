// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The words behind the options as values, and what is said of a word that is none.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/gdiview/png_job.h"

namespace gdi::gdiview {

// A number from 1 up; nothing for anything else.
std::optional<std::uint32_t> numberOf(std::string_view text);
// The N of "1/N" or of a bare "N".
std::optional<std::uint32_t> reductionOf(std::string_view text);
// Of "backs", "fronts" or "all".
std::optional<Turned> turnedOf(std::string_view text);
// The names in "date,host"; empty ones are left out.
std::vector<std::string> namesIn(std::string_view text);

// Each answers what is wrong with the word, in one line, or nothing.
std::string faultOfJob(const std::string& text);
std::string faultOfPage(const std::string& text);
std::string faultOfScale(const std::string& text);
std::string faultOfFolder(const std::string& text);
std::string faultOfTurned(const std::string& text);
std::string faultOfIgnored(const std::string& text);

}  // namespace gdi::gdiview
