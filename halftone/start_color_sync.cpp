// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The colour matching of the planar stage: its set-up for a page, each line, its end.

#include <cstdio>
#include <string>

#include "filter/log/debug_log.h"
#include "halftone/PlanarFilter.h"
#include "platform/ColorSync/CMDeviceProfile.h"
#include "platform/ColorSync/CMProfile.h"
#include "platform/NSBundle.h"

namespace gdi {

namespace {

constexpr std::int32_t kLastVersionWithoutUpstreamMatching = 0x102F;  // up to 10.2.x

// The path for a line of standard error: what would break the line is shown as '?'.
std::string quoted(const CMProfileLocation& location) {
  const std::string_view path(location.path.data(), location.path.size());
  std::string text("\"");
  for (const char character : path.substr(0, path.find('\0'))) {
    text += static_cast<unsigned char>(character) < ' ' ? '?' : character;
  }
  return text + "\"";
}

// The text under that key of the information dictionary; empty when there is none.
std::string informationText(std::string_view key) {
  const PropertyListValue* information = NSBundle::mainBundle().infoDictionary();
  const PropertyListValue* entry = information == nullptr ? nullptr : information->find(key);
  return entry != nullptr && entry->string() != nullptr ? *entry->string() : std::string();
}

}  // namespace

bool PlanarFilter::startColorSync() {
  const std::int32_t version = systemVersion();
  if (version > kLastVersionWithoutUpstreamMatching) {
    CPSDebugLog("startColorSync skipping OS version 0x%x", static_cast<unsigned>(version));
    return true;
  }
  matchingExpected_ = version != 0;
  if (const CMError error = makeColorWorld(); error != noErr) {
    CPSDebugLog("startColorSync failed: %d", static_cast<int>(error));
    return true;
  }
  sourceBitmap = {};
  sourceBitmap.image = rasterBuffer.data();
  sourceBitmap.width = rasterPixelCount;
  sourceBitmap.height = 1;
  sourceBitmap.rowBytes = rasterByteCount;
  sourceBitmap.pixelSize = channelCount == 1 ? 8 : 32;
  sourceBitmap.space = channelCount == 1 ? cmGray8Space : cmCMYK32Space;
  CPSDebugLog("startColorSync succeeded");
  return true;
}

CMError PlanarFilter::makeColorWorld() {
  CMProfileLocation sourceLocation;
  CMProfileLocation destinationLocation;
  CMProfileRef source = nullptr;
  CMProfileRef destination = nullptr;
  CMError error = findSourceProfile(sourceLocation);
  if (error == noErr) {
    error = findDestinationProfile(destinationLocation);
  }
  if (error == noErr) {
    error = CMOpenProfile(source, sourceLocation);
    if (error != noErr) {
      CPSDebugAssert_("CMOpenProfile failed on source profile: %d", static_cast<int>(error));
      warnUnmatched("source profile " + quoted(sourceLocation), error);
    }
  }
  if (error == noErr) {
    error = CMOpenProfile(destination, destinationLocation);
    if (error != noErr) {
      CPSDebugAssert_("CMOpenProfile failed on dest profile: %d", static_cast<int>(error));
      warnUnmatched("printer profile " + quoted(destinationLocation), error);
    }
  }
  if (error == noErr) {
    error = NCWNewColorWorld(colorWorld, source, destination);
    if (error != noErr) {
      CPSDebugAssert_("NCWNewColorWorld failed");
      warnUnmatched("from " + quoted(sourceLocation) + " to " + quoted(destinationLocation), error);
    }
  }
  CMCloseProfile(source);
  CMCloseProfile(destination);
  return error;
}

// The profile of the incoming pixels: the bundle's, else the one registered for the job's printer
// under the job's profile ID, else that printer's default.
CMError PlanarFilter::findSourceProfile(CMProfileLocation& location) {
  if (const std::string path = informationText("MacOS102SourceProfile"); !path.empty()) {
    location = CMPathLocation(path);
    return noErr;
  }
  const int device = intForOption("com.apple.print.PrinterInfo.PMColorDeviceID..n.");
  std::int32_t profile = intForOption("com.apple.print.PrintSettings.PMColorSyncProfileID..n.");
  const auto getProfile = [&] {
    const CMError error = CMGetDeviceProfile(cmPrinterDeviceClass, device, profile, location);
    if (error != noErr) {
      CPSDebugAssert_("CMGetDeviceProfile failed %d on source profile: %d, %d",
                      static_cast<int>(error), device, static_cast<int>(profile));
    }
    return error;
  };
  CMError error = getProfile();
  if (error != noErr) {
    error = CMGetDeviceDefaultProfileID(cmPrinterDeviceClass, device, profile);
    CPSDebugLog("CMGetDeviceDefaultProfileID %d, %d", device, static_cast<int>(profile));
    if (error == noErr) {
      error = getProfile();
    }
  }
  if (error != noErr) {
    warnUnmatched(
        "source profile " + std::to_string(profile) + " of device " + std::to_string(device),
        error);
  }
  return error;
}

CMError PlanarFilter::findDestinationProfile(CMProfileLocation& location) {
  const std::string path = cupsICCProfile.value_or("");
  if (path.empty()) {
    CPSDebugAssert_("No destination profile path");
    warnUnmatched("printer profile", fnfErr, "no cupsICCProfile names it");
    return fnfErr;
  }
  location = CMPathLocation(path);
  return noErr;
}

void PlanarFilter::matchLine() {
  if (colorWorld == nullptr) {
    return;
  }
  if (const CMError error = CWMatchBitmap(colorWorld, sourceBitmap); error != noErr) {
    CPSDebugAssert_("CWMatchBitmap failed: %d", static_cast<int>(error));
    warnUnmatched(channelCount == 1 ? "a page of black" : "a page of CMYK", error,
                  error == cmInvalidColorSpace ? "the profiles are for other colours" : nullptr);
  }
}

void PlanarFilter::endColorSync() {
  CWDisposeColorWorld(colorWorld);
  colorWorld = nullptr;
}

void PlanarFilter::warnUnmatched(const std::string& what, CMError error, const char* why) {
  if (matchingExpected_ && !unmatchedTold_) {
    (void)std::fprintf(stderr, "WARNING: colours are printed unmatched: %s: %s (%d)\n",
                       what.c_str(), why != nullptr ? why : CMErrorText(error),
                       static_cast<int>(error));
    unmatchedTold_ = true;
  }
}

}  // namespace gdi
