// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMDeviceProfile.h"

#include <gtest/gtest.h>

#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

constexpr std::uint32_t kScanners = 0x73636E72;  // 'scnr'

class DeviceProfiles : public testing::Test {
 protected:
  explicit DeviceProfiles(const std::string& information = R"({ ColorDevices = {
    "4711" = { DefaultProfile = 2; Profiles = { "1" = "plain.icc"; "2" = "/icc/glossy.icc"; }; };
    "-1" = { Profiles = { "0" = (none); "7" = ""; }; };
    "8" = { DefaultProfile = "2 or 3"; };
    "9" = { DefaultProfile = 5; };
    "10" = broken;
  }; })") {
    bundle_.folder().write("Info.plist", information);
  }

  test::TestBundle bundle_;
  CMProfileLocation location_;
};

TEST_F(DeviceProfiles, AreFoundByTheIDsOfDeviceAndProfile) {
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 4711, 1, location_), noErr);
  EXPECT_EQ(pathOfLocation(location_), "plain.icc");
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 4711, 2, location_), noErr);
  EXPECT_EQ(pathOfLocation(location_), "/icc/glossy.icc");
}

TEST_F(DeviceProfiles, OfAnUnknownDeviceAreNone) {
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 4712, 1, location_), cmDeviceNotRegistered);
  EXPECT_EQ(location_.locType, 0);
}

TEST_F(DeviceProfiles, AreThoseOfPrintersAlone) {
  EXPECT_EQ(CMGetDeviceProfile(kScanners, 4711, 1, location_), cmDeviceNotRegistered);
  std::int32_t profile = 3;
  EXPECT_EQ(CMGetDeviceDefaultProfileID(kScanners, 4711, profile), cmDeviceNotRegistered);
  EXPECT_EQ(profile, 3);
}

TEST_F(DeviceProfiles, OfAnUnknownIDAreNone) {
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 4711, 3, location_), cmDeviceProfilesNotFound);
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 9, 5, location_), cmDeviceProfilesNotFound);
}

TEST_F(DeviceProfiles, ThatAreNoTextsOrEmptyOnesAreNone) {
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, -1, 0, location_), cmDeviceProfilesNotFound);
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, -1, 7, location_), cmDeviceProfilesNotFound);
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 10, 0, location_), cmDeviceProfilesNotFound);
}

TEST_F(DeviceProfiles, HaveTheDefaultThatTheDeviceStates) {
  std::int32_t profile = 0;
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, 4711, profile), noErr);
  EXPECT_EQ(profile, 2);
}

TEST_F(DeviceProfiles, MayHaveADefaultThatTheDeviceHasNot) {
  std::int32_t profile = 0;
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, 9, profile), noErr);
  EXPECT_EQ(profile, 5);
}

TEST_F(DeviceProfiles, WithoutADefaultLeaveTheIDAsItIs) {
  std::int32_t profile = 6;
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, -1, profile),
            cmDeviceProfilesNotFound);
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, 8, profile),
            cmDeviceProfilesNotFound);
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, 4712, profile),
            cmDeviceNotRegistered);
  EXPECT_EQ(profile, 6);
}

class NoDeviceTable : public DeviceProfiles, public testing::WithParamInterface<const char*> {
 protected:
  NoDeviceTable() : DeviceProfiles(GetParam()) {}
};

TEST_P(NoDeviceTable, RegistersNoDevice) {
  std::int32_t profile = 6;
  EXPECT_EQ(CMGetDeviceProfile(cmPrinterDeviceClass, 0, 0, location_), cmDeviceNotRegistered);
  EXPECT_EQ(CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, 0, profile), cmDeviceNotRegistered);
}

INSTANTIATE_TEST_SUITE_P(OfAnyKind, NoDeviceTable,
                         testing::Values("", "{ Other = key; }", "{ ColorDevices = text; }",
                                         "{ ColorDevices = (a, list); }"));

}  // namespace
}  // namespace gdi
