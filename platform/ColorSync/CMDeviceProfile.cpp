// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMDeviceProfile.h"

#include <charconv>
#include <string>
#include <string_view>

#include "platform/NSBundle.h"

namespace gdi {

namespace {

// The entry of a table whose key is that number; null when there is none.
const PropertyListValue* findNumber(const PropertyListValue* table, std::int32_t number) {
  return table == nullptr ? nullptr : table->find(std::to_string(number));
}

const PropertyListValue* registeredDevice(std::uint32_t deviceClass, std::int32_t deviceID) {
  const PropertyListValue* information = NSBundle::mainBundle().infoDictionary();
  if (deviceClass != cmPrinterDeviceClass || information == nullptr) {
    return nullptr;
  }
  return findNumber(information->find("ColorDevices"), deviceID);
}

std::optional<std::int32_t> wholeNumber(std::string_view text) {
  std::int32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

}  // namespace

CMError CMGetDeviceProfile(std::uint32_t deviceClass, std::int32_t deviceID, std::int32_t profileID,
                           CMProfileLocation& location) {
  const PropertyListValue* device = registeredDevice(deviceClass, deviceID);
  if (device == nullptr) {
    return cmDeviceNotRegistered;
  }
  const PropertyListValue* file = findNumber(device->find("Profiles"), profileID);
  if (file == nullptr || file->string() == nullptr || file->string()->empty()) {
    return cmDeviceProfilesNotFound;
  }
  location = CMPathLocation(*file->string());
  return noErr;
}

CMError CMGetDeviceDefaultProfileID(std::uint32_t deviceClass, std::int32_t deviceID,
                                    std::int32_t& profileID) {
  const PropertyListValue* device = registeredDevice(deviceClass, deviceID);
  if (device == nullptr) {
    return cmDeviceNotRegistered;
  }
  const PropertyListValue* entry = device->find("DefaultProfile");
  const std::optional<std::int32_t> number =
      entry == nullptr ? std::nullopt : wholeNumber(entry->text().value_or(""));
  if (!number) {
    return cmDeviceProfilesNotFound;
  }
  profileID = *number;
  return noErr;
}

}  // namespace gdi
