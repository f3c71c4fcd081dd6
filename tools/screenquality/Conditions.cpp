// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/Conditions.h"

#include <utility>

namespace gdi::screenquality {
namespace {

enum : std::size_t { kSmooth, kPlain, kRough };

constexpr std::array<std::pair<std::string_view, std::size_t>, 14> kPaperTypes{{
    {"Color", kSmooth},
    {"Thin", kPlain},
    {"Plain", kPlain},
    {"Plain90", kPlain},
    {"Preprinted", kPlain},
    {"Prepunched", kPlain},
    {"Letterhead", kPlain},
    {"Recycled", kRough},
    {"Bond", kRough},
    {"Thick", kRough},
    {"Thick160", kRough},
    {"Cardstock", kRough},
    {"Labels", kRough},
    {"Envelope", kRough},
}};

}  // namespace

const std::array<Conditions, 3> kPaperClasses{{
    {"smooth", {0.55, 0.43, 0.050, 0.9, 0.035}, 0.032, 1.5, 12.0, 0.14},
    {"plain", {0.58, 0.42, 0.055, 1.1, 0.035}, 0.040, 1.5, 12.0, 0.16},
    {"rough", {0.66, 0.41, 0.065, 1.4, 0.035}, 0.055, 1.8, 12.0, 0.19},
}};

std::vector<std::string_view> paperTypes() {
  std::vector<std::string_view> types;
  types.reserve(kPaperTypes.size());
  for (const auto& [name, index] : kPaperTypes) {
    types.push_back(name);
  }
  return types;
}

const Conditions* paperClassOf(std::string_view paperType) {
  for (const auto& [name, index] : kPaperTypes) {
    if (name == paperType) {
      return &kPaperClasses.at(index);
    }
  }
  return nullptr;
}

}  // namespace gdi::screenquality
