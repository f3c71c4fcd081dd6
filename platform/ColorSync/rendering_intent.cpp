// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/rendering_intent.h"

#include <lcms2.h>

namespace gdi {

std::optional<std::uint32_t> renderingIntentFor(std::uint32_t headerIntent,
                                                std::string_view preserveBlack) {
  std::uint32_t intent = INTENT_PERCEPTUAL;
  if (headerIntent == INTENT_SATURATION) {
    intent = INTENT_SATURATION;
  } else if (headerIntent == INTENT_RELATIVE_COLORIMETRIC ||
             headerIntent == INTENT_ABSOLUTE_COLORIMETRIC) {
    intent = INTENT_RELATIVE_COLORIMETRIC;
  }
  if (preserveBlack.empty()) {
    return intent;
  }
  if (preserveBlack == "ink") {
    return INTENT_PRESERVE_K_ONLY_PERCEPTUAL + intent;
  }
  if (preserveBlack == "plane") {
    return INTENT_PRESERVE_K_PLANE_PERCEPTUAL + intent;
  }
  return std::nullopt;
}

}  // namespace gdi
