// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/RecordReader.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "codec/pc4sc4_format.h"
#include "reader/counted.h"
#include "reader/record_rules.h"

namespace gdi::reader {

namespace {

// Band data is read in pieces of this size, so that a lying length costs no memory.
constexpr std::size_t kPieceBytes = 65536;

// How often a band whose length lies is searched for the records inside it: each search costs up to
// the longest band.
constexpr unsigned kMostShortenedBands = 64;

std::string hexadecimal(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    std::array<char, 4> digits{};
    (void)std::snprintf(digits.data(), digits.size(), "%s%02x", text.empty() ? "" : " ",
                        unsigned{byte});
    text += digits.data();
  }
  return text;
}

bool isFinalEndMark(std::span<const std::uint8_t> rest) {
  return rest.size() == sizeof(Tag) && kindOfTag(rest) == RecordKind::kEndOfJob;
}

// What else is told of the length is true of a length that lies.
void tellLength(RecordStep& step, Ink ink, std::string text) {
  std::erase_if(step.flaws, [](const Flaw& flaw) { return flaw.rule == Rule::kBandLength; });
  step.flaws.push_back({lengthOffsetOf(ink), Rule::kBandLength, std::move(text)});
  std::ranges::stable_sort(step.flaws, {}, &Flaw::offset);
}

}  // namespace

std::optional<RecordStep> RecordReader::next() {
  if (finished_) {
    return std::nullopt;
  }
  if (!started_) {
    started_ = true;
    return readPrologue();
  }
  const std::span<const std::uint8_t> start = source_.peek(sizeof(Tag));
  if (start.empty()) {
    return readEnd();
  }
  const bool follows = std::exchange(ended_, false);
  const std::optional<RecordKind> kind =
      start.size() < sizeof(Tag) && follows ? std::nullopt : kindOfTagStart(start);
  RecordStep step = kind ? readRecord(*kind) : readGap();
  if (follows && !std::exchange(toldWhatFollows_, true)) {
    std::erase_if(step.flaws, [](const Flaw& flaw) {
      return flaw.rule == Rule::kTag || flaw.rule == Rule::kRecordOrder;
    });
    step.flaws.insert(step.flaws.begin(),
                      {0, Rule::kAfterEnd, "the stream goes on behind the end-of-job mark (JIDG)"});
  }
  if (follows && std::holds_alternative<Gap>(step.record)) {
    ended_ = true;
  }
  return step;
}

// A job without any page is a prologue and the end-of-job mark: there is no job record to find.
RecordStep RecordReader::readPrologue() {
  RecordStep step;
  Prologue prologue;
  if (prologueIsAsExpected(prologue)) {
    foundRecord_ = true;
    step.bytes = prologue.start.size();
  } else {
    SkippedBytes skipped = skipToRecord(source_);
    foundRecord_ = skipped.foundRecord;
    step.bytes = skipped.count;
    prologue.start = std::move(skipped.start);
  }
  step.record = std::move(prologue);
  return step;
}

bool RecordReader::prologueIsAsExpected(Prologue& prologue) {
  if (!expectedPrologue_ || *expectedPrologue_ > kSkippedBytesKept) {
    return false;
  }
  std::vector<std::uint8_t> bytes(*expectedPrologue_ + kRecordStartBytes);
  bytes.resize(source_.read(bytes));
  const std::size_t behind = bytes.size() - std::min<std::size_t>(bytes.size(), *expectedPrologue_);
  const auto start = std::span(bytes).last(behind);
  prologue.asExpected =
      start.size() >= sizeof(Tag) &&
      (kindOfTag(start) == RecordKind::kJob ||
       (start.size() == sizeof(Tag) && kindOfTag(start) == RecordKind::kEndOfJob));
  source_.giveBack(prologue.asExpected ? start : std::span(bytes));
  if (prologue.asExpected) {
    bytes.resize(*expectedPrologue_);
    prologue.start = std::move(bytes);
  }
  return prologue.asExpected;
}

