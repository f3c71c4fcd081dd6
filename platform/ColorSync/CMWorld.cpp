// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMWorld.h"

#include <array>
#include <memory>
#include <numeric>
#include <span>
#include <string>
#include <utility>

#include <lcms2.h>

#include "platform/ColorSync/OpaqueCMProfile.h"
#include "platform/ColorSync/RememberedColors.h"
#include "platform/ColorSync/rendering_intent.h"
#include "platform/NSBundle.h"

namespace gdi {

struct OpaqueCMWorld {
  OpaqueCMWorld() = default;
  virtual ~OpaqueCMWorld() = default;
  OpaqueCMWorld(const OpaqueCMWorld&) = delete;
  OpaqueCMWorld& operator=(const OpaqueCMWorld&) = delete;

  // Whether the bitmap's pixels are of the kind that this world matches.
  [[nodiscard]] virtual bool takes(const CMBitmap& bitmap) const = 0;
  virtual void match(std::span<std::uint8_t> row) = 0;
};

namespace {

struct TransformDeleter {
  void operator()(cmsHTRANSFORM transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

// The engine's pixels of one format to pixels of the same; null when it cannot.
Transform makeTransform(cmsHPROFILE from, cmsHPROFILE to, cmsUInt32Number format,
                        std::uint32_t intent, cmsUInt32Number flags) {
  return Transform(cmsCreateTransform(from, format, to, format, intent, flags));
}

// The engine puts the whole way into one table of inks and interpolates in it.
class CMYKWorld : public OpaqueCMWorld {
 public:
  explicit CMYKWorld(Transform transform) : transform_(std::move(transform)) {}
  [[nodiscard]] bool takes(const CMBitmap& bitmap) const override {
    return bitmap.space == cmCMYK32Space && bitmap.pixelSize == 32;
  }
  void match(std::span<std::uint8_t> row) override { colors_.matchRow(row); }

 private:
  Transform transform_;
  RememberedColors colors_{[this](std::uint8_t* pixels, std::size_t count) {
    cmsDoTransform(transform_.get(), pixels, pixels, static_cast<cmsUInt32Number>(count));
  }};
};

// Every grey there is, matched beforehand without any interpolation.
class GreyWorld : public OpaqueCMWorld {
 public:
  explicit GreyWorld(const Transform& transform) {
    std::iota(matched_.begin(), matched_.end(), std::uint8_t{0});
    cmsDoTransform(transform.get(), matched_.data(), matched_.data(),
                   static_cast<cmsUInt32Number>(matched_.size()));
    matched_.front() = 0;
  }
  [[nodiscard]] bool takes(const CMBitmap& bitmap) const override {
    return bitmap.space == cmGray8Space && bitmap.pixelSize == 8;
  }
  void match(std::span<std::uint8_t> row) override {
    const std::array matched = matched_;  // which the row cannot overlap
    for (std::uint8_t& grey : row) {
      grey = matched[grey];
    }
  }

 private:
  std::array<std::uint8_t, 256> matched_{};
};

bool hasDeviceColors(cmsHPROFILE profile, bool asDestination) {
  switch (cmsGetDeviceClass(profile)) {
    case cmsSigDisplayClass:
    case cmsSigOutputClass:
    case cmsSigColorSpaceClass:
      return true;
    case cmsSigInputClass:
      return !asDestination;
    default:
      return false;
  }
}

}  // namespace

CMError NCWNewColorWorld(CMWorldRef& world, CMProfileRef source, CMProfileRef destination) {
  world = nullptr;
  if (source == nullptr || destination == nullptr) {
    return paramErr;
  }
  cmsHPROFILE from = source->profile.get();
  cmsHPROFILE to = destination->profile.get();
  if (!hasDeviceColors(from, false) || !hasDeviceColors(to, true)) {
    return cmErrIncompatibleProfile;
  }
  const cmsColorSpaceSignature space = cmsGetColorSpace(from);
  if (space != cmsGetColorSpace(to) || (space != cmsSigCmykData && space != cmsSigGrayData)) {
    return cmInvalidColorSpace;
  }
  const std::string preserveBlack =
      NSBundle::mainBundle().objectForInfoDictionaryKey("ColorPreserveBlack").value_or("");
  const std::optional<std::uint32_t> intent =
      renderingIntentFor(cmsGetHeaderRenderingIntent(from), preserveBlack);
  if (!intent) {
    return paramErr;
  }
  const bool color = space == cmsSigCmykData;
  if (color && !preserveBlack.empty() && cmsGetDeviceClass(to) != cmsSigOutputClass) {
    return cmErrIncompatibleProfile;  // the engine preserves the black of printers alone
  }
  // Ink is turned over for grey, of which profiles take 0 for black.
  Transform transform =
      color ? makeTransform(from, to, TYPE_CMYK_8, *intent, 0)
            : makeTransform(from, to, TYPE_GRAY_8_REV, *intent, cmsFLAGS_NOOPTIMIZE);
  if (transform == nullptr) {
    return cmInvalidProfile;
  }
  if (color) {
    world = new CMYKWorld(std::move(transform));
  } else {
    world = new GreyWorld(transform);
  }
  return noErr;
}

CMError CWMatchBitmap(CMWorldRef world, const CMBitmap& bitmap) {
  if (world == nullptr || bitmap.image == nullptr) {
    return paramErr;
  }
  if (!world->takes(bitmap)) {
    return cmInvalidColorSpace;
  }
  const std::size_t rowBytes = std::size_t{bitmap.width} * (bitmap.pixelSize / 8);
  if (rowBytes > bitmap.rowBytes) {
    return paramErr;
  }
  for (std::uint32_t row = 0; row < bitmap.height; ++row) {
    world->match({bitmap.image + std::size_t{row} * bitmap.rowBytes, rowBytes});
  }
  return noErr;
}

void CWDisposeColorWorld(CMWorldRef world) {
  const std::unique_ptr<OpaqueCMWorld> owned(world);
}

}  // namespace gdi
