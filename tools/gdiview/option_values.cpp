// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/option_values.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "tools/gdiview/diff_jobs.h"

namespace gdi::gdiview {

std::optional<std::uint32_t> numberOf(std::string_view text) {
  std::uint32_t value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end && value > 0 ? std::optional(value) : std::nullopt;
}

std::optional<std::uint32_t> reductionOf(std::string_view text) {
  if (text.starts_with("1/")) {
    text.remove_prefix(2);
  }
  return numberOf(text);
}

std::optional<Turned> turnedOf(std::string_view text) {
  if (text == "backs") {
    return Turned::kBacks;
  }
  if (text == "fronts") {
    return Turned::kFronts;
  }
  return text == "all" ? std::optional(Turned::kAll) : std::nullopt;
}

std::vector<std::string> namesIn(std::string_view text) {
  std::vector<std::string> names;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(','), text.size());
    if (length > 0) {
      names.emplace_back(text.substr(0, length));
    }
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return names;
}

std::string faultOfJob(const std::string& text) {
  return text.empty() ? "it must name a file, or be -" : "";
}

std::string faultOfPage(const std::string& text) {
  return numberOf(text) ? "" : "it must be a page's number, from 1 up";
}

std::string faultOfScale(const std::string& text) {
  return reductionOf(text) ? "" : "it must be 1/N with N from 1 up";
}

std::string faultOfFolder(const std::string& text) {
  return text.empty() ? "it must name a folder" : "";
}

std::string faultOfTurned(const std::string& text) {
  return turnedOf(text) ? "" : "it must be backs, fronts or all, not " + text;
}

std::string faultOfIgnored(const std::string& text) {
  const std::vector<std::string> names = namesIn(text);
  if (names.empty()) {
    return "it must name a field";
  }
  const std::vector<std::string> known = fieldNames();
  for (const std::string& name : names) {
    if (std::ranges::find(known, name) == known.end()) {
      return "there is no field " + name;
    }
  }
  return "";
}

}  // namespace gdi::gdiview
