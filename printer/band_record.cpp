// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/band_record.h"

#include <algorithm>

#include "printer/format/big_endian.h"

namespace gdi {

namespace {

std::size_t lengthOffset(Plane plane) {
  switch (plane) {
    case Plane::kBlack:
      return band_record::kBlackLengthOffset;
    case Plane::kYellow:
      return band_record::kYellowLengthOffset;
    case Plane::kMagenta:
      return band_record::kMagentaLengthOffset;
    case Plane::kCyan:
      break;
  }
  return band_record::kCyanLengthOffset;
}

}  // namespace

std::array<std::uint8_t, band_record::kLength> bandRecord(const BandRecordFields& fields) {
  using namespace band_record;
  std::array<std::uint8_t, kLength> record{};
  std::ranges::copy(kTag, record.begin() + kTagOffset);
  putBigEndian32(record, kFlagsOffset,
                 (fields.firstBand ? kFirstBandFlag : 0) | (fields.lastBand ? kLastBandFlag : 0));
  putBigEndian32(record, lengthOffset(fields.plane), fields.length);
  putBigEndian16(record, kRowBitsOffset, fields.rowBits);
  putBigEndian16(record, kRowsOffset, fields.rows);
  record[kBlankPageOffset] = fields.lastBand && fields.blankPage ? 1 : 0;
  return record;
}

char planeLetter(Plane plane) {
  constexpr std::array kLetters{'K', 'C', 'M', 'Y'};
  return kLetters.at(static_cast<std::size_t>(plane));
}

}  // namespace gdi
