// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/RecordReader.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "printer/format/big_endian.h"
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
  const std::optional<RecordKind> kind =
      start.size() < sizeof(Tag) ? std::nullopt : kindOfTag(start);
  const bool follows = std::exchange(ended_, false);
  RecordStep step = kind ? readRecord(*kind) : readGap();
  if (follows && !std::exchange(toldWhatFollows_, true)) {
    std::erase_if(step.flaws, [](const Flaw& flaw) { return flaw.rule == Rule::kTag; });
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
    step.record = BrokenOff{};
    step.flaws.push_back({step.bytes, Rule::kTruncated,
                          "the stream ends after " + std::to_string(step.bytes) + " of the " +
                              nameOf(kind) + "'s " + std::to_string(bytes.size()) + " bytes"});
    finished_ = true;
    return step;
  }
  step.header.assign(bytes.begin(), bytes.end());
  step.flaws = flawsOfRecord(kind, bytes);
  checkOrder(kind, step);
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
        tell("a second job record (GDIJ)");
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
      expecting_ = std::max(expected, Expecting::kPageOrEnd);
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
  if (left > 0 || (!behind.empty() && (behind.size() < sizeof(Tag) || !kindOfTag(behind)))) {
    cutToNextRecord(band, step);
  }
}

// The band's length leads nowhere. If a record begins inside its data, they end there.
void RecordReader::cutToNextRecord(Band& band, RecordStep& step) {
  const std::uint32_t told = band.record.lengths[indexOf(*band.ink)];
  const std::size_t have = band.data.size();
  std::optional<std::size_t> start;
  if (shortenedBands_ < kMostShortenedBands) {
    const std::span<const std::uint8_t> behind = source_.peek(kRecordStartBytes - 1);
    band.data.insert(band.data.end(), behind.begin(), behind.end());
    start = findRecordStart(band.data);
    band.data.resize(have);
  }
  if (start) {
    ++shortenedBands_;
    source_.giveBack(std::span(band.data).subspan(*start));
    band.data.resize(*start);
    step.bytes -= have - *start;
    step.flaws.push_back({lengthOffsetOf(*band.ink), Rule::kBandLength,
                          "the band has " + std::to_string(told) +
                              " bytes, and yet a record begins after " + counted(*start, "byte")});
  } else if (have < told) {
    step.flaws.push_back({step.bytes, Rule::kTruncated,
                          "the stream ends after " + std::to_string(have) + " of the " +
                              nameOf(*band.ink) + " band's " + counted(told, "byte")});
    finished_ = true;
  }
}

RecordStep RecordReader::readGap() {
  RecordStep step;
  step.offset = source_.offset();
  const std::string start = hexadecimal(source_.peek(sizeof(Tag)));
  step.bytes = skipToRecord(source_).count;
  step.record = Gap{};
  if (!lengthWasUnknown_) {
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
  step.flaws.push_back({0, Rule::kEndMark, "the stream ends without the end-of-job mark (JIDG)"});
  return step;
}

}  // namespace gdi::reader
