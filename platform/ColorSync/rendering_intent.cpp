// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/rendering_intent.h"

#include <lcms2.h>

namespace gdi {

std::optional<std::uint32_t> renderingIntentFor(std::uint32_t headerIntent,
                                                std::string_view preserveBlack) {
  const std::uint32_t intent =
      headerIntent <= INTENT_ABSOLUTE_COLORIMETRIC ? headerIntent : INTENT_PERCEPTUAL;
  if (preserveBlack.empty()) {
    return intent;
  }
  const std::uint32_t inGamut =
      intent == INTENT_ABSOLUTE_COLORIMETRIC ? INTENT_RELATIVE_COLORIMETRIC : intent;
  if (preserveBlack == "ink") {
    return INTENT_PRESERVE_K_ONLY_PERCEPTUAL + inGamut;
  }
  if (preserveBlack == "plane") {
    return INTENT_PRESERVE_K_PLANE_PERCEPTUAL + inGamut;
  }
  return std::nullopt;
}

}  // namespace gdi
