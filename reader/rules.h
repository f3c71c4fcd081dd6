// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The rules that a job stream is held against, and what is said when one is broken.
//
// A rule is either a rule of the format, whose breach is a violation, or a remark: the stream is as
// it may be, and yet somebody who looks for a fault wants to know. docs/job-stream.md lists all.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace gdi::reader {

enum class Rule : std::uint8_t {
  // The stream.
  kTag,
  kRecordOrder,
  kRecordLength,
  kTruncated,
  kEndMark,
  kAfterEnd,
  // The fields of a record by themselves.
  kConstant,
  kZeroField,
  kTextPadding,
  kBitsPerPixel,
  kColorFlag,
  kDate,
  kMediaCode,
  kTrayCode,
  kPaperCode,
  kChannels,
  kPageRowBits,
  kBandFlags,
  kBandPlane,
  kBandRows,
  kBandLength,
  kBlankFlag,
  // A band in its place on the page.
  kBandRowBits,
  kBandOrder,
  kFirstFlag,
  kLastFlag,
  kBandHeight,
  // A band's data.
  kBandData,
  kClearRow,
  kRecordMinimum,
  kTrailer,
  kBandEnd,
  kRowSlack,
  // A page as a whole.
  kPageNumber,
  kBandCount,
  kPageRows,
  kPageEnd,
  // Remarks.
  kNoPages,
  kNotCompressed,
  kCodecHabit,
  kWideRows,
  kStepsLeftOut,
  kBlankContent,
  kPaperSize,
};

struct RuleText {
  Rule rule;
  std::string_view name;      // as it is printed, for example "zero-field"
  std::string_view sentence;  // what holds in a stream that keeps it
  bool remark = false;
};

// Every rule once, in the order of the enumeration.
std::span<const RuleText> allRules();
const RuleText& textOf(Rule rule);

// A rule broken inside some bytes: a record, or a band's data.
struct Flaw {
  std::uint64_t offset = 0;  // bytes from the start of those bytes
  Rule rule = Rule::kTag;
  std::string text;  // what is there, in one line without line feed
};

// A rule broken in the stream.
struct Finding {
  std::uint64_t offset = 0;  // bytes from the start of the input
  Rule rule = Rule::kTag;
  std::string record;  // where, for example "page 1, cyan band 3"
  std::string text;

  [[nodiscard]] bool remark() const { return textOf(rule).remark; }
};

// Takes findings one by one, in the order in which they are found: none is stored by the reader, so
// that a stream of nothing but faults occupies no memory.
using FindingSink = std::function<void(const Finding&)>;

// "offset 336: page 1, black band 0: zero-field: byte 28 is 1". A remark has "note " before the
// rule's name.
std::string lineOf(const Finding& finding);

}  // namespace gdi::reader
