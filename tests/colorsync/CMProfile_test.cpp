// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMProfile.h"

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/colorsync/real_profiles.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using test::OpenProfile;

class Profile : public testing::Test {
 protected:
  [[nodiscard]] CMError errorOf(const std::string& name) const {
    const OpenProfile opened((folder_.path() / name).string());
    EXPECT_EQ(opened.profile != nullptr, opened.error == noErr);
    return opened.error;
  }

  test::TestBundle bundle_;
  test::TemporaryFolder folder_;
};

TEST_F(Profile, IsOpenedByItsPath) {
  EXPECT_EQ(OpenProfile(test::kMeasuredCMYK).error, noErr);
}

TEST_F(Profile, IsOpenedByItsNameInOneOfTheSystemsFolders) {
  EXPECT_EQ(OpenProfile("default_cmyk.icc").error, noErr);
  EXPECT_EQ(OpenProfile("Gray.icc").error, noErr);
}

TEST_F(Profile, OfTheBundleGoesBeforeThatOfTheSystem) {
  bundle_.folder().write("default_cmyk.icc", "no profile at all");
  EXPECT_EQ(OpenProfile("default_cmyk.icc").error, cmInvalidProfile);
}

TEST_F(Profile, ThatIsNotThereIsNotFound) {
  EXPECT_EQ(errorOf("missing.icc"), fnfErr);
  EXPECT_EQ(errorOf("missing/folder.icc"), fnfErr);
  EXPECT_EQ(OpenProfile("nowhere.icc").error, fnfErr);
  EXPECT_EQ(OpenProfile("").error, fnfErr);
}

TEST_F(Profile, BelowAFileIsNotFound) {
  folder_.write("file", "");
  EXPECT_EQ(errorOf("file/below.icc"), fnfErr);
}

TEST_F(Profile, OfAPathThatIsTooLongIsNoLocation) {
  EXPECT_EQ(OpenProfile("/" + std::string(1024, 'x')).error, cmInvalidProfileLocation);
}

TEST_F(Profile, ThatIsAFolderCannotBeRead) {
  folder_.makeFolder("folder.icc");
  EXPECT_EQ(errorOf("folder.icc"), ioErr);
}

TEST_F(Profile, ThatIsAPipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo((folder_.path() / "pipe.icc").c_str(), 0600), 0);
  EXPECT_EQ(errorOf("pipe.icc"), ioErr);
}

// The rights of nobody, for root too, who may read everything.
class RightsOfNobody {
 public:
  RightsOfNobody() : lent_(geteuid() == 0 && seteuid(65534) == 0) {}
  ~RightsOfNobody() {
    if (lent_ && seteuid(0) != 0) {
      std::abort();
    }
  }
  RightsOfNobody(const RightsOfNobody&) = delete;
  RightsOfNobody& operator=(const RightsOfNobody&) = delete;

 private:
  bool lent_;
};

TEST_F(Profile, ThatMayNotBeReadIsRefused) {
  namespace fs = std::filesystem;
  fs::permissions(folder_.path(), fs::perms::owner_all | fs::perms::others_exec);
  fs::permissions(folder_.write("locked.icc", ""), fs::perms::none);
  fs::permissions(folder_.makeFolder("locked"), fs::perms::none);
  const RightsOfNobody rights;
  EXPECT_EQ(errorOf("locked.icc"), permErr);
  EXPECT_EQ(errorOf("locked/below.icc"), permErr);
}

TEST_F(Profile, ThatIsNoProfileIsInvalid) {
  folder_.write("empty.icc", "");
  folder_.write("text.icc", std::string(4096, 'x'));
  EXPECT_EQ(errorOf("empty.icc"), cmInvalidProfile);
  EXPECT_EQ(errorOf("text.icc"), cmInvalidProfile);
}

TEST_F(Profile, LargerThan64MiBIsInvalid) {
  const std::filesystem::path path = folder_.write("large.icc", "");
  std::filesystem::resize_file(path, (64U << 20U) + 1);  // holes, which take no room
  EXPECT_EQ(errorOf("large.icc"), cmInvalidProfile);
}

TEST_F(Profile, ThatIsNullIsClosedWithoutEffect) {
  CMCloseProfile(nullptr);
}

}  // namespace
}  // namespace gdi