RecordStep RecordReader::readRecord(RecordKind kind) {
  RecordStep step;
  step.offset = source_.offset();
  const auto bytes = std::span(record_).first(lengthOf(kind));
  step.bytes = source_.read(bytes);
  foundRecord_ = true;
  lengthWasUnknown_ = false;
  if (step.bytes < bytes.size()) {
    const std::string text = "the stream ends after " + std::to_string(step.bytes) + " of the " +
                             nameOf(kind) + "'s " + std::to_string(bytes.size()) + " bytes";
    return breakOff(std::move(step), text);
  }
  step.header.assign(bytes.begin(), bytes.end());
  step.flaws = flawsOfRecord(kind, bytes);
  checkOrder(kind, step);
  if (std::exchange(gapWasTold_, false)) {
    std::erase_if(step.flaws, [](const Flaw& flaw) { return flaw.rule == Rule::kRecordOrder; });
  }
  switch (kind) {
    case RecordKind::kJob:
      step.record = parseJobRecord(bytes);
      break;
    case RecordKind::kHost:
      step.record = parseHostRecord(bytes);
      break;
    case RecordKind::kPage:
      step.record = parsePageRecord(bytes);
      break;
    case RecordKind::kBand: {
      Band band;
      band.record = parseBandRecord(bytes);
      readBandData(band, step);
      if (finished_) {
        step.record = BrokenOff{};
      } else {
        step.record = std::move(band);
      }
      break;
    }
    case RecordKind::kEndOfJob:
      step.record = EndOfJob{};
      ended_ = true;
      break;
  }
  return step;
}

void RecordReader::checkOrder(RecordKind kind, RecordStep& step) {
  const auto tell = [&step](const char* text) {
    step.flaws.insert(step.flaws.begin(), {0, Rule::kRecordOrder, text});
  };
  const Expecting expected = expecting_;
  switch (kind) {
    case RecordKind::kJob:
      if (expected != Expecting::kJob) {
        tell("the job record (GDIJ) does not come first, or once more");
      }
      expecting_ = Expecting::kHost;
      return;
    case RecordKind::kHost:
      if (expected != Expecting::kHost) {
        tell("the host record (GJET) does not follow the job record");
      }
      expecting_ = std::max(expected, Expecting::kPageOrEnd);
      return;
    case RecordKind::kPage:
      expecting_ = Expecting::kBandPageOrEnd;
      break;
    case RecordKind::kBand:
      if (expected == Expecting::kPageOrEnd) {
        tell("a band record (GDIB) comes ahead of the first page record");
      }
      expecting_ = Expecting::kBandPageOrEnd;
      break;
    case RecordKind::kEndOfJob:
      expecting_ = Expecting::kJob;
      break;
  }
  if (expected == Expecting::kHost) {
    tell("the host record (GJET) is missing");
  } else if (expected == Expecting::kJob && kind != RecordKind::kEndOfJob) {
    tell("the job record (GDIJ) is missing");
  }
}

void RecordReader::readBandData(Band& band, RecordStep& step) {
  band.ink = band.record.ink();
  std::size_t left = band.ink ? band.record.lengths[indexOf(*band.ink)] : 0;
  lengthWasUnknown_ =
      left > longestBandBytes(kBandHeight) ||
      std::ranges::any_of(step.flaws, [](const Flaw& f) { return f.rule == Rule::kBandPlane; });
  if (lengthWasUnknown_) {
    return;
  }
  while (left > 0) {
    const std::size_t have = band.data.size();
    const std::size_t piece = std::min(left, kPieceBytes);
    band.data.resize(have + piece);
    const std::size_t got = source_.read(std::span(band.data).subspan(have));
    band.data.resize(have + got);
    left -= got;
    if (got < piece) {
      break;
    }
  }
  step.bytes += band.data.size();
  const std::span<const std::uint8_t> behind = source_.peek(sizeof(Tag));
  const bool leadsNowhere = behind.size() < sizeof(Tag) || !kindOfTag(behind);
  if (left > 0 || (leadsNowhere && !fillToNextRecord(band, step))) {
    cutToNextRecord(band, step);
  }
}

