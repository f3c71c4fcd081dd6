// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What stands behind a profile reference.
#pragma once

#include <memory>

#include <lcms2.h>

namespace gdi {

struct ProfileCloser {
  void operator()(cmsHPROFILE profile) const { cmsCloseProfile(profile); }
};

struct OpaqueCMProfile {
  std::unique_ptr<void, ProfileCloser> profile;  // never null
};

}  // namespace gdi
