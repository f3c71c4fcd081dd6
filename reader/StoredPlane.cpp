// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/StoredPlane.h"

#include <algorithm>
#include <utility>

#include "codec/pc4sc4.h"
#include "codec/pc4sc4_format.h"

namespace gdi::reader {

void StoredPlane::append(std::uint32_t rows, std::vector<std::uint8_t> data) {
  arrivedRows_ += rows;
  if (lostBeyond_ + heldRows_ <= arrivedRows_) {
    for (const std::uint32_t lostRows : held_) {
      add(lostRows, {});
    }
    lostBeyond_ += heldRows_;
  }
  held_.clear();
  heldRows_ = 0;
  data.shrink_to_fit();
  add(rows, std::move(data));
}

void StoredPlane::appendLost(std::uint32_t rows) {
  if (held_.empty() && std::uint64_t{rows_} + rows <= toldRows_) {
    add(rows, {});
    return;
  }
  held_.push_back(rows);
  heldRows_ += rows;
}

void StoredPlane::add(std::uint32_t rows, std::vector<std::uint8_t> data) {
  bands_.push_back({rows_, rows, std::move(data)});
  rows_ += rows;
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

std::span<const std::uint8_t> RowCursor::next() {
  const auto row = rows_.row(y_);
  y_ += row.empty() ? 0 : 1;
  return row;
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
