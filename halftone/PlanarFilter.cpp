// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/PlanarFilter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>
#include <utility>

#include <cups/cups.h>
#include <unistd.h>

#include "filter/log/debug_log.h"
#include "platform/Gestalt.h"
#include "printer/format/job_stream_format.h"

namespace gdi {

namespace {

constexpr std::size_t kPathBytes = 1024;

const char* colorModeWord(std::uint32_t channels) {
  if (channels == 1) {
    return "Mono";
  }
  return channels == kColorChannels ? "Color" : "";
}

bool exitStartPage(bool result) {
  CPSDebugLog("PlanarFilter startPage: exiting - result: %d", result ? 1 : 0);
  return result;
}

}  // namespace

PlanarFilter::~PlanarFilter() {
  endColorSync();
  deletePlanes();
}

bool PlanarFilter::init() {
  const bool result = RasterFilter::init();
  if (result) {
    ditherBandHeight = kBandHeight;
  }
  CPSDebugLog("PlanarFilter init exiting with result: %d", result ? 1 : 0);
  return result;
}

bool PlanarFilter::startPage(std::uint32_t page) {
  CPSDebugLog("PlanarFilter startPage: page %d", static_cast<int>(page));
  if (!RasterFilter::startPage(page)) {
    return exitStartPage(false);
  }
  CPSDebugLog("Planar channel size: %u, channelCount: %d",
              cupsPageHeader.cupsWidth * cupsPageHeader.cupsHeight, static_cast<int>(channelCount));
  if (channelCount > kMaxChannels) {
    return exitStartPage(false);
  }
  return exitStartPage(makePlanes() && chooseScreenSet() && loadScreenSet() && startColorSync());
}

bool PlanarFilter::makePlanes() {
  for (std::size_t channel = 0; channel < channelCount; ++channel) {
    if (!makePlane(channel)) {
      return false;
    }
  }
  return true;
}

bool PlanarFilter::makePlane(std::size_t channel) {
  std::array<char, kPathBytes> path{};
  errno = 0;
  cups_file_t* file = cupsTempFile2(path.data(), static_cast<int>(path.size()));
  if (file != nullptr) {
    (void)cupsFileClose(file);  // only the name is wanted
    rasterBand.at(channel) = RasterBandBuffer::initWithPixelHeight(
        static_cast<int>(cupsPageHeader.cupsHeight), static_cast<int>(ditherRowBytes),
        static_cast<int>(ditherBandHeight), path.data());
  }
  if (rasterBand.at(channel) == nullptr) {
    (void)std::fprintf(stderr,
                       "ERROR: no scratch file \"%s\" for a plane of %u rows of %u bytes: %s\n",
                       path.data(), cupsPageHeader.cupsHeight, ditherRowBytes,
                       errno != 0 ? std::strerror(errno) : "too large");
    if (file != nullptr) {
      (void)unlink(path.data());  // an empty file that nobody will miss
    }
    return false;
  }
  rasterBand.at(channel)->setFlipped(flip);
  return true;
}

bool PlanarFilter::chooseScreenSet() {
  const std::string colorMode = colorModeWord(channelCount);
  const std::string paper = optionValueOr(optionsDict, "PaperType", "Plain");
  const std::string quality = optionValueOr(optionsDict, "Gradiation", "Fast");
  // The texts say startJob although they come from the page start: docs/quirks.md, "startJob".
  if (colorMode.empty()) {
    CPSDebugAssert_("PlanarFilter startJob: Color option missing");
  }
  if (paper.empty()) {
    CPSDebugAssert_("PlanarFilter startJob: PaperType option missing");
  }
  if (quality.empty()) {
    CPSDebugAssert_("PlanarFilter startJob: Gradiation option missing");
  }
  if (colorMode.empty() || paper.empty() || quality.empty()) {
    return false;
  }
  halftoneKey = screenSetKey(quality, paper, colorMode);
  return true;
}

bool PlanarFilter::loadScreenSet() {
  CPSDebugLog("PlanarFilter loading screen set: %s", halftoneKey.c_str());
  if (lastHalftoner_ != nullptr && lastHalftoner_->isCurrent(halftoneKey)) {
    halftoner = std::move(lastHalftoner_);
  } else {
    lastHalftoner_.reset();
    halftoner = Halftoner::initWithScreenSetKey(halftoneKey);
  }
  if (halftoner == nullptr) {
    CPSDebugAssert_("PlanarFilter failed to allocate halftoner");
    return false;
  }
  // Rows are sized by the quality word; a set of another depth would print rubbish or overrun.
  if (halftoner->outputDepth() != static_cast<int>(ditherBPP)) {
    (void)std::fprintf(stderr, "ERROR: screen set %s has depth %d where the page needs %u\n",
                       halftoneKey.c_str(), halftoner->outputDepth(), ditherBPP);
    return false;
  }
  paperStaysBlank_ = halftoner->leavesPaperBlank();
  return true;
}

std::int32_t PlanarFilter::systemVersion() {
  std::int32_t version = 0;
  if (const std::int32_t error = Gestalt(gestaltSystemVersion, &version); error != 0) {
    CPSDebugAssert_("Gestalt(gestaltSystemVersion) failed %d", static_cast<int>(error));
  }
  return version;
}

// Matched colours may print in any channel, but paper stays paper.
bool PlanarFilter::lineIsBlank(std::size_t channel) const {
  if (!paperStaysBlank_) {
    return false;
  }
  if (channelCount == kColorChannels && colorWorld == nullptr) {
    return lineInk.at(channel) == 0;
  }
  return lineInk == decltype(lineInk){};
}

bool PlanarFilter::sendRaster() {
  if (!RasterFilter::sendRaster()) {
    return false;
  }
  std::array<std::uint8_t*, kMaxChannels> rows{};
  bool rowsFound = true;
  for (std::size_t channel = 0; channel < channelCount; ++channel) {
    const auto& plane = rasterBand.at(channel);
    if (plane != nullptr && lineIsBlank(channel)) {
      continue;
    }
    if (plane == nullptr) {
      CPSDebugAssert_("PlanarFilter sendRaster: No rasterBand for this channel");
    } else {
      rows.at(channel) = plane->rasterLine(static_cast<int>(rasterLineNumber));
    }
    if (rows.at(channel) == nullptr) {
      CPSDebugAssert_("PlanarFilter sendRaster: rasterBand:rasterLine return NULL");
      rowsFound = false;
    }
  }
  matchLine();
  if (!rowsFound || !halftoner->halftoneChunkyScanlineToPlanar(
                        rasterBuffer.data(), static_cast<int>(rasterPixelCount),
                        static_cast<int>(rasterLineNumber), std::span(rows).first(channelCount),
                        static_cast<int>(channelCount))) {
    CPSDebugAssert_("PlanarFilter sendRaster: halftoneChunkyScanlineToPlanar failed");
    return false;
  }
  for (std::size_t channel = 0; channel < channelCount; ++channel) {
    const auto line = static_cast<int>(rasterLineNumber);
    if (rows.at(channel) != nullptr) {
      rasterBand.at(channel)->approveRasterLine(line);
    } else {
      rasterBand.at(channel)->approveBlankLine(line);
    }
  }
  return true;
}

bool PlanarFilter::endPage(std::uint32_t page) {
  const bool result = RasterFilter::endPage(page);
  deletePlanes();
  channelCount = 0;
  lastHalftoner_ = std::move(halftoner);
  halftoneKey.clear();
  endColorSync();
  return result;
}

void PlanarFilter::deletePlanes() {
  for (std::unique_ptr<RasterBandBuffer>& plane : rasterBand) {
    if (plane != nullptr && *plane->path() != '\0') {
      (void)unlink(plane->path());
    }
    plane.reset();
  }
}

std::string screenSetKey(const std::string& quality, const std::string& paper,
                         const std::string& colorMode) {
  return quality + paper + colorMode;
}

}  // namespace gdi
