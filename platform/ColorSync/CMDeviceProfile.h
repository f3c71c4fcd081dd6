// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The registry of device profiles: which profiles a printer has, and which of them is its default.
//
// It is the table "ColorDevices" of the main bundle's information dictionary:
//   device ID = { DefaultProfile = profile ID; Profiles = { profile ID = file; ... }; }
// IDs are whole numbers in decimal. A file is a path, or a name that CMOpenProfile looks up.
#pragma once

#include <cstdint>

#include "platform/ColorSync/CMError.h"
#include "platform/ColorSync/CMProfileLocation.h"

namespace gdi {

inline constexpr std::uint32_t cmPrinterDeviceClass = 0x70727472;  // 'prtr'

// Fills `location` with where the device's profile of that ID is. cmDeviceNotRegistered: no such
// device, or another class than printers; cmDeviceProfilesNotFound: no such profile of it.
[[nodiscard]] CMError CMGetDeviceProfile(std::uint32_t deviceClass, std::int32_t deviceID,
                                         std::int32_t profileID, CMProfileLocation& location);

// Fills `profileID` with the ID of the device's default profile, whether or not it has that one.
// Errors as above, the latter when it has no default; `profileID` stays as it is then.
[[nodiscard]] CMError CMGetDeviceDefaultProfileID(std::uint32_t deviceClass, std::int32_t deviceID,
                                                  std::int32_t& profileID);

}  // namespace gdi
