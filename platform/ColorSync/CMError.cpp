// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMError.h"

namespace gdi {

const char* CMErrorText(CMError error) {
  switch (error) {
    case ioErr:
      return "it cannot be read";
    case fnfErr:
      return "there is no such file";
    case paramErr:
      return "a setting makes no sense";
    case permErr:
      return "it may not be read";
    case cmInvalidProfile:
      return "it is no sound ICC profile";
    case cmInvalidProfileLocation:
      return "its path is too long";
    case cmErrIncompatibleProfile:
      return "a profile of that class cannot stand there";
    case cmInvalidColorSpace:
      return "only CMYK to CMYK and grey to grey are matched";
    case cmDeviceNotRegistered:
      return "the device is not registered";
    case cmDeviceProfilesNotFound:
      return "the device has no such profile";
    default:
      return "error";
  }
}

}  // namespace gdi
