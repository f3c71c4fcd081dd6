// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/command_line.h"

#include <utility>

#include "tools/cli/parse_words.h"
#include "tools/searchscreens/run.h"

namespace gdi::searchscreens {
namespace {

constexpr double kMostSeconds = 1e6;
constexpr const char* kFooter =
    "Writes the better screen lines to standard output, progress to standard error.\n"
    "Exit status: 0 searched, 2 the parameters cannot be used or the lines not be written.\n"
    "docs/screens.md tells how the search goes.";

}  // namespace

std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors) {
  CommandLine line;
  CLI::App app{"Searches for halftone screens that print better", "searchscreens"};
  app.footer(kFooter);
  app.add_option("PARAMETERS", line.parameters, "The parameter file, resources/screens.conf")
      ->required();
  app.add_option("CLASS", line.paperClass, "The paper class, as plain")->required();
  app.add_option("QUALITY", line.quality, "The quality, as Fast")->required();
  app.add_option("MODE", line.mode, "Color for the four planes, Mono for the mono one")->required();
  CLI::Option* const seconds =
      app.add_option("--seconds", line.limits.seconds, "Search so long (120)")->option_text("N");
  app.add_option("--tries", line.limits.tries,
                 "Search so many tries instead: the same screens every time")
      ->check(CLI::Range(1L, 1'000'000'000L))
      ->excludes(seconds)
      ->option_text("N");
  app.add_option("--seed", line.limits.seed, "What chance begins with (1)")->option_text("N");
  app.add_flag("--shapes-only", line.limits.shapesOnly, "Keep the lattices");
  app.add_flag("--robust", line.limits.robust,
               "Let no baseline win in other printers and at other distances; slower");
  if (const auto status = cli::parseWords(app, std::move(words), kUnusable, out, errors)) {
    return *status;
  }
  // Written so that what is no number is refused, too.
  if (!(line.limits.seconds > 0.0 && line.limits.seconds <= kMostSeconds)) {
    cli::tellFault(app, "--seconds is no number above 0 up to 1000000", errors);
    return kUnusable;
  }
  return line;
}

}  // namespace gdi::searchscreens
