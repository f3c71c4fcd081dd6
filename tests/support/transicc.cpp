// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/transicc.h"

#include <sstream>

#include "tests/support/ProgramInFolder.h"

namespace gdi::test {

// The calculator reads CMYK in per cent and grey from 0, black, to 255, a number a line or not;
// told so with -e it answers in 8 bits.
std::vector<std::uint8_t> transicc(const TransiccJob& job,
                                   const std::vector<std::uint8_t>& pixels) {
  ProgramInFolder program("transicc");
  std::ostringstream input;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    if (job.channels == 1) {
      input << 255 - pixels[i] << '\n';
    } else {
      input << pixels[i] / 2.55 << (i % job.channels == job.channels - 1 ? '\n' : ' ');
    }
  }
  program.folder().write("pixels", input.str());
  (void)program.run("-n -e " + job.options + " -i'" + job.source + "' -o'" + job.destination + "'",
                    "pixels");
  std::istringstream output(program.out());
  std::vector<std::uint8_t> matched;
  for (int value = 0; output >> value;) {
    matched.push_back(static_cast<std::uint8_t>(job.channels == 1 ? 255 - value : value));
  }
  return matched;
}

}  // namespace gdi::test
