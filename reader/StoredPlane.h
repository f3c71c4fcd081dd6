// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One plane of one page, kept as its compressed bands; rows are decoded when somebody looks.
//
// What a plane occupies is thus bounded by the bytes that really arrived, not by the rows that
// records claim: a band of 256 blank rows of 8 kB is a few hundred bytes long. A lost band has no
// bytes at all, and so its rows count only as far as the page is told to have them; beyond that,
// where the told number has left 65,536s out, rows of bands that did arrive must pay for them. A
// band of 256 blank rows has 512 bytes at least, so a stream of many megabytes may claim more rows
// than anybody can count: a plane has kMostRows of them, and what comes behind is lost.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/Checksum.h"

namespace gdi::reader {

class StoredPlane {
 public:
  // 600 rows an inch: 710 metres.
  static constexpr std::uint32_t kMostRows = 1U << 24;

  struct Band {
    std::uint32_t firstRow = 0;
    std::uint32_t rows = 0;          // 1 to kBandHeight; 0 of a lost band whose rows do not count
    std::vector<std::uint8_t> data;  // empty for a band that is lost: its rows are blank
    Checksum lost;                   // of a lost band's bytes

    [[nodiscard]] bool isLost() const { return data.empty(); }
  };

  StoredPlane() = default;
  // rowBytes: a multiple of 16. toldRows: the rows that the page record tells.
  StoredPlane(std::size_t rowBytes, std::uint32_t toldRows)
      : rowBytes_(rowBytes), toldRows_(toldRows) {}

  // Adds the next band, top to bottom. rows: 1 to kBandHeight. `data` is not empty. False when
  // there are more than kMostRows rows with it: the band is lost then.
  bool append(std::uint32_t rows, std::vector<std::uint8_t> data);
  // Adds the next band, which is lost. rows: up to kBandHeight, or 0 when nobody knows. Rows beyond
  // the told ones are held back until a band follows; they stay out when more of them are lost than
  // have arrived.
  void appendLost(std::uint32_t rows, const Checksum& bytes = {});
  // Makes the rows longer or shorter; the bands that are there must decode to rows of that length.
  void setRowBytes(std::size_t rowBytes) { rowBytes_ = rowBytes; }

  [[nodiscard]] std::size_t rowBytes() const { return rowBytes_; }
  [[nodiscard]] std::uint32_t rows() const { return rows_; }
  // All bands that were added, in their order.
  [[nodiscard]] const std::vector<Band>& bands() const { return bands_; }

  // The rows of that band one after the other, rowBytes() each; a lost band's are zero.
  // requires: band < bands().size()
  [[nodiscard]] std::vector<std::uint8_t> rowsOfBand(std::size_t band) const;

 private:
  void countHeldRows();

  std::size_t rowBytes_ = 0;
  std::uint32_t toldRows_ = 0;
  std::uint32_t rows_ = 0;
  std::uint64_t arrivedRows_ = 0;    // of bands with data
  std::uint64_t lostBeyond_ = 0;     // lost rows beyond the told ones that count
  std::vector<std::uint32_t> held_;  // rows of the last bands, which are lost and held back
  std::uint64_t heldRows_ = 0;
  std::vector<Band> bands_;
};

// The rows of one plane in any order, one band decoded at a time: whoever goes through them from
// top to bottom or from bottom to top has each band decoded once.
class PlaneRows {
 public:
  // `plane` must outlive this, and may not change meanwhile.
  explicit PlaneRows(const StoredPlane& plane) : plane_(plane) {}

  // Row y, 0 on top: rowBytes() bytes, valid until the next call; empty below the last row.
  std::span<const std::uint8_t> row(std::uint32_t y);

 private:
  const StoredPlane& plane_;
  std::uint32_t firstRow_ = 0;      // of the band that is decoded
  std::uint32_t endRow_ = 0;        // behind it; firstRow_ while none is decoded
  std::vector<std::uint8_t> rows_;  // of that band
};

// What the decoder makes of one band.
struct DecodedBand {
  bool complete = false;           // every row record was decoded
  std::size_t consumed = 0;        // bytes, when complete
  std::vector<std::uint8_t> rows;  // rows x rowBytes bytes, when complete
};

// Decodes a band. Nothing is allocated for more rows than the data can hold.
DecodedBand decodeBand(std::span<const std::uint8_t> data, std::uint32_t rows,
                       std::size_t rowBytes);

}  // namespace gdi::reader
