// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/job_options.h"

#include <algorithm>
#include <array>

#include <cups/cups.h>

#include "platform/string_values.h"

namespace gdi {

namespace {

constexpr std::array<std::string_view, 15> kSimplexMedia{
    "A5",      "B6",    "A6",    "HalfLetter", "FS",    "Foolscap", "Folio",    "Env10",
    "Monarch", "EnvC5", "EnvC6", "EnvDL",      "Kai16", "Postcard", "ReplyPaid"};
constexpr std::string_view kCustomMediaPrefix = "Custom";
constexpr std::array<std::string_view, 7> kSimplexPaperTypes{
    "Plain90", "Thick", "Thick160", "Bond", "Cardstock", "Labels", "Envelope"};

}  // namespace

std::vector<JobOption> parseJobOptions(const char* text) {
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text, 0, &options);
  std::vector<JobOption> parsed;
  for (int i = 0; i < count; ++i) {
    const char* value = options[i].value;
    parsed.push_back({options[i].name, value != nullptr ? value : ""});
  }
  cupsFreeOptions(count, options);
  return parsed;
}

std::optional<std::string> optionValue(const OptionsDict& options, std::string_view name) {
  const auto option = options.find(name);
  return option == options.end() ? std::nullopt : std::optional(option->second);
}

std::string optionValueOr(const OptionsDict& options, std::string_view name,
                          std::string_view fallback) {
  const auto option = options.find(name);
  return option == options.end() || option->second.empty() ? std::string(fallback) : option->second;
}

bool canDuplexPaper(const OptionsDict& options) {
  const std::string media = optionValueOr(options, "media", "");
  const std::string paperType = optionValueOr(options, "PaperType", "");
  return std::ranges::find(kSimplexMedia, media) == kSimplexMedia.end() &&
         !media.starts_with(kCustomMediaPrefix) &&
         std::ranges::find(kSimplexPaperTypes, paperType) == kSimplexPaperTypes.end();
}

bool isTrueWord(std::string_view value) {
  return caseInsensitiveEqual(value, "true") || caseInsensitiveEqual(value, "yes");
}

}  // namespace gdi
