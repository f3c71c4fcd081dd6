// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/page_header_dump.h"

#include <array>
#include <span>

#include "filter/log/debug_log.h"
#include "raster/header_field.h"

namespace gdi {

namespace {

constexpr std::array kAdvanceAndCutWords{"none", "file", "job", "set", "page"};
constexpr std::array kJogWords{"none", "file", "job", "set"};
constexpr std::array kEdgeWords{"top", "right", "bottom", "left"};
// 280 where 180 is meant: docs/quirks.md, "Orientation 280".
constexpr std::array kOrientationWords{"0", "90", "280", "270"};
constexpr std::array kColorOrderWords{"chunked", "banded", "planar"};

template <typename Field>
const char* word(std::span<const char* const> words, const Field& field) {
  return valueOf(field) < words.size() ? words[valueOf(field)] : "unknown";
}

const char* yesNo(const cups_bool_t& field) {
  return valueOf(field) != 0 ? "yes" : "no";
}

void dumpDeviceFields(const cups_page_header_t& h) {
  // The advance words are looked up with the distance: docs/quirks.md, "AdvanceDistance in words".
  CPSDebugLog("Page header: AdvanceDistance = %s", word(kAdvanceAndCutWords, h.AdvanceDistance));
  CPSDebugLog("Page header: Collate = %s", yesNo(h.Collate));
  CPSDebugLog("Page header: CutMedia = %s", word(kAdvanceAndCutWords, h.CutMedia));
  CPSDebugLog("Page header: Duplex = %s", yesNo(h.Duplex));
  CPSDebugLog("Page header: HWResolution = %u x %u", h.HWResolution[0], h.HWResolution[1]);
  CPSDebugLog("Page header: ImagingBoundingBox(l,b,w,h) = %u, %u, %u, %u", h.ImagingBoundingBox[0],
              h.ImagingBoundingBox[1], h.ImagingBoundingBox[2], h.ImagingBoundingBox[3]);
  CPSDebugLog("Page header: InsertSheet = %s", yesNo(h.InsertSheet));
  CPSDebugLog("Page header: Jog = %s", word(kJogWords, h.Jog));
  CPSDebugLog("Page header: LeadingEdge = %s", word(kEdgeWords, h.LeadingEdge));
  CPSDebugLog("Page header: Margins = %u x %u", h.Margins[0], h.Margins[1]);
  CPSDebugLog("Page header: ManualFeed = %s", yesNo(h.ManualFeed));
  CPSDebugLog("Page header: MediaPosition = %u", h.MediaPosition);
  CPSDebugLog("Page header: MediaWeight = %u", h.MediaWeight);
  CPSDebugLog("Page header: MirrorPrint = %s", yesNo(h.MirrorPrint));
  CPSDebugLog("Page header: NegativePrint = %s", yesNo(h.NegativePrint));
  CPSDebugLog("Page header: NumCopies = %u", h.NumCopies);
  CPSDebugLog("Page header: Orientation = %s", word(kOrientationWords, h.Orientation));
  CPSDebugLog("Page header: OutputFaceUp = %s", yesNo(h.OutputFaceUp));
  CPSDebugLog("Page header: PageSize = %u x %u", h.PageSize[0], h.PageSize[1]);
  CPSDebugLog("Page header: Separations = %s", yesNo(h.Separations));
  CPSDebugLog("Page header: TraySwitch = %s", yesNo(h.TraySwitch));
  CPSDebugLog("Page header: Tumble = %s", yesNo(h.Tumble));
}

void dumpRasterFields(const cups_page_header_t& h) {
  CPSDebugLog("Page header: cupsWidth = %u", h.cupsWidth);
  CPSDebugLog("Page header: cupsHeight = %u", h.cupsHeight);
  CPSDebugLog("Page header: cupsMediaType = %u", h.cupsMediaType);
  CPSDebugLog("Page header: cupsBitsPerColor = %u", h.cupsBitsPerColor);
  CPSDebugLog("Page header: cupsBitsPerPixel = %u", h.cupsBitsPerPixel);
  CPSDebugLog("Page header: cupsBytesPerLine = %u", h.cupsBytesPerLine);
  CPSDebugLog("Page header: cupsColorOrder = %s", word(kColorOrderWords, h.cupsColorOrder));
  CPSDebugLog("Page header: cupsColorSpace = %u", valueOf(h.cupsColorSpace));
  CPSDebugLog("Page header: cupsCompression = %u", h.cupsCompression);
  CPSDebugLog("Page header: cupsRowCount = %u", h.cupsRowCount);
  CPSDebugLog("Page header: cupsRowFeed = %u", h.cupsRowFeed);
  CPSDebugLog("Page header: cupsRowStep = %u", h.cupsRowStep);
}

}  // namespace

void dumpPageHeaders(const cups_page_header_t& header) {
  dumpDeviceFields(header);
  dumpRasterFields(header);
}

}  // namespace gdi
