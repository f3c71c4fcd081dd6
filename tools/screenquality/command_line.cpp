// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/command_line.h"

#include <algorithm>
#include <utility>

#include "tools/cli/parse_words.h"
#include "tools/screenquality/bundled_sets.h"
#include "tools/screenquality/run.h"

namespace gdi::screenquality {
namespace {

constexpr const char* kExitStatus =
    "Exit status: 0 all sets keep the rules and reach their goals, 1 one does not, 2 a set cannot\n"
    "be loaded or the tables not be written. docs/screens.md tells what the figures mean.";

}  // namespace

std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors) {
  CommandLine line;
  bool noBaselines = false;
  CLI::App app{"Tells how well the screen sets of a resources folder print", "screenquality"};
  app.footer(kExitStatus);
  app.add_option("FOLDER", line.resources, "Where ScreenSets.plist and Screens lie")->required();
  app.add_option("--only", line.only, "Judge the set of this key alone, as StandardPlainColor")
      ->option_text("KEY");
  app.add_flag("--no-baselines", noBaselines, "Judge the sets alone: no screens to compare with");
  app.add_flag("--robust", line.robust,
               "Tell whether sets stay ahead of the baselines in other printers and at other\n"
               "distances; takes minutes, unless for one set");
  app.add_flag("--bytes", line.bytes, "Tell what three sample pages compress to");
  if (const auto status = cli::parseWords(app, std::move(words), kUnusable, out, errors)) {
    return *status;
  }
  line.baselines = !noBaselines;
  if (!line.only.empty() && std::ranges::count(screenSetKeys(), line.only) == 0) {
    cli::tellFault(app, line.only + " is no key of a set", errors);
    return kUnusable;
  }
  return line;
}

}  // namespace gdi::screenquality
