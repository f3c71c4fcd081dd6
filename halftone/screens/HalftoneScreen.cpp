// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/HalftoneScreen.h"

#include <cinttypes>
#include <cstddef>
#include <cstdio>

#include "halftone/screens/file_contents.h"
#include "halftone/screens/screen_samples.h"
#include "halftone/screens/screen_table.h"
#include "platform/processor/instruction_sets.h"

namespace gdi {

std::unique_ptr<HalftoneScreen> HalftoneScreen::initWithFile(const std::filesystem::path& path) {
  const auto data = contentsOfFile(path);
  return data ? loadFromData(*data) : nullptr;
}

std::unique_ptr<HalftoneScreen> HalftoneScreen::loadFromData(std::span<const std::uint8_t> data) {
  const auto headerLength = screenHeaderLength(data);
  if (!headerLength) {
    return nullptr;
  }
  const auto header = parseScreenHeader(data.first(*headerLength));
  if (!header) {
    return nullptr;
  }
  const auto table = data.subspan(*headerLength + 1);
  const std::int64_t expected = header->tableBytes();
  const auto actual = static_cast<std::int64_t>(table.size());
  if (actual != expected) {
    (void)std::fprintf(stderr, "ERROR: expected a size of %" PRId64 ", got %" PRId64 "\n", expected,
                       actual);
    return nullptr;
  }
  return std::unique_ptr<HalftoneScreen>(new HalftoneScreen(*header, table));
}

namespace {

// Thresholds are compared with many samples at a time, or not at all.
std::optional<ThresholdTile> thresholdsOf(const ScreenHeader& header,
                                          std::span<const std::uint8_t> table) {
  return hasVectors() ? ThresholdTile::fromTable(header, table) : std::nullopt;
}

}  // namespace

// `table` is of the size that the header asks for, so it bounds what is allocated here.
HalftoneScreen::HalftoneScreen(const ScreenHeader& header, std::span<const std::uint8_t> table)
    : header_(header), thresholds_(thresholdsOf(header, table)) {
  if (thresholds_) {
    packedTable_.assign(table.begin(), table.end());
  } else {
    unpackedData_ = unpackedTable(header, table);
    leavesPaperBlank_ = tableLeavesPaperBlank(header_, unpackedData_);
  }
}

std::vector<std::uint8_t> HalftoneScreen::table() const {
  return thresholds_ ? unpackedTable(header_, packedTable_) : unpackedData_;
}

bool HalftoneScreen::processScanline(const std::uint8_t* input, int width, int inputStride, int row,
                                     std::uint8_t* outputBuffer, int outputDepth) const {
  if (width < 1) {
    return true;
  }
  if (!isValidDepth(outputDepth)) {
    (void)std::fprintf(stderr, "ERROR: outputDepth out of range - %d\n", outputDepth);
    return false;
  }
  const int remainder = row % header_.height;
  const auto tileRow =
      static_cast<std::size_t>(remainder < 0 ? remainder + header_.height : remainder);
  if (thresholds_) {
    screenSamples(input, static_cast<std::size_t>(width), inputStride,
                  thresholds_->row(tileRow, outputDepth), outputDepth, outputBuffer);
    return true;
  }
  const std::size_t rowEntries = unpackedData_.size() / static_cast<std::size_t>(header_.height);
  screenByTable(header_, std::span(unpackedData_).subspan(tileRow * rowEntries, rowEntries), input,
                width, inputStride, outputDepth, outputBuffer);
  return true;
}

}  // namespace gdi
