// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/record_rules.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "codec/pc4sc4_format.h"
#include "printer/format/big_endian.h"
#include "printer/format/option_code_tables.h"
#include "printer/format/solvane_date.h"
#include "reader/counted.h"
#include "reader/records.h"

namespace gdi::reader {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t kDateZeroBit = 1U << 22;

// A constant of 8 or 16 bits.
struct ConstantField {
  std::size_t offset;
  std::size_t bytes;
  unsigned value;
};
constexpr std::array<ConstantField, 5> kJobConstants{{
    {job_record::kConstant100Offset, 2, job_record::kConstant100},
    {job_record::kHostRecordLengthOffset, 2, host_record::kLength},
    {job_record::kConstant1Offset, 1, job_record::kConstant1},
    {job_record::kConstant0Offset, 1, job_record::kConstant0},
    {job_record::kConstant2Offset, 1, job_record::kConstant2},
}};
constexpr std::array<ConstantField, 1> kPageConstants{{
    {page_record::kConstant1Offset, 1, page_record::kConstant1},
}};

class RecordRules {
 public:
  explicit RecordRules(Bytes bytes) : bytes_(bytes) {}

  void tell(std::size_t offset, Rule rule, std::string text) {
    flaws_.push_back({offset, rule, std::move(text)});
  }
  void length() {
    const std::uint32_t told = bigEndian32(bytes_, kRecordLengthOffset);
    if (told != bytes_.size()) {
      tell(kRecordLengthOffset, Rule::kRecordLength,
           "the record says that it has " + std::to_string(told) + " bytes and has " +
               std::to_string(bytes_.size()));
    }
  }
  void constants(std::span<const ConstantField> fields) {
    for (const ConstantField& field : fields) {
      const unsigned value =
          field.bytes == 2 ? bigEndian16(bytes_, field.offset) : bytes_[field.offset];
      if (value != field.value) {
        tell(field.offset, Rule::kConstant,
             "the field at byte " + std::to_string(field.offset) + " is " + std::to_string(value) +
                 ", not " + std::to_string(field.value));
      }
    }
  }
  void zeros(std::span<const ZeroField> fields) {
    for (const ZeroField& field : fields) {
      const Bytes bytes = bytes_.subspan(field.offset, field.bytes);
      const auto inked = std::ranges::find_if(bytes, [](std::uint8_t byte) { return byte != 0; });
      if (inked != bytes.end()) {
        const auto at = field.offset + static_cast<std::size_t>(inked - bytes.begin());
        const auto more = bytes.end() - inked - std::count(inked, bytes.end(), 0) - 1;
        tell(at, Rule::kZeroField,
             "byte " + std::to_string(at) + " is " + std::to_string(unsigned{*inked}) + ", not 0" +
                 (more > 0 ? ", nor " + counted(static_cast<std::uint64_t>(more), "more byte")
                           : std::string()));
      }
    }
  }
  void text(std::size_t offset, const char* name) {
    const Bytes field = bytes_.subspan(offset, kTextBytes);
    const auto end = std::ranges::find(field, std::uint8_t{0});
    const auto more = std::find_if(end, field.end(), [](std::uint8_t byte) { return byte != 0; });
    if (more != field.end()) {
      tell(offset + static_cast<std::size_t>(more - field.begin()), Rule::kTextPadding,
           std::string("the ") + name + " name has bytes behind its terminating NUL");
    }
  }
  // The code at `offset` must be in the table or be `other`.
  void code(std::size_t offset, Rule rule, std::span<const NamedCode> table,
            std::optional<std::uint8_t> other) {
    const std::uint8_t code = bytes_[offset];
    if (code != other && !nameOfCode(table, code)) {
      tell(offset, rule, "no such code is known: " + std::to_string(unsigned{code}));
    }
  }

  std::vector<Flaw> take() {
    std::ranges::stable_sort(flaws_, {}, &Flaw::offset);
    return std::move(flaws_);
  }

