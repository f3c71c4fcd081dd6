// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the planes of a colour page look like when they lie on each other, never quite in register.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/PatchPrinter.h"

namespace gdi::screenquality {

// Neutrals of three and four inks, two-colour tints, skin.
extern const std::array<Patch, 12> kPatches;

constexpr int kRegistrations = 6;      // ways in which the planes are moved
constexpr int kRegistrationError = 3;  // pixels that a plane is moved across and down at most

// In units of L*a*b*, root mean squares over patches and registrations.
struct Superposition {
  double pattern = 0.0;
  double coarse = 0.0;
  double noise = 0.0;
  double registration = 0.0;  // how far the mean colour wanders
};

Superposition superpositionOf(const PrintedPlanes& planes, const Conditions& conditions,
                              std::span<const Patch> patches = kPatches,
                              int registrations = kRegistrations);

}  // namespace gdi::screenquality
