// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Page header fields as the numbers that the stream gave.
#pragma once

#include <cstring>

namespace gdi {

// A field of an enumerated type: no enumerator may stand for its value, so it is never read as one.
template <typename Field>
unsigned valueOf(const Field& field) {
  unsigned value = 0;
  static_assert(sizeof field == sizeof value);
  std::memcpy(&value, &field, sizeof value);
  return value;
}

}  // namespace gdi
