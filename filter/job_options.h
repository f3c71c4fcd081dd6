// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job's options (argv[5]) and the questions about them that need no filter object.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gdi {

// One option as given, both UTF-8.
struct JobOption {
  std::string name;
  std::string value;
};

// Option name to value; values stand as they were given.
using OptionsDict = std::map<std::string, std::string, std::less<>>;

// Parses options as the spooler passes them ("media=A4 nocollate fit-to-page"), in the order in
// which libcups lists them. What libcups makes of an option is what counts: a bare `name` is
// "true", `noname` is "false", `name=` is empty: docs/quirks.md, "Bare options". Null gives none.
std::vector<JobOption> parseJobOptions(const char* text);

// The option's value; nothing when absent.
std::optional<std::string> optionValue(const OptionsDict& options, std::string_view name);

// The option's value; `fallback` when it is absent or empty.
std::string optionValueOr(const OptionsDict& options, std::string_view name,
                          std::string_view fallback);

// Whether the option "media" and the option "PaperType" both name paper that may be printed on
// both sides. Unknown and absent ones may.
bool canDuplexPaper(const OptionsDict& options);

// YES of the platform: "true" or "yes", in any case.
bool isTrueWord(std::string_view value);

}  // namespace gdi
