// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What stands behind a profile reference.
#pragma once

#include <memory>

#include <lcms2.h>

namespace gdi {

struct OpaqueCMProfile {
  struct Closer {
    void operator()(cmsHPROFILE profile) const { cmsCloseProfile(profile); }
  };
  std::unique_ptr<void, Closer> profile;  // never null
};

}  // namespace gdi
