// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/cli/parse_words.h"

#include <algorithm>
#include <utility>

namespace gdi::cli {

std::optional<int> parseWords(CLI::App& app, std::vector<std::string> words, int refused,
                              std::ostream& out, std::ostream& errors) {
  try {
    // The parser takes the words from the back.
    std::ranges::reverse(words);
    app.parse(std::move(words));
  } catch (const CLI::Success& success) {
    const int status = app.exit(success, out, errors);
    if (!out.flush()) {
      errors << app.get_name() << ": the help cannot be written\n";
      return refused;
    }
    return status;
  } catch (const CLI::ParseError& error) {
    std::string fault = error.what();
    std::ranges::replace(fault, '\n', ' ');
    tellFault(app, fault, errors);
    return refused;
  }
  return std::nullopt;
}

void tellFault(const CLI::App& app, const std::string& fault, std::ostream& errors) {
  errors << app.get_name() << ": " << fault << "; " << app.get_name() << " --help tells more\n";
}

}  // namespace gdi::cli
