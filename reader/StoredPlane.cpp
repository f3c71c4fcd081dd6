// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/StoredPlane.h"

#include <algorithm>
#include <utility>

#include "codec/pc4sc4.h"
#include "codec/pc4sc4_format.h"

namespace gdi::reader {

bool StoredPlane::append(std::uint32_t rows, std::vector<std::uint8_t> data) {
  const bool heldRowsCount = lostBeyond_ + heldRows_ <= arrivedRows_ + rows;
  if (rows_ + (heldRowsCount ? heldRows_ : 0) + rows > kMostRows) {
    Checksum bytes;
    bytes.add(data);
    appendLost(0, bytes);
    return false;
  }
  if (heldRowsCount) {
    countHeldRows();
  }
  held_.clear();
  heldRows_ = 0;
  arrivedRows_ += rows;
  data.shrink_to_fit();
  bands_.push_back({rows_, rows, std::move(data), {}});
  rows_ += rows;
  return true;
}

void StoredPlane::countHeldRows() {
  auto band = bands_.end() - static_cast<std::ptrdiff_t>(held_.size());
  for (const std::uint32_t rows : held_) {
    band->firstRow = rows_;
    band->rows = rows;
    rows_ += rows;
    ++band;
  }
  lostBeyond_ += heldRows_;
}

void StoredPlane::appendLost(std::uint32_t rows, const Checksum& bytes) {
  const bool counts = held_.empty() && std::uint64_t{rows_} + rows <= toldRows_;
  bands_.push_back({rows_, counts ? rows : 0, {}, bytes});
  if (counts) {
    rows_ += rows;
  } else {
    held_.push_back(rows);
    heldRows_ += rows;
  }
}

std::vector<std::uint8_t> StoredPlane::rowsOfBand(std::size_t band) const {
  const Band& stored = bands_[band];
  DecodedBand decoded = decodeBand(stored.data, stored.rows, rowBytes_);
  if (!decoded.complete) {
    decoded.rows.assign(stored.rows * rowBytes_, 0);
  }
  return std::move(decoded.rows);
}

std::span<const std::uint8_t> PlaneRows::row(std::uint32_t y) {
  if (y >= plane_.rows()) {
    return {};
  }
  if (y < firstRow_ || y >= endRow_) {
    const std::vector<StoredPlane::Band>& bands = plane_.bands();
    const auto below = std::upper_bound(
        bands.begin(), bands.end(), y,
        [](std::uint32_t wanted, const StoredPlane::Band& band) { return wanted < band.firstRow; });
    const auto band = static_cast<std::size_t>(below - bands.begin()) - 1;
    rows_ = plane_.rowsOfBand(band);
    firstRow_ = bands[band].firstRow;
    endRow_ = firstRow_ + bands[band].rows;
  }
  return std::span<const std::uint8_t>(rows_).subspan((y - firstRow_) * plane_.rowBytes(),
                                                      plane_.rowBytes());
}

// A row record is at least one stream word.
DecodedBand decodeBand(std::span<const std::uint8_t> data, std::uint32_t rows,
                       std::size_t rowBytes) {
  DecodedBand band;
  if (rows == 0 || rows > data.size() / sizeof(pc4sc4::Word)) {
    return band;
  }
  band.rows.resize(rows * rowBytes);
  std::vector<std::uint8_t> referenceRow(rowBytes);
  const auto words = qbx_DeCompress_PC4SC4(data, band.rows, static_cast<std::uint32_t>(rowBytes),
                                           static_cast<std::int32_t>(rows), referenceRow);
  band.complete = words.has_value();
  band.consumed = words.value_or(0) * sizeof(pc4sc4::Word);
  return band;
}

}  // namespace gdi::reader
