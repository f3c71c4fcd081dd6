// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the colour calls answer: 0 for success, else one of the platform's codes.
#pragma once

#include <cstdint>

namespace gdi {

using CMError = std::int32_t;

inline constexpr CMError noErr = 0;
inline constexpr CMError ioErr = -36;     // the file cannot be read
inline constexpr CMError fnfErr = -43;    // there is no such file
inline constexpr CMError paramErr = -50;  // an argument or a setting makes no sense
inline constexpr CMError permErr = -54;   // the file may not be read
inline constexpr CMError cmInvalidProfile = -4204;
inline constexpr CMError cmInvalidProfileLocation = -4205;
inline constexpr CMError cmErrIncompatibleProfile = -4208;  // wrong class for its place
inline constexpr CMError cmInvalidColorSpace = -4209;
inline constexpr CMError cmDeviceNotRegistered = -4229;
inline constexpr CMError cmDeviceProfilesNotFound = -4230;

// What the code means, in a few words of English that may end a sentence; "error" for any other.
[[nodiscard]] const char* CMErrorText(CMError error);

}  // namespace gdi
