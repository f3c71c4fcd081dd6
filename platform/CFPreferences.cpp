// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/CFPreferences.h"

#include <functional>
#include <map>
#include <utility>

namespace gdi {

namespace {

using Preferences = std::map<std::string, std::vector<std::string>, std::less<>>;

Preferences& preferences() {
  static Preferences values;
  return values;
}

}  // namespace

void CFPreferencesSetAppValue(std::string_view key, std::vector<std::string> value) {
  preferences().insert_or_assign(std::string(key), std::move(value));
}

std::vector<std::string> CFPreferencesCopyAppValue(std::string_view key) {
  const auto preference = preferences().find(key);
  return preference == preferences().end() ? std::vector<std::string>() : preference->second;
}

}  // namespace gdi
