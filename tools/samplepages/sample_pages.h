// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The three sample pages: what offices print, drawn by procedure.
//
// They are laid out for 600 dpi and for any size; A4 within its margins is 4800 x 6816. Their bytes
// depend on nothing but the shape: integers throughout, no files, no random numbers.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "tools/samplepages/PageSource.h"

namespace gdi::samplepages {

enum class Subject : std::uint8_t {
  kText,        // a heading in a tint, paragraphs in black at 11 point, edges smoothed
  kGraphics,    // flat tints, a bar and a pie chart, gradients, lines; edges hard
  kPhotograph,  // a landscape at 300 pixels an inch, each printed as 2 x 2, with black generation
};
inline constexpr std::array kSubjects{Subject::kText, Subject::kGraphics, Subject::kPhotograph};

// In lower case, for tables and file names.
const char* nameOf(Subject subject);

// Null, with one line on standard error, for a shape that is not valid.
std::unique_ptr<PageSource> samplePage(Subject subject, const PageShape& shape);

}  // namespace gdi::samplepages
