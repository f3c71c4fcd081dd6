// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/profile_path.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

class ProfilePath : public testing::Test {
 protected:
  [[nodiscard]] std::optional<std::filesystem::path> find(const std::string& name) const {
    const std::string first = first_.path().string();
    const std::string second = second_.path().string();
    const std::array<std::string_view, 2> folders{first, second};
    return profilePath(name, folders);
  }

  test::TestBundle bundle_;
  test::TemporaryFolder first_;
  test::TemporaryFolder second_;
};

TEST_F(ProfilePath, ThatIsAbsoluteIsTakenAsItStands) {
  EXPECT_EQ(find("/nowhere/x.icc"), "/nowhere/x.icc");
}

TEST_F(ProfilePath, OfANameIsThatOfTheBundleFirst) {
  const std::filesystem::path own = bundle_.folder().write("Profiles/x.icc", "");
  first_.write("Profiles/x.icc", "");
  EXPECT_EQ(find("Profiles/x.icc"), own);
}

TEST_F(ProfilePath, OfANameIsThatOfTheFirstFolderThatHasIt) {
  const std::filesystem::path inSecond = second_.write("x.icc", "");
  EXPECT_EQ(find("x.icc"), inSecond);
  const std::filesystem::path inFirst = first_.write("x.icc", "");
  EXPECT_EQ(find("x.icc"), inFirst);
}

TEST_F(ProfilePath, OfANameIsNoFolder) {
  first_.makeFolder("x.icc");
  EXPECT_EQ(find("x.icc"), std::nullopt);
}

TEST_F(ProfilePath, OfANameThatNobodyHasIsNone) {
  EXPECT_EQ(find("x.icc"), std::nullopt);
  EXPECT_EQ(find(""), std::nullopt);
}

TEST(SystemProfileFolders, AreSearchedInThisOrder) {
  const auto folders = systemProfileFolders();
  EXPECT_EQ((std::vector<std::string>(folders.begin(), folders.end())),
            (std::vector<std::string>{"/usr/share/cups/profiles", "/var/lib/color/icc",
                                      "/usr/local/share/color/icc", "/usr/share/color/icc",
                                      "/usr/share/color/icc/ghostscript",
                                      "/usr/share/color/icc/colord"}));
}

}  // namespace
}  // namespace gdi
