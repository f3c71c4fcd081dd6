// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How a colour that the destination cannot print is brought into its range, and whether black ink
// is left black.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace gdi {

// The engine's rendering intent for a profile header's and a word of "ColorPreserveBlack":
//   ""       all inks are matched alike
//   "ink"    colours of black ink alone stay black ink alone, by the tone
//   "plane"  the black ink of every colour stays, by the tone; the other inks make up for it
// Header intents: 0 perceptual, 1 relative, 2 saturation. 3, absolute, counts as relative, since it
// prints the colour of the source's paper on all that is blank; any other counts as perceptual.
// Nothing for any other word.
[[nodiscard]] std::optional<std::uint32_t> renderingIntentFor(std::uint32_t headerIntent,
                                                              std::string_view preserveBlack);

}  // namespace gdi