 private:
  Bytes bytes_;
  std::vector<Flaw> flaws_;
};

bool exists(std::uint32_t packedDate) {
  const NSCalendarDate date = dateWithSolvane(packedDate);
  const std::chrono::year_month_day day(std::chrono::year(date.year),
                                        std::chrono::month(static_cast<unsigned>(date.month)),
                                        std::chrono::day(static_cast<unsigned>(date.day)));
  const int leapSecond = 60;
  return day.ok() && date.hour < 24 && date.minute < 60 && date.second <= leapSecond &&
         (packedDate & kDateZeroBit) == 0;
}

std::vector<Flaw> flawsOfJobRecord(Bytes bytes) {
  RecordRules rules(bytes);
  const JobRecord record = parseJobRecord(bytes);
  rules.length();
  rules.constants(kJobConstants);
  rules.zeros(job_record::kZeroFields);
  rules.text(job_record::kJobNameOffset, "job");
  if (!exists(record.packedDate)) {
    rules.tell(job_record::kDateOffset, Rule::kDate,
               "no such date and time exists: " + std::to_string(record.packedDate));
  }
  if (record.colorFlag != 0) {
    rules.tell(job_record::kColorOffset, Rule::kColorFlag,
               "the colour flag is " + std::to_string(unsigned{record.colorFlag}) + ", not 0");
  }
  if (!isBitsPerPixel(record.bitsPerPixel)) {
    rules.tell(job_record::kBitsPerPixelMinus1Offset, Rule::kBitsPerPixel,
               "the job record says " + std::to_string(record.bitsPerPixel) + " bits a pixel");
  }
  return rules.take();
}

std::vector<Flaw> flawsOfHostRecord(Bytes bytes) {
  RecordRules rules(bytes);
  rules.length();
  rules.text(host_record::kHostNameOffset, "host");
  rules.text(host_record::kUserNameOffset, "user");
  rules.zeros(host_record::kZeroFields);
  return rules.take();
}

std::vector<Flaw> flawsOfPageRecord(Bytes bytes) {
  RecordRules rules(bytes);
  const PageRecord record = parsePageRecord(bytes);
  rules.length();
  rules.constants(kPageConstants);
  rules.zeros(page_record::kZeroFields);
  rules.code(page_record::kMediaSizeOffset, Rule::kMediaCode, kMediaSizes, kCustomMedia);
  rules.code(page_record::kInputTrayOffset, Rule::kTrayCode, kInputTrays, std::nullopt);
  rules.code(page_record::kPaperTypeOffset, Rule::kPaperCode, kPaperTypes, std::nullopt);
  if (record.rowBits % kRowBitsMultiple != 0) {
    rules.tell(page_record::kRowBitsOffset, Rule::kPageRowBits,
               "a row has " + std::to_string(record.rowBits) + " bits, which is no multiple of " +
                   std::to_string(kRowBitsMultiple));
  }
  if (record.channels != 1 && record.channels != kInkCount) {
    rules.tell(page_record::kChannelsOffset, Rule::kChannels,
               "the page has " + std::to_string(unsigned{record.channels}) + " planes, not 1 or 4");
  }
  return rules.take();
}

std::vector<Flaw> flawsOfBandRecord(Bytes bytes) {
  RecordRules rules(bytes);
  const BandRecord record = parseBandRecord(bytes);
  const std::uint32_t known = band_record::kFirstBandFlag | band_record::kLastBandFlag;
  if ((record.flags & ~known) != 0) {
    rules.tell(band_record::kFlagsOffset, Rule::kBandFlags,
               "the flags are " + std::to_string(record.flags) + "; only 1 and 2 exist");
  }
  if (std::ranges::count(record.lengths, 0U) < static_cast<std::ptrdiff_t>(kInkCount) - 1) {
    rules.tell(band_record::kBlackLengthOffset, Rule::kBandPlane,
               "more than one plane has a length");
  } else if (const std::optional<Ink> ink = record.ink()) {
    const std::uint32_t length = record.lengths[indexOf(*ink)];
    const std::uint64_t most = longestBandBytes(std::min<std::uint32_t>(record.rows, kBandHeight));
    if (length % pc4sc4::kBandAlignment != 0) {
      rules.tell(lengthOffsetOf(*ink), Rule::kBandLength,
                 "the band has " + std::to_string(length) + " bytes, which is no multiple of " +
                     std::to_string(pc4sc4::kBandAlignment));
    } else if (length > most && record.rows > 0) {
      rules.tell(lengthOffsetOf(*ink), Rule::kBandLength,
                 "the band has " + std::to_string(length) +
                     " bytes, and its rows can have no more than " + std::to_string(most));
    }
  }
  if (record.rows == 0 || record.rows > kBandHeight) {
    rules.tell(band_record::kRowsOffset, Rule::kBandRows,
               "the band has " + std::to_string(record.rows) + " rows, not 1 to " +
                   std::to_string(kBandHeight));
  }
  rules.zeros(band_record::kZeroFields);
  const std::uint8_t blank = bytes[band_record::kBlankPageOffset];
  if (blank > 1) {
    rules.tell(band_record::kBlankPageOffset, Rule::kBlankFlag,
               "the page-blank flag is " + std::to_string(unsigned{blank}));
  } else if (blank == 1 && !record.last()) {
    rules.tell(band_record::kBlankPageOffset, Rule::kBlankFlag,
               "the page-blank flag is set in a band that is not the page's last");
  }
  return rules.take();
}

}  // namespace

std::uint64_t longestBandBytes(std::uint32_t rows) {
  const std::uint64_t longestRowRecord = sizeof(pc4sc4::Word) * (1 + std::uint64_t{UINT16_MAX});
  return rows * longestRowRecord + pc4sc4::kBandAlignment;  // the trailer takes no more
}

std::vector<Flaw> flawsOfRecord(RecordKind kind, Bytes bytes) {
  switch (kind) {
    case RecordKind::kJob:
      return flawsOfJobRecord(bytes);
    case RecordKind::kHost:
      return flawsOfHostRecord(bytes);
    case RecordKind::kPage:
      return flawsOfPageRecord(bytes);
    case RecordKind::kBand:
      return flawsOfBandRecord(bytes);
    case RecordKind::kEndOfJob:
      break;
  }
  return {};
}

}  // namespace gdi::reader
