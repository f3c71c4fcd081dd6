// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/job_records.h"

#include <algorithm>
#include <span>

#include "printer/format/big_endian.h"

namespace gdi {

namespace {

constexpr std::size_t kHostNameBytes = 256;

// A record of zeros with its tag and length.
template <std::size_t Length>
std::array<std::uint8_t, Length> emptyRecord(const Tag& tag) {
  std::array<std::uint8_t, Length> record{};
  std::ranges::copy(tag, record.begin() + kTagOffset);
  putBigEndian32(record, kRecordLengthOffset, static_cast<std::uint32_t>(Length));
  return record;
}

// Fixed-width copy: a shorter text is padded with NULs, a longer one is cut and not terminated.
void putText(std::span<std::uint8_t> record, std::size_t offset, std::string_view text) {
  const std::string_view fitting = text.substr(0, kTextBytes);
  std::ranges::copy(fitting, record.subspan(offset, kTextBytes).begin());
}

}  // namespace

std::array<std::uint8_t, job_record::kLength> jobRecord(const JobRecordFields& fields) {
  using namespace job_record;
  auto record = emptyRecord<kLength>(kTag);
  putBigEndian16(record, kConstant100Offset, kConstant100);
  putBigEndian16(record, kCopiesOffset, fields.copies);
  putBigEndian16(record, kHostRecordLengthOffset, host_record::kLength);
  putBigEndian32(record, kDateOffset, fields.date);
  record[kColorOffset] = fields.color ? 1 : 0;
  record[kConstant1Offset] = kConstant1;
  record[kBitsPerPixelMinus1Offset] = static_cast<std::uint8_t>(fields.bitsPerPixel - 1);
  record[kConstant0Offset] = kConstant0;
  record[kConstant2Offset] = kConstant2;
  putText(record, kJobNameOffset, fields.jobName);
  return record;
}

std::array<std::uint8_t, host_record::kLength> hostRecord(std::string_view hostName,
                                                          std::string_view userName) {
  using namespace host_record;
  auto record = emptyRecord<kLength>(kTag);
  putText(record, kHostNameOffset, hostName);
  putText(record, kUserNameOffset, userName);
  return record;
}

std::array<std::uint8_t, page_record::kLength> pageRecord(const PageRecordFields& fields) {
  using namespace page_record;
  auto record = emptyRecord<kLength>(kTag);
  record[kMediaSizeOffset] = fields.mediaSize;
  record[kInputTrayOffset] = fields.inputTray;
  record[kPaperTypeOffset] = fields.paperType;
  putBigEndian16(record, kRowBitsOffset, fields.rowBits);
  putBigEndian16(record, kRowsOffset, fields.rows);
  record[kChannelsOffset] = fields.channels;
  record[kConstant1Offset] = kConstant1;
  putBigEndian16(record, kPageNumberOffset, fields.pageNumber);
  putBigEndian16(record, kBandCountOffset, fields.bandCount);
  putBigEndian32(record, kWidthOffset, fields.width);
  putBigEndian32(record, kHeightOffset, fields.height);
  return record;
}

std::string_view jobNameOfTitle(std::string_view title) {
  return title.starts_with('@') ? title.substr(1, title.find('(') - 1) : title;
}

std::uint32_t micrometresOfPoints(std::uint32_t points) {
  const double micrometres = static_cast<double>(points) / 72.0 * 25.4 * 1000.0;
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(static_cast<float>(micrometres)));
}

std::string hostName(int (*query)(char*, std::size_t)) {
  std::array<char, kHostNameBytes> name{};
  if (query(name.data(), name.size() - 1) != 0) {
    return "localhost";
  }
  return name.data();
}

std::span<const std::uint8_t> prologueBytes(std::string_view utf8) {
  // NOLINTNEXTLINE(*-reinterpret-cast): text as the bytes it is made of
  const std::span bytes(reinterpret_cast<const std::uint8_t*>(utf8.data()), utf8.size());
  std::size_t units = 0;
  for (const std::uint8_t byte : bytes) {
    if (byte < 0x80 || byte >= 0xC0) {
      units += byte >= 0xF0 ? 2 : 1;  // beyond the basic plane: a surrogate pair
    }
  }
  return bytes.first(std::min(units, bytes.size()));  // a text that is no UTF-8 may count more
}

}  // namespace gdi
