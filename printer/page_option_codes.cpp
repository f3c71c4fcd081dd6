// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/page_option_codes.h"

#include "printer/format/option_code_tables.h"

namespace gdi {

std::uint8_t paperTypeCode(std::string_view paperType, std::string_view defaultPaperType) {
  return codeOf(kPaperTypes, paperType)
      .value_or(defaultPaperType == "Thin" ? kThinPaper : kPlainPaper);
}

std::uint8_t inputTrayCode(std::string_view inputTray) {
  return codeOf(kInputTrays, inputTray).value_or(kAutomaticTray);
}

std::uint8_t mediaSizeCode(std::string_view media) {
  return codeOf(kMediaSizes, media).value_or(media.empty() ? kLetter : kCustomMedia);
}

}  // namespace gdi
