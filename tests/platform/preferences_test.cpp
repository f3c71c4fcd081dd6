// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "platform/CFPreferences.h"

namespace gdi {
namespace {

using Values = std::vector<std::string>;

TEST(Preferences, AreEmptyUntilSet) {
  EXPECT_EQ(CFPreferencesCopyAppValue("NeverSet"), Values());
}

TEST(Preferences, AreWhatWasSetLast) {
  CFPreferencesSetAppValue("Colours", {"cyan", "magenta"});
  EXPECT_EQ(CFPreferencesCopyAppValue("Colours"), (Values{"cyan", "magenta"}));
  CFPreferencesSetAppValue("Colours", {"black"});
  EXPECT_EQ(CFPreferencesCopyAppValue("Colours"), Values{"black"});
  EXPECT_EQ(CFPreferencesCopyAppValue("colours"), Values());
}

TEST(Preferences, AreHandedOutAsCopies) {
  CFPreferencesSetAppValue("Copy", {"kept"});
  Values copy = CFPreferencesCopyAppValue("Copy");
  copy.front() = "changed";
  EXPECT_EQ(CFPreferencesCopyAppValue("Copy"), Values{"kept"});
}

}  // namespace
}  // namespace gdi