// A length that is no multiple of 16 may lack the few bytes up to one. False when no record begins
// there.
bool RecordReader::fillToNextRecord(Band& band, RecordStep& step) {
  const std::size_t have = band.data.size();
  const std::size_t missing =
      (pc4sc4::kBandAlignment - have % pc4sc4::kBandAlignment) % pc4sc4::kBandAlignment;
  const std::span<const std::uint8_t> ahead = source_.peek(missing + kRecordStartBytes);
  if (missing == 0 || ahead.size() < missing ||
      !(beginsRecord(ahead.subspan(missing)) || isFinalEndMark(ahead.subspan(missing)))) {
    return false;
  }
  band.data.resize(have + missing);
  step.bytes += source_.read(std::span(band.data).last(missing));
  tellLength(step, *band.ink,
             "the band has " + std::to_string(have) +
                 " bytes, and yet the next record begins after " + std::to_string(have + missing));
  return true;
}

// The band's length leads nowhere. If a record begins inside its data, they end there.
void RecordReader::cutToNextRecord(Band& band, RecordStep& step) {
  const std::uint32_t told = band.record.lengths[indexOf(*band.ink)];
  const std::size_t have = band.data.size();
  if (const std::optional<std::size_t> start = recordInside(band.data)) {
    ++shortenedBands_;
    source_.giveBack(std::span(band.data).subspan(*start));
    band.data.resize(*start);
    step.bytes -= have - *start;
    tellLength(step, *band.ink,
               "the band has " + std::to_string(told) + " bytes, and yet a record begins after " +
                   counted(*start, "byte"));
  } else if (have < told) {
    step = breakOff(std::move(step), "the stream ends after " + std::to_string(have) + " of the " +
                                         nameOf(*band.ink) + " band's " + counted(told, "byte"));
  }
}

// Where in a band's data a record begins, an end-of-job mark that ends the input included.
std::optional<std::size_t> RecordReader::recordInside(std::vector<std::uint8_t>& data) {
  if (shortenedBands_ >= kMostShortenedBands) {
    return std::nullopt;
  }
  const std::size_t have = data.size();
  const std::span<const std::uint8_t> behind = source_.peek(kRecordStartBytes);
  const bool inputEnds = behind.size() < kRecordStartBytes;
  data.insert(data.end(), behind.begin(), behind.end());
  std::optional<std::size_t> start = findRecordStart(data);
  if (!start && inputEnds && data.size() >= sizeof(Tag) &&
      isFinalEndMark(std::span(data).last(sizeof(Tag)))) {
    start = data.size() - sizeof(Tag);
  }
  data.resize(have);
  return start && *start < have ? start : std::nullopt;
}

// The input's end is the stream's only if it could be read.
RecordStep RecordReader::breakOff(RecordStep&& step, std::string text) {
  finished_ = true;
  step.record = BrokenOff{};
  if (source_.failed()) {
    step.flaws.clear();
  } else {
    step.flaws.push_back({step.bytes, Rule::kTruncated, std::move(text)});
  }
  return std::move(step);
}

RecordStep RecordReader::readGap() {
  RecordStep step;
  step.offset = source_.offset();
  const std::string start = hexadecimal(source_.peek(sizeof(Tag)));
  step.bytes = skipToRecord(source_).count;
  step.record = Gap{};
  gapWasTold_ = !lengthWasUnknown_;
  if (gapWasTold_) {
    step.flaws.push_back(
        {0, Rule::kTag,
         "no record begins with " + start + "; " + counted(step.bytes, "byte") + " passed over"});
  }
  lengthWasUnknown_ = false;
  return step;
}

std::optional<RecordStep> RecordReader::readEnd() {
  finished_ = true;
  if (ended_ || !foundRecord_) {
    return std::nullopt;
  }
  RecordStep step;
  step.offset = source_.offset();
  step.record = BrokenOff{};
  if (!source_.failed()) {
    step.flaws.push_back({0, Rule::kEndMark, "the stream ends without the end-of-job mark (JIDG)"});
  }
  return step;
}

}  // namespace gdi::reader
