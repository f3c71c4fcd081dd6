// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Profiles that were cut or changed: each is refused or matches, and nothing else happens.

#include <array>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/colorsync/real_profiles.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

#ifdef GDI_SLOW_BUILD
constexpr int kChanges = 8;
#else
constexpr int kChanges = 40;
#endif

// A real profile, a sound one of the same colours, and what the bundle says of black.
struct HostileCase {
  std::string profile;
  std::string partner;
  std::string preserveBlack{};
};

class HostileProfile : public testing::TestWithParam<HostileCase> {
 protected:
  // Uses the profile at both ends, on a few pixels; true when a colour world was made of it.
  static bool usable(const std::string& name) {
    const std::string& partner = GetParam().partner;
    const std::uint32_t channels = partner == test::kEvenGrey ? 1 : 4;
    bool made = false;
    for (const bool asSource : {true, false}) {
      const test::ColorWorld color(asSource ? name : partner, asSource ? partner : name);
      std::array<std::uint8_t, 12> pixels{0, 0, 0, 0, 255, 255, 255, 255, 3, 77, 150, 201};
      EXPECT_EQ(CWMatchBitmap(color.world, test::lineOf(pixels, channels)),
                color.error == noErr ? noErr : paramErr);
      made = made || color.world != nullptr;
    }
    return made;
  }

  test::TestBundle bundle_{{"ColorPreserveBlack", GetParam().preserveBlack}};
  std::string sound_ = test::contentsOf(GetParam().profile);
};

TEST_P(HostileProfile, ThatIsWholeIsUsable) {
  EXPECT_TRUE(usable(GetParam().profile));
}

TEST_P(HostileProfile, CutAnywhereIsRefusedOrUsed) {
  for (std::size_t size = 0; size < sound_.size(); size += 1 + sound_.size() / 17) {
    bundle_.folder().write("cut.icc", sound_.substr(0, size));
    const bool used = usable("cut.icc");
    EXPECT_FALSE(used && size < 128) << "not even a header, of " << size << " bytes";
  }
}

TEST_P(HostileProfile, ChangedAnywhereIsRefusedOrUsed) {
  std::mt19937 random(4711);  // NOLINT(cert-msc*): the same changes every time
  const auto below = [&](std::size_t limit) { return random() % limit; };
  // Header, list of tags, and the first bytes of the tags are where lengths and kinds stand.
  const std::size_t front = std::min<std::size_t>(sound_.size(), 600);
  for (int i = 0; i < kChanges; ++i) {
    std::string changed = sound_;
    for (std::size_t count = 1 + below(4); count > 0; --count) {
      changed[below(i % 3 == 0 ? sound_.size() : front)] = static_cast<char>(below(256));
    }
    bundle_.folder().write("changed.icc", changed);
    (void)usable("changed.icc");
  }
}

INSTANTIATE_TEST_SUITE_P(OfDebian, HostileProfile,
                         testing::Values(HostileCase{test::kMeasuredCMYK, test::kFormulaCMYK},
                                         HostileCase{test::kFormulaCMYK, test::kMeasuredCMYK},
                                         HostileCase{test::kFormulaCMYK, test::kMeasuredCMYK,
                                                     "ink"},
                                         HostileCase{test::kGrey, test::kEvenGrey}));

}  // namespace
}  // namespace gdi
