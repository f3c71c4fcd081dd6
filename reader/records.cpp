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

JobRecord parseJobRecord(std::span<const std::uint8_t> bytes) {
  JobRecord record;
  record.length = bigEndian32(bytes, kRecordLengthOffset);
  record.copies = bigEndian16(bytes, job_record::kCopiesOffset);
  record.hostRecordLength = bigEndian16(bytes, job_record::kHostRecordLengthOffset);
  record.packedDate = bigEndian32(bytes, job_record::kDateOffset);
  record.color = bytes[job_record::kColorOffset] != 0;
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
  record.lengths[indexOf(Ink::kCyan)] = bigEndian32(bytes, band_record::kCyanLengthOffset);
  record.lengths[indexOf(Ink::kMagenta)] = bigEndian32(bytes, band_record::kMagentaLengthOffset);
  record.lengths[indexOf(Ink::kYellow)] = bigEndian32(bytes, band_record::kYellowLengthOffset);
  record.lengths[indexOf(Ink::kBlack)] = bigEndian32(bytes, band_record::kBlackLengthOffset);
  record.rowBits = bigEndian16(bytes, band_record::kRowBitsOffset);
  record.rows = bigEndian16(bytes, band_record::kRowsOffset);
  record.pageBlank = bytes[band_record::kBlankPageOffset] != 0;
  return record;
}

}  // namespace gdi::reader
