// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// ICC profiles, opened and closed.
#pragma once

#include "platform/ColorSync/CMError.h"
#include "platform/ColorSync/CMProfileLocation.h"

namespace gdi {

struct OpaqueCMProfile;
using CMProfileRef = OpaqueCMProfile*;

// Opens the profile at that location; the caller closes it. Of a file only its header is judged:
// whether it can stand in a colour world, the world says. On an error `profile` is null: fnfErr,
// permErr, ioErr, cmInvalidProfile, cmInvalidProfileLocation.
[[nodiscard]] CMError CMOpenProfile(CMProfileRef& profile, const CMProfileLocation& location);

// Null is closed without effect. Colour worlds made of the profile stay.
void CMCloseProfile(CMProfileRef profile);

}  // namespace gdi
