// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/records.h"

#include <algorithm>

#include "printer/format/big_endian.h"

namespace gdi::reader {

namespace {

// A NUL-padded field that may fill its width without a NUL.
std::string text(std::span<const std::uint8_t> bytes, std::size_t offset) {
  const auto field = bytes.subspan(offset, kTextBytes);
  return {field.begin(), std::find(field.begin(), field.end(), std::uint8_t{0})};
}

}  // namespace

const char* nameOf(Ink ink) {
  switch (ink) {
    case Ink::kCyan:
      return "cyan";
    case Ink::kMagenta:
      return "magenta";
    case Ink::kYellow:
      return "yellow";
    case Ink::kBlack:
      break;
  }
  return "black";
}

std::size_t lengthOffsetOf(Ink ink) {
  switch (ink) {
    case Ink::kCyan:
      return band_record::kCyanLengthOffset;
    case Ink::kMagenta:
      return band_record::kMagentaLengthOffset;
    case Ink::kYellow:
      return band_record::kYellowLengthOffset;
    case Ink::kBlack:
      break;
  }
  return band_record::kBlackLengthOffset;
}

std::optional<Ink> BandRecord::ink() const {
  std::optional<Ink> used;
  for (const Ink ink : kInks) {
    if (lengths[indexOf(ink)] != 0) {
      if (used) {
        return std::nullopt;
      }
      used = ink;
    }
  }
  return used;
}

JobRecord parseJobRecord(std::span<const std::uint8_t> bytes) {
  JobRecord record;
  record.length = bigEndian32(bytes, kRecordLengthOffset);
  record.copies = bigEndian16(bytes, job_record::kCopiesOffset);
  record.hostRecordLength = bigEndian16(bytes, job_record::kHostRecordLengthOffset);
  record.packedDate = bigEndian32(bytes, job_record::kDateOffset);
  record.colorFlag = bytes[job_record::kColorOffset];
  record.bitsPerPixel = bytes[job_record::kBitsPerPixelMinus1Offset] + 1U;
  record.name = text(bytes, job_record::kJobNameOffset);
  return record;
}

HostRecord parseHostRecord(std::span<const std::uint8_t> bytes) {
  HostRecord record;
  record.length = bigEndian32(bytes, kRecordLengthOffset);
  record.hostName = text(bytes, host_record::kHostNameOffset);
  record.userName = text(bytes, host_record::kUserNameOffset);
  return record;
}

PageRecord parsePageRecord(std::span<const std::uint8_t> bytes) {
  PageRecord record;
  record.length = bigEndian32(bytes, kRecordLengthOffset);
  record.mediaSize = bytes[page_record::kMediaSizeOffset];
  record.inputTray = bytes[page_record::kInputTrayOffset];
  record.paperType = bytes[page_record::kPaperTypeOffset];
  record.rowBits = bigEndian16(bytes, page_record::kRowBitsOffset);
  record.rowsModulo64K = bigEndian16(bytes, page_record::kRowsOffset);
  record.channels = bytes[page_record::kChannelsOffset];
  record.number = bigEndian16(bytes, page_record::kPageNumberOffset);
  record.bandCount = bigEndian16(bytes, page_record::kBandCountOffset);
  record.widthMicrometres = bigEndian32(bytes, page_record::kWidthOffset);
  record.heightMicrometres = bigEndian32(bytes, page_record::kHeightOffset);
  return record;
}

BandRecord parseBandRecord(std::span<const std::uint8_t> bytes) {
  BandRecord record;
  record.flags = bigEndian32(bytes, band_record::kFlagsOffset);
  for (const Ink ink : kInks) {
    record.lengths[indexOf(ink)] = bigEndian32(bytes, lengthOffsetOf(ink));
  }
  record.rowBits = bigEndian16(bytes, band_record::kRowBitsOffset);
  record.rows = bigEndian16(bytes, band_record::kRowsOffset);
  record.pageBlank = bytes[band_record::kBlankPageOffset] != 0;
  return record;
}

}  // namespace gdi::reader
