// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The planar stage: matches the colours of each chunky line where that is asked for, and screens it
// into one row of every plane, straight into the mapped scratch files from which the printer's
// stage collects finished bands.
//
// Everything of a page is made in startPage and undone in endPage; nothing survives between pages.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "bands/RasterBandBuffer.h"
#include "halftone/screens/Halftoner.h"
#include "platform/ColorSync/CMProfileLocation.h"
#include "platform/ColorSync/CMWorld.h"
#include "raster/RasterFilter.h"

namespace gdi {

class PlanarFilter : public RasterFilter {
 public:
  // Deletes the plane files of a page that was never ended, and its colour world.
  ~PlanarFilter() override;

  bool init() override;
  bool startPage(std::uint32_t page) override;
  bool sendRaster() override;
  bool endPage(std::uint32_t page) override;

 protected:
  static constexpr std::uint32_t kMaxChannels = kColorChannels;

  // The system version, 0x1040 for 10.4.0; 0, with an assertion in the log, when it is not known.
  static std::int32_t systemVersion();

  // One plane a channel, in the order of the bytes of a pixel: C, M, Y, K, or the one of a mono
  // page. Set from startPage to endPage.
  std::array<std::unique_ptr<RasterBandBuffer>, kMaxChannels> rasterBand;
  // The planes' geometry and orientation, set by the printer's stage before startPage of this one.
  std::uint32_t ditherBPP = 0;         // bits a plane pixel: 1, 2 or 4
  std::uint32_t ditherBitWidth = 0;    // bits a plane row, padded
  std::uint32_t ditherRowBytes = 0;    // bytes a plane row
  std::uint32_t ditherBandHeight = 0;  // rows a band: 256
  std::uint32_t ditherBandCount = 0;   // bands a page, as the printer is told
  bool flip = false;                   // store the page upside down

  std::unique_ptr<Halftoner> halftoner;
  std::string halftoneKey;

  // The page's colour matching, from startPage to endPage; null: lines pass unmatched.
  CMWorldRef colorWorld = nullptr;
  CMBitmap sourceBitmap;  // the line buffer; described with every colour world

 private:
  bool makePlanes();
  bool makePlane(std::size_t channel);
  bool chooseScreenSet();
  bool loadScreenSet();
  // Whether the current line prints nothing in that channel, so that its row may stay as it is.
  [[nodiscard]] bool lineIsBlank(std::size_t channel) const;
  // Sets up colour matching where the bundle asks for it. Always true: matching is an improvement,
  // never a condition.
  bool startColorSync();
  CMError makeColorWorld();
  CMError findSourceProfile(CMProfileLocation& location);
  CMError findDestinationProfile(CMProfileLocation& location);
  void matchLine();
  void endColorSync();
  // Tells the user, once a job, that colours expected to be matched are not. `why` is what the
  // error means when its own words do not say it.
  void warnUnmatched(const std::string& what, CMError error, const char* why = nullptr);
  void deletePlanes();

  // The last page's, for the next one, which mostly loads the same screens from the same files.
  std::unique_ptr<Halftoner> lastHalftoner_;
  bool paperStaysBlank_ = false;   // of the page's screens: see Halftoner::leavesPaperBlank
  bool matchingExpected_ = false;  // the bundle states a system before 10.3, not merely none
  bool unmatchedTold_ = false;
};

// The name of a page's screen set: quality, paper and colour mode in one word.
std::string screenSetKey(const std::string& quality, const std::string& paper,
                         const std::string& colorMode);

}  // namespace gdi
