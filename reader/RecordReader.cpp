// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/RecordReader.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "reader/counted.h"
#include "reader/record_rules.h"

namespace gdi::reader {

namespace {

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
  RecordStep step;
  if (start.size() == sizeof(Tag) && kindOfTag(start)) {
    step = readRecord(*kindOfTag(start));
  } else if (start.size() < sizeof(Tag) && beginsTag(start) && !follows) {
    step = readPartOfTag();
  } else {
    step = readGap();
  }
  if (follows) {
    std::erase_if(step.flaws, [](const Flaw& flaw) {
      return flaw.rule == Rule::kTag || flaw.rule == Rule::kRecordOrder;
    });
    if (!std::exchange(toldWhatFollows_, true)) {
      step.flaws.insert(
          step.flaws.begin(),
          {0, Rule::kAfterEnd, "the stream goes on behind the end-of-job mark (JIDG)"});
    }
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
    step.checksum.add(prologue.start);
  } else {
    SkippedBytes skipped = skipPrologue(source_);
    foundRecord_ = skipped.foundRecord;
    step.checksum = skipped.checksum;
    prologue.start = std::move(skipped.start);
  }
  step.bytes = step.checksum.bytes();
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

RecordStep RecordReader::readPartOfTag() {
  RecordStep step;
  step.offset = source_.offset();
  step.bytes = source_.read(std::span(record_).first(sizeof(Tag)));
  breakOff(step, "the stream ends after " + counted(step.bytes, "byte") + " of a record's tag");
  return step;
}

RecordStep RecordReader::readRecord(RecordKind kind) {
  RecordStep step;
  step.offset = source_.offset();
  const auto bytes = std::span(record_).first(lengthOf(kind));
  step.bytes = source_.read(bytes);
  foundRecord_ = true;
  lengthWasUnknown_ = false;
  if (step.bytes < bytes.size()) {
    step.checksum.add(bytes.first(step.bytes));
    breakOff(step, "the stream ends after " + std::to_string(step.bytes) + " of the " +
                       nameOf(kind) + "'s " + std::to_string(bytes.size()) + " bytes");
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
    case RecordKind::kBand:
      readBand(bytes, step);
      break;
    case RecordKind::kEndOfJob:
      step.record = EndOfJob{};
      ended_ = true;
      break;
  }
  return step;
}

void RecordReader::checkOrder(RecordKind kind, RecordStep& step) {
  const std::optional<std::string_view> misplaced = order_.take(kind);
  const bool gapWasTold = std::exchange(gapWasTold_, false);
  if (misplaced && !gapWasTold) {
    step.flaws.insert(step.flaws.begin(), {0, Rule::kRecordOrder, std::string(*misplaced)});
  }
}

void RecordReader::readBand(std::span<const std::uint8_t> bytes, RecordStep& step) {
  Band band;
  band.record = parseBandRecord(bytes);
  band.ink = band.record.ink();
  const std::uint32_t length = band.ink ? band.record.lengths[indexOf(*band.ink)] : 0;
  lengthWasUnknown_ =
      length > longestBandBytes(kBandHeight) ||
      std::ranges::any_of(step.flaws, [](const Flaw& f) { return f.rule == Rule::kBandPlane; });
  if (lengthWasUnknown_) {
    step.record = std::move(band);
    return;
  }
  BandBytes read = bandData_.read(band.record, band.ink);
  step.bytes += read.data.size();
  if (read.brokenOff) {
    step.checksum.add(bytes);
    step.checksum.add(read.data);
    breakOff(step, "the stream ends after " + std::to_string(read.data.size()) + " of the " +
                       nameOf(*band.ink) + " band's " + counted(length, "byte"));
    return;
  }
  if (!read.lengthLie.empty()) {
    tellLength(step, *band.ink, std::move(read.lengthLie));
  }
  band.data = std::move(read.data);
  step.record = std::move(band);
}

// The input's end is the stream's only if it could be read.
void RecordReader::breakOff(RecordStep& step, std::string text) {
  finished_ = true;
  step.record = BrokenOff{};
  if (source_.failed()) {
    step.flaws.clear();
  } else {
    step.flaws.push_back({step.bytes, Rule::kTruncated, std::move(text)});
  }
}

void RecordReader::cutBand(RecordStep& step, std::size_t bytes) {
  if (!bandData_.takeSearch()) {
    return;
  }
  Band& band = std::get<Band>(step.record);
  const std::size_t told = band.data.size();
  source_.giveBack(std::span(band.data).subspan(bytes));
  band.data.resize(bytes);
  step.bytes -= told - bytes;
  tellLength(step, *band.ink, lengthLie(told, "a record", bytes));
}

RecordStep RecordReader::readGap() {
  RecordStep step;
  step.offset = source_.offset();
  const std::string start = hexadecimal(source_.peek(sizeof(Tag)));
  step.checksum = skipToRecord(source_).checksum;
  step.bytes = step.checksum.bytes();
  step.record = Gap{};
  gapWasTold_ = !lengthWasUnknown_;
  if (gapWasTold_) {
    step.flaws.push_back(
        {0, Rule::kTag,
         "no record begins with " + start + "; " + counted(step.bytes, "byte") + " passed over"});
  }
  lengthWasUnknown_ = false;
  endMarkWasTold_ = gapWasTold_ && step.bytes <= sizeof(Tag) && source_.peek(1).empty();
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
  if (!source_.failed() && !endMarkWasTold_) {
    step.flaws.push_back({0, Rule::kEndMark, "the stream ends without the end-of-job mark (JIDG)"});
  }
  return step;
}

}  // namespace gdi::reader
