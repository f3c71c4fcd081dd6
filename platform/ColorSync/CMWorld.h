// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Colour worlds: from the colours of one profile to those of another.
#pragma once

#include "platform/ColorSync/CMBitmap.h"
#include "platform/ColorSync/CMError.h"
#include "platform/ColorSync/CMProfile.h"

namespace gdi {

struct OpaqueCMWorld;
using CMWorldRef = OpaqueCMWorld*;

// Makes the colour world from `source` to `destination`, CMYK to CMYK or grey to grey; the caller
// disposes of it, and may close the profiles before. The rendering intent is that of the source
// profile's header; what black text does, the information dictionary's "ColorPreserveBlack" says
// (rendering_intent.h). On an error `world` is null:
//   cmInvalidColorSpace       another pair of colour spaces
//   cmErrIncompatibleProfile  a class without device colours at that end: links, abstract, named;
//   or
//                             black to be preserved on what is no printer
//   paramErr                  no profile, or "ColorPreserveBlack" is none of its words
//   cmInvalidProfile          the tables that are needed are missing or broken
[[nodiscard]] CMError NCWNewColorWorld(CMWorldRef& world, CMProfileRef source,
                                       CMProfileRef destination);

// Matches the bitmap's pixels in place. Paper, a pixel without ink, stays paper. paramErr: the
// bitmap has no image, or rows shorter than its pixels; cmInvalidColorSpace: its space or pixel
// size is not that of the world. No pixel has changed then.
[[nodiscard]] CMError CWMatchBitmap(CMWorldRef world, const CMBitmap& bitmap);

// Null is disposed of without effect.
void CWDisposeColorWorld(CMWorldRef world);

}  // namespace gdi
