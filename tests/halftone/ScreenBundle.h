// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A main bundle of a test's own: an information dictionary and screen sets of tiny screens.
//
// Every plane of a set "...Color" has a screen of its own, so that mixed-up planes show. Screens
// are one cell without a pattern: a pixel's value depends on its sample alone.
//   depth 1 and 2: samples from 128 on give all bits set, others none
//   depth 4: samples 0-63, 64-127, 128-191, 192-255 give
//     cyan 0 1 2 3, magenta 0 4 5 6, yellow 0 7 8 9, black 0 12 13 14
#pragma once

#include <string>

#include "tests/support/TestBundle.h"

namespace gdi::test {

class ScreenBundle {
 public:
  // Makes the bundle and has the process use it. Sets: {Fast 1, Standard 2, Fine 4} x {Plain, Thin}
  // x {Color, Mono}; FastLabelsMono, whose depth is 2 and thus wrong. `tables` are further entries
  // of the information dictionary, in its older text form.
  explicit ScreenBundle(const TestBundle::Texts& information = {{"SystemVersion", "10.4.0"}},
                        const std::string& tables = "");

  // The folder, for further resources.
  [[nodiscard]] TemporaryFolder& folder() { return bundle_.folder(); }

  // As that of TestBundle.
  void setStrings(const std::string& language, const TestBundle::Texts& strings);

 private:
  TestBundle bundle_;
};

}  // namespace gdi::test
